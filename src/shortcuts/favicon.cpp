#include "shortcuts/favicon.h"

#include "containers/layout.h"
#include "containers/lock.h"
#include "core/lower_case.h"
#include "persistence/save.h"
#include "platform/web.h"
#include "shortcuts/create.h"
#include "shortcuts/icon_cache.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>

namespace quill {
namespace {

constexpr std::string_view faviconPath = "/favicon.ico";
constexpr std::size_t longestHost = 300; // a name of 253 letters, a colon and a port, and some more

constexpr auto schemes = std::to_array<std::string_view>({"http://", "https://"});

// What the scheme of a web address is, in lower case; empty for any other address.
std::string_view SchemeOf(std::string_view address) {
    const std::string lower = LowerCase(address.substr(0, 8));
    const auto found =
        std::ranges::find_if(schemes, [&](std::string_view scheme) { return lower.starts_with(scheme); });
    return found == schemes.end() ? std::string_view() : *found;
}

// The host with its port, without name and password.
std::string_view HostOf(std::string_view behindScheme) {
    std::string_view host = behindScheme.substr(0, behindScheme.find_first_of("/?#\\"));
    if (const auto at = host.find_last_of('@'); at != host.npos) host.remove_prefix(at + 1);
    return host;
}

bool IsHost(std::string_view host) {
    const auto isNoPart = [](char letter) {
        return static_cast<unsigned char>(letter) <= ' ' || letter == 127;
    };
    return !host.empty() && host.front() != ':' && host.size() <= longestHost &&
           std::ranges::none_of(host, isNoPart);
}

bool HasPort(std::string_view host) {
    const auto colon = host.find_last_of(':');
    return colon != host.npos && host.find(']', colon) == host.npos;
}

// The marker keeps it true when the stick is mounted elsewhere.
std::string AsStored(const frmMain& Main, const std::string& path) {
    return ShouldUseRelativePath(Main, path) ? ToRelativePath(Main, path) : path;
}

// Called once with whether the shortcut has another icon now.
using Fetched = std::function<void(bool)>;

bool IsStill(const frmMain& Main, int link, const std::string& address) {
    return IsLive(Main.Shortcuts, link) && Main.Link(link).ShortcutType == TypeUrl &&
           Main.Link(link).Path == address;
}

bool TakeIcon(frmMain& Main, int link, const std::string& bytes) {
    const std::string file = KeepInIconCache(Main, bytes);
    if (file.empty()) return false;
    Main.Link(link).Icon = AsStored(Main, file);
    MarkParent(Main, Main.LinkView(link).In);
    return true;
}

void Fetch(frmMain& Main, int link, Fetched fetched) {
    const std::string address = Main.Link(link).Path, favicon = FaviconAddress(address);
    if (favicon.empty()) return fetched(false);
    Main.P.Web.Fetch(favicon, LargestFavicon, [&Main, link, address, fetched](Result<std::string> body) {
        if (Main.IsExiting) return;
        fetched(body && IsStill(Main, link, address) && TakeIcon(Main, link, body.Value()));
    });
}

std::vector<int> SelectedAddresses(const frmMain& Main) {
    std::vector<int> links;
    for (const int link : Main.Links.SelectedShortcuts)
        if (IsLive(Main.Shortcuts, link) && Main.Link(link).ShortcutType == TypeUrl) links.push_back(link);
    return links;
}

// How many are still under way, and whether there is anything to be saved.
struct Round {
    std::size_t Left = 0;
    bool Changed = false;
};

} // namespace

// By http, which leads to the safer one where a site has that. A port of https answers nothing else.
std::string FaviconAddress(std::string_view address) {
    const std::string_view scheme = SchemeOf(address);
    if (scheme.empty()) return {};
    const std::string_view host = HostOf(address.substr(scheme.size()));
    if (!IsHost(host)) return {};
    const std::string_view by = HasPort(host) ? scheme : schemes.front();
    return std::string(by) + std::string(host) + std::string(faviconPath);
}

void FetchFavicon(frmMain& Main, int Index) {
    if (!IsLive(Main.Shortcuts, Index) || Main.Link(Index).ShortcutType != TypeUrl) return;
    Fetch(Main, Index, [&Main](bool changed) {
        if (changed) SaveWorkspace(Main, true, false);
    });
}

void mnuDownloadFavIcon_Click(frmMain& Main) {
    const auto links = SelectedAddresses(Main);
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    const auto round = std::make_shared<Round>(Round{links.size()});
    for (const int link : links) {
        Fetch(Main, link, [&Main, round](bool changed) {
            round->Changed |= changed;
            if (--round->Left == 0 && round->Changed) SaveWorkspace(Main, true, false);
        });
    }
}

} // namespace quill
