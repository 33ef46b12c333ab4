// Settings table: every key of the settings file in the order of writing, one line each: key, field, default,
// bounds, and what is special about it. Defaults, reading, writing and the documentation walk it. The lists
// behind it (subjects, recent shortcuts) and the objects on the workspace are settings_file.h's.
#pragma once

#include "core/settings.h"
#include "persistence/load.h"

#include <span>
#include <string>
#include <string_view>

namespace quill {

struct frmMain;

enum class SettingKind {
    Option,     // a field of Settings with a default
    Appearance, // likewise, but colours, fonts and sizes: not touched by loading the defaults
    Place,      // a field that is empty until it was first used
    Window,     // no field of Settings: held by the window
    Ignored,    // read and thrown away
};

struct SettingsRow {
    std::string_view Key;
    SettingKind Kind = SettingKind::Window;
    std::string_view Type;    // for the documentation: "Boolean", "16-bit" ...
    std::string_view Default; // as it stands in a file
    float Low = 0, High = 0;  // bounds where the value is used; equal: those of the type
    bool (*Readable)(std::string_view text) = nullptr;
    void (*Apply)(frmMain& Main, DeferredSettings& deferred, std::string_view text) = nullptr;
    void (*Write)(std::string& out, const frmMain& Main) = nullptr;         // the value; null: never written
    bool (*Stands)(const frmMain& Main) = nullptr;                          // null: always
    bool (*Set)(SettingsRecord& settings, std::string_view text) = nullptr; // null for the window's
};

std::span<const SettingsRow> SettingsRows();

// The table as it stands in the documentation: one line a key.
std::string SettingsTableText();

// The place of the workspace when it is out and normal: a maximised one's restore rectangle, a docked one's
// place at its edge.
Rect NormalPlace(const frmMain& Main);

} // namespace quill
