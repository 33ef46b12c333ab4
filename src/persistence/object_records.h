// Object records: the pictures and shortcuts of one parent, the tail of a container file and of the settings
// file alike. Which form a file's records have hangs on the version in its first line.
#pragma once

#include "core/views.h"
#include "persistence/link_record.h"
#include "persistence/picture_record.h"

#include <string>
#include <string_view>
#include <vector>

namespace quill {

struct frmMain;
class ObjectsByParent;

inline constexpr std::string_view FormatVersion = "108";

struct ObjectRecords {
    std::vector<LinkRecord> Links;
    std::vector<PictureRecord> Pictures;
    bool LeftOut = false; // the file is of another version, and records of it were not read

    void Clear();
};

// True when the line opened a record, which has then been read (or passed over, in a file of another
// version). version is the trimmed first line.
bool ReadObject(TagReader& reader, std::string_view line, std::string_view version, ObjectRecords& records);
// Rows in the tables, with the values as they are written: no limit, no resolving.
void ApplyObjects(frmMain& Main, const ObjectRecords& records, Parent parent);
// Pictures from the bottom of the stack, then shortcuts in table order.
void WriteObjects(std::string& out, const frmMain& Main, const ObjectsByParent& objects, Parent parent);

} // namespace quill
