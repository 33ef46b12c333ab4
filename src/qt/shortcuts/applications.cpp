#include "qt/shortcuts/applications.h"

#include "posix/errors.h"
#include "qt/system/gobject.h"

#include <cerrno>
#include <gio/gdesktopappinfo.h>
#include <unistd.h>

namespace quill {
namespace {

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

Status Launch(GAppInfo* program, const char* uri, const std::string& folder) {
    const OwnedObject<GAppLaunchContext> context(g_app_launch_context_new());
    GList* uris = uri != nullptr ? g_list_append(nullptr, const_cast<char*>(uri)) : nullptr;
    GlibError error;
    bool done = false;
    if (G_IS_DESKTOP_APP_INFO(program))
        done = g_desktop_app_info_launch_uris_as_manager(
            G_DESKTOP_APP_INFO(program), uris, context.get(), G_SPAWN_SEARCH_PATH, &EnterFolder,
            const_cast<char*>(folder.c_str()), nullptr, nullptr, error.Out());
    else
        done = g_app_info_launch_uris(program, uris, context.get(), error.Out());
    g_list_free(uris);
    if (!done) return FailureOf(error);
    return {};
}

} // namespace

Status OpenDocument(const std::string& path, const std::string& folder) {
    const OwnedObject<GFile> file(g_file_new_for_path(path.c_str()));
    const Owned<char> uri(g_file_get_uri(file.get()));
    GlibError error;
    const OwnedObject<GAppInfo> program(g_file_query_default_handler(file.get(), nullptr, error.Out()));
    if (!program) return FailureOf(error);
    return Launch(program.get(), uri.get(), folder);
}

Status OpenAddress(const std::string& address, const std::string& folder) {
    const OwnedObject<GFile> file(g_file_new_for_uri(address.c_str()));
    GlibError error;
    const Owned<char> scheme(g_uri_parse_scheme(address.c_str()));
    OwnedObject<GAppInfo> program(scheme ? g_app_info_get_default_for_uri_scheme(scheme.get()) : nullptr);
    if (!program) program.reset(g_file_query_default_handler(file.get(), nullptr, error.Out()));
    if (!program) return FailureOf(error);
    return Launch(program.get(), address.c_str(), folder);
}

Status LaunchEntry(const std::string& path, const std::string& folder) {
    const OwnedObject<GDesktopAppInfo> entry(g_desktop_app_info_new_from_filename(path.c_str()));
    if (!entry) return FailureOfErrno(ENOEXEC);
    return Launch(G_APP_INFO(entry.get()), nullptr, folder);
}

} // namespace quill
