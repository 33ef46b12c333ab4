// Owners for what GLib and GIO hand out.
#pragma once

#include <gio/gio.h>

#include <memory>

namespace quill {

struct FreeGlib {
    void operator()(void* memory) const { g_free(memory); }
};
struct FreeObject {
    void operator()(void* object) const { g_object_unref(object); }
};

template <class T> using Owned = std::unique_ptr<T, FreeGlib>;
template <class T> using OwnedObject = std::unique_ptr<T, FreeObject>;

// Takes the place of a GError** in a call: `call(..., error.Out())`.
class GlibError {
public:
    GlibError() = default;
    ~GlibError() { g_clear_error(&error_); }
    GlibError(const GlibError&) = delete;
    GlibError& operator=(const GlibError&) = delete;

    GError** Out() { return &error_; }
    const GError* Get() const { return error_; }
    const char* Text() const { return error_ != nullptr ? error_->message : ""; }

private:
    GError* error_ = nullptr;
};

} // namespace quill
