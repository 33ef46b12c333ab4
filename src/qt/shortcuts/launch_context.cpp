#include "qt/shortcuts/launch_context.h"

namespace quill {
namespace {

constexpr const char* typeName = "QuillmereLaunchContext";
constexpr const char* tokenKey = "quillmere-token";

char* TokenOf(GAppLaunchContext* context, GAppInfo*, GList*) {
    return g_strdup(static_cast<const char*>(g_object_get_data(G_OBJECT(context), tokenKey)));
}

void InitClass(gpointer type, gpointer) {
    G_APP_LAUNCH_CONTEXT_CLASS(type)->get_startup_notify_id = &TokenOf;
}

GType Type() {
    if (const GType known = g_type_from_name(typeName); known != 0) return known;
    return g_type_register_static_simple(G_TYPE_APP_LAUNCH_CONTEXT, typeName, sizeof(GAppLaunchContextClass),
                                         &InitClass, sizeof(GAppLaunchContext), nullptr,
                                         static_cast<GTypeFlags>(0));
}

} // namespace

OwnedObject<GAppLaunchContext> NewLaunchContext(const std::string& token) {
    OwnedObject<GAppLaunchContext> context(static_cast<GAppLaunchContext*>(g_object_new(Type(), nullptr)));
    for (const char* variable : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"}) {
        if (token.empty())
            g_app_launch_context_unsetenv(context.get(), variable);
        else
            g_app_launch_context_setenv(context.get(), variable, token.c_str());
    }
    if (!token.empty())
        g_object_set_data_full(G_OBJECT(context.get()), tokenKey, g_strdup(token.c_str()), &g_free);
    return context;
}

} // namespace quill
