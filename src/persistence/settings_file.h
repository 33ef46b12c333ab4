// The settings file: the whole text of it, written from the workspace and read into a plain record first.
// Which file is read, and what happens with a damaged one, is not decided here (load.h, damage.h).
#pragma once

#include "core/frmMain.h"
#include "persistence/damage.h"
#include "persistence/load.h"
#include "persistence/object_records.h"
#include "persistence/objects_by_parent.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

// Exiting changes nothing of the text: a maximised or docked workspace is always written with the place that
// it has when it is out and normal.
std::string SettingsText(const frmMain& Main, bool Exiting);
std::string SettingsText(const frmMain& Main, bool Exiting, const ObjectsByParent& objects);

// What a settings file says. Texts point into the bytes that were read.
struct SettingsFileRecord {
    struct Value {
        std::size_t Row = 0; // of SettingsRows()
        std::string_view Text;
    };
    struct Recent {
        std::string_view Caption, ParentName;
        float Left = 0, Top = 0;
    };
    std::vector<Value> Values; // in file order, each readable
    std::vector<std::string_view> Subjects;
    std::array<std::optional<Recent>, MaxRecent + 1> RecentRows; // by the number in the key
    ObjectRecords Objects;                                       // that lie on the workspace
};

// The bytes must have passed PrepareText (line_reader.h). What was read before the damage stands in the
// record.
std::optional<Damage> ParseSettings(std::string_view bytes, SettingsFileRecord& record);
// Puts the values into the workspace; what the end of the load applies goes to deferred.
void ApplySettings(frmMain& Main, const SettingsFileRecord& record, DeferredSettings& deferred);

} // namespace quill
