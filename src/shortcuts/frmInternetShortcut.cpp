#include "shortcuts/frmInternetShortcut.h"

#include "containers/lock.h"
#include "containers/selection.h"
#include "core/lower_case.h"
#include "core/tr.h"
#include "persistence/save.h"
#include "platform/clipboard.h"
#include "shortcuts/add_commands.h"
#include "shortcuts/create.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/favicon.h"

#include <utility>

namespace quill {
namespace {

constexpr std::string_view emptyAddress = "http://";
constexpr float step = 300;                  // twips, to the next one's place
constexpr std::size_t longestAddress = 8192; // of one that is taken from the clipboard

std::string Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == text.npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

// Its first line, if that is an address of the web.
std::string AddressIn(std::string_view text) {
    std::string line = Trimmed(text.substr(0, longestAddress + 1));
    line = Trimmed(line.substr(0, line.find_first_of("\r\n")));
    const std::string head = LowerCase(line.substr(0, 6));
    return (head.starts_with("http:") || head == "https:") && line.size() <= longestAddress ? line : "";
}

std::string AddressOnClipboard(const frmMain& Main) {
    const ClipboardData data = Main.P.Clipboard.Read();
    std::string address = AddressIn(data.Text);
    if (address.empty() && !data.Addresses.empty()) address = AddressIn(data.Addresses.front());
    return address;
}

// A whole address is easily pasted behind the beginning that stands there already.
std::string WithoutDoubledBeginning(const std::string& address) {
    if (!address.starts_with(emptyAddress)) return address;
    std::string behind = address.substr(emptyAddress.size());
    const std::string head = LowerCase(behind.substr(0, 8));
    return head.starts_with("http://") || head == "https://" ? behind : address;
}

// "mailto:", but not the port of "a.example:8080".
bool HasScheme(const std::string& address) {
    if (address.find("://") != address.npos) return true;
    const auto colon = address.find_first_of(":/");
    const bool named = colon != address.npos && address[colon] == ':' && colon > 0;
    const bool port =
        named && colon + 1 < address.size() && address[colon + 1] >= '0' && address[colon + 1] <= '9';
    return named && !port;
}

std::string WholeAddress(const std::string& typed) {
    const std::string address = WithoutDoubledBeginning(Trimmed(typed));
    return address.empty() || HasScheme(address) ? address : std::string(emptyAddress) + address;
}

bool HasRoom(frmMain& Main, const Parent& in) {
    if (RoomFor(Main, in) > 0) return true;
    TellLimit(Main, in);
    return false;
}

void Cut(std::string& text, std::string_view end) {
    if (text.ends_with(end)) text.resize(text.size() - end.size());
}

} // namespace

frmInternetShortcut::frmInternetShortcut(frmMain& main, Parent to, Point at) : Main(main), to_(to), at_(at) {
    const std::string address = AddressOnClipboard(Main);
    Begin(address.empty() ? std::string(emptyAddress) : address);
}

void frmInternetShortcut::Begin(std::string address) {
    txtAddress = std::move(address);
    txtAddress_Change();
}

void frmInternetShortcut::txtAddress_Change() {
    txtLabel = LabelOf(txtAddress);
}

// Nothing typed is the same as Close, also while the dialog is to stay.
bool frmInternetShortcut::OKButton_Click() {
    const std::string address = WholeAddress(txtAddress);
    if (address == emptyAddress) return true;
    if (!address.empty()) Add(address);
    if (!chkKeepOpen || Main.IsExiting) return true;
    Begin(std::string(emptyAddress));
    return false;
}

// The label is there before its picture is.
void frmInternetShortcut::Add(const std::string& address) {
    if (Main.IsExiting || !TakesShortcuts(Main, to_) || !NeedsEdit(Main, Edit::Shortcuts)) return;
    if (!HasRoom(Main, to_)) return;
    if (added_ == 0) UnselectLinks(Main);
    AddURL(Main, to_, Trimmed(txtLabel), address, at_);
    const int added = Main.NextShortcutIndex - 1;
    SettleNewShortcut(Main, added);
    at_ = {at_.X + step, at_.Y + step};
    ++added_;
    SaveWorkspace(Main, true, false);
    if (chkFavIcon) FetchFavicon(Main, added);
}

std::string frmInternetShortcut::Title(const frmMain& Main) {
    return Tr(Main, "Add URL");
}

// Of "http://www.example.com" the name alone. Only one end goes: a path stays what it is.
std::string frmInternetShortcut::LabelOf(std::string_view address) {
    const auto slashes = address.find("//");
    std::string label = Trimmed(slashes == address.npos ? address : address.substr(slashes + 2));
    Cut(label, ".com");
    if (label.starts_with("www.")) label.erase(0, 4);
    Cut(label, "/");
    return label;
}

} // namespace quill
