#include "qt/shortcuts/launch_scope.h"

#include "qt/system/gobject.h"

#include <cctype>
#include <memory>

namespace quill {
namespace {

constexpr const char* service = "org.freedesktop.systemd1";
constexpr const char* object = "/org/freedesktop/systemd1";
constexpr const char* manager = "org.freedesktop.systemd1.Manager";
constexpr std::size_t longest = 200; // bytes; a file's name may be longer than such a name
constexpr int patience = 5000;       // milliseconds

struct Wish {
    std::string Scope;
    guint32 Process = 0;
};

GVariant* Properties(const Wish& wish) {
    GVariantBuilder properties;
    g_variant_builder_init(&properties, G_VARIANT_TYPE("a(sv)"));
    const guint32 processes[] = {wish.Process};
    g_variant_builder_add(&properties, "(sv)", "PIDs",
                          g_variant_new_fixed_array(G_VARIANT_TYPE_UINT32, processes, 1, sizeof(guint32)));
    g_variant_builder_add(&properties, "(sv)", "CollectMode", g_variant_new_string("inactive-or-failed"));
    return g_variant_builder_end(&properties);
}

// Without anybody to hear the answer the call is only sent.
void Ask(GObject*, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Wish> wish(static_cast<Wish*>(data));
    const OwnedObject<GDBusConnection> bus(g_bus_get_finish(result, nullptr));
    if (!bus) return;
    g_dbus_connection_set_exit_on_close(bus.get(), FALSE); // a bus that ends must not end the workspace
    GVariant* none = g_variant_new_array(G_VARIANT_TYPE("(sa(sv))"), nullptr, 0);
    GVariant* call =
        g_variant_new("(ss@a(sv)@a(sa(sv)))", wish->Scope.c_str(), "fail", Properties(*wish), none);
    g_dbus_connection_call(bus.get(), service, object, manager, "StartTransientUnit", call, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, patience, nullptr, nullptr, nullptr);
}

} // namespace

std::string ScopeName(const std::string& name, int process) {
    constexpr char digits[] = "0123456789abcdef";
    std::string scope = "app-quillmere-";
    for (const char letter : name) {
        if (scope.size() > longest) break;
        const auto byte = static_cast<unsigned char>(letter);
        const bool plain = byte < 128 && (std::isalnum(byte) || letter == '_' || letter == '.');
        if (plain)
            scope += letter;
        else
            scope.append({'\\', 'x', digits[byte >> 4], digits[byte & 15]});
    }
    return scope + "-" + std::to_string(process) + ".scope";
}

void GiveScope(const std::string& name, int process) {
    if (process <= 0) return;
    auto wish = std::make_unique<Wish>(Wish{ScopeName(name, process), static_cast<guint32>(process)});
    g_bus_get(G_BUS_TYPE_SESSION, nullptr, &Ask, wish.release());
}

} // namespace quill
