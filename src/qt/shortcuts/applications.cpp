#include "qt/shortcuts/applications.h"

#include "posix/environment.h"
#include "posix/errors.h"
#include "qt/shortcuts/launch_context.h"
#include "qt/shortcuts/started.h"
#include "qt/system/gobject.h"

#include <cerrno>
#include <gio/gdesktopappinfo.h>
#include <unistd.h>

namespace quill {
namespace {

struct FreeKeys {
    void operator()(GKeyFile* keys) const { g_key_file_unref(keys); }
};
using Keys = std::unique_ptr<GKeyFile, FreeKeys>;

struct FreeUris {
    void operator()(GList* uris) const { g_list_free_full(uris, &g_free); }
};
using Uris = std::unique_ptr<GList, FreeUris>;

Failure FailureOf(const GlibError& error) {
    const bool missing =
        error.Get() != nullptr && g_error_matches(error.Get(), G_IO_ERROR, G_IO_ERROR_NOT_FOUND);
    return {missing ? Reason::NotFound : Reason::Other, error.Text()};
}

// Runs in the child, between fork and exec.
void EnterFolder(gpointer folder) {
    setsid();
    const auto* path = static_cast<const char*>(folder);
    if (*path != '\0' && chdir(path) != 0) return; // the program starts all the same
}

void TakeNumber(GDesktopAppInfo*, GPid number, gpointer taken) {
    *static_cast<int*>(taken) = number;
}

char* UriOf(const std::string& document) {
    if (!document.starts_with('/')) return g_strdup(document.c_str());
    const OwnedObject<GFile> file(g_file_new_for_path(document.c_str()));
    return g_file_get_uri(file.get());
}

Uris UrisOf(const std::vector<std::string>& documents) {
    GList* uris = nullptr;
    for (auto document = documents.rbegin(); document != documents.rend(); ++document)
        uris = g_list_prepend(uris, UriOf(*document));
    return Uris(uris);
}

std::string FolderFor(GAppInfo* program, const std::string& wanted) {
    if (!wanted.empty()) return wanted;
    const bool isEntry = G_IS_DESKTOP_APP_INFO(program);
    const Owned<char> own(isEntry ? g_desktop_app_info_get_string(G_DESKTOP_APP_INFO(program), "Path")
                                  : nullptr);
    return own && *own != '\0' ? std::string() : Variable("HOME"); // its own is entered by GIO
}

// Entries tell by themselves whether their program says when it is there.
Feedback FeedbackOf(GAppInfo* program) {
    const bool tells = G_IS_DESKTOP_APP_INFO(program) &&
                       g_desktop_app_info_get_boolean(G_DESKTOP_APP_INFO(program), "StartupNotify") != 0;
    return tells ? Feedback::Yes : Feedback::No;
}

std::string NameOf(GAppInfo* program) {
    const char* id = g_app_info_get_id(program);
    const char* file = id != nullptr ? id : g_app_info_get_executable(program);
    return file != nullptr ? file : "application";
}

Status Launch(GAppInfo* program, const std::vector<std::string>& documents, const ApplicationStart& start) {
    StartNotice notice(g_app_info_get_display_name(program), NameOf(program), FeedbackOf(program));
    const auto context = NewLaunchContext(notice.Token());
    const Uris uris = UrisOf(documents);
    std::string folder = FolderFor(program, start.Folder);
    int number = 0;
    GlibError error;
    bool done = false;
    if (G_IS_DESKTOP_APP_INFO(program))
        done = g_desktop_app_info_launch_uris_as_manager(G_DESKTOP_APP_INFO(program), uris.get(),
                                                         context.get(), G_SPAWN_SEARCH_PATH, &EnterFolder,
                                                         folder.data(), &TakeNumber, &number, error.Out());
    else
        done = g_app_info_launch_uris(program, uris.get(), context.get(), error.Out());
    if (!done) return FailureOf(error);
    notice.Runs(number, start.Show);
    return {};
}

// Of an entry that is only a link; empty of any other.
std::string LinkOfEntry(const std::string& path) {
    const Keys keys(g_key_file_new());
    if (!g_key_file_load_from_file(keys.get(), path.c_str(), G_KEY_FILE_NONE, nullptr)) return {};
    const auto value = [&](const char* key) {
        const Owned<char> text(g_key_file_get_string(keys.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr));
        return text ? std::string(text.get()) : std::string();
    };
    return value(G_KEY_FILE_DESKTOP_KEY_TYPE) == G_KEY_FILE_DESKTOP_TYPE_LINK
               ? value(G_KEY_FILE_DESKTOP_KEY_URL)
               : std::string();
}

bool IsField(const char* word) {
    return word[0] == '%' && word[1] != '%' && word[1] != '\0' && word[2] == '\0';
}

} // namespace

Status OpenDocument(const std::string& path, const ApplicationStart& start) {
    const OwnedObject<GFile> file(g_file_new_for_path(path.c_str()));
    GlibError error;
    const OwnedObject<GAppInfo> program(g_file_query_default_handler(file.get(), nullptr, error.Out()));
    if (!program) return FailureOf(error);
    return Launch(program.get(), {path}, start);
}

Status OpenAddress(const std::string& address, const ApplicationStart& start) {
    const OwnedObject<GFile> file(g_file_new_for_uri(address.c_str()));
    GlibError error;
    const Owned<char> scheme(g_uri_parse_scheme(address.c_str()));
    OwnedObject<GAppInfo> program(scheme ? g_app_info_get_default_for_uri_scheme(scheme.get()) : nullptr);
    if (!program) program.reset(g_file_query_default_handler(file.get(), nullptr, error.Out()));
    if (!program) return FailureOf(error);
    return Launch(program.get(), {address}, start);
}

Status LaunchEntry(const std::string& path, const std::vector<std::string>& documents,
                   const ApplicationStart& start) {
    if (const std::string link = LinkOfEntry(path); !link.empty())
        return link.starts_with('/') ? OpenDocument(link, start) : OpenAddress(link, start);
    const OwnedObject<GDesktopAppInfo> entry(g_desktop_app_info_new_from_filename(path.c_str()));
    if (!entry) return FailureOfErrno(ENOEXEC);
    return Launch(G_APP_INFO(entry.get()), documents, start);
}

std::vector<std::string> CommandOfEntry(const std::string& path) {
    const OwnedObject<GDesktopAppInfo> entry(g_desktop_app_info_new_from_filename(path.c_str()));
    const char* line = entry ? g_app_info_get_commandline(G_APP_INFO(entry.get())) : nullptr;
    char** words = nullptr;
    std::vector<std::string> command;
    if (line == nullptr || !g_shell_parse_argv(line, nullptr, &words, nullptr)) return command;
    for (char** word = words; *word != nullptr; ++word)
        if (!IsField(*word)) command.emplace_back(*word);
    g_strfreev(words);
    return command;
}

} // namespace quill
