#include "qt/shortcuts/file_manager.h"

#include "qt/system/gobject.h"

namespace quill {
namespace {

constexpr const char* name = "org.freedesktop.FileManager1";
constexpr const char* object = "/org/freedesktop/FileManager1";
constexpr int patience = 5000; // milliseconds; the file manager may have to be started first

// A path, or the address of a file on a server as it is.
Owned<char> UriOf(const std::string& path) {
    if (!path.starts_with('/')) return Owned<char>(g_strdup(path.c_str()));
    return Owned<char>(g_filename_to_uri(path.c_str(), nullptr, nullptr));
}

bool Call(const char* method, const std::string& path) {
    const Owned<char> uri = UriOf(path);
    const OwnedObject<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (!uri || !bus) return false;
    const char* uris[] = {uri.get(), nullptr};
    GVariant* answer =
        g_dbus_connection_call_sync(bus.get(), name, object, name, method, g_variant_new("(^ass)", uris, ""),
                                    nullptr, G_DBUS_CALL_FLAGS_NONE, patience, nullptr, nullptr);
    if (answer == nullptr) return false;
    g_variant_unref(answer);
    return true;
}

} // namespace

bool ShowItem(const std::string& path) {
    return Call("ShowItems", path);
}

bool ShowItemProperties(const std::string& path) {
    return Call("ShowItemProperties", path);
}

} // namespace quill
