// A container's file: its whole text, written from the tables, read into a plain record (container_tags.h)
// and put into the tables in a second step, so that a damaged file leaves them as they were.
#pragma once

#include "core/frmMain.h"
#include "persistence/container_tags.h"
#include "persistence/damage.h"
#include "persistence/objects_by_parent.h"

#include <optional>
#include <string>
#include <string_view>

namespace quill {

std::string ContainerText(const frmMain& Main, int Index);
// For a save, which makes the index once for all containers.
std::string ContainerText(const frmMain& Main, int Index, const ObjectsByParent& objects);

// The record of a container as it would be written; texts point into the tables.
ContainerRecord RecordOfContainer(const frmMain& Main, int Index);

// The bytes must have passed PrepareText (line_reader.h); texts of the record point into them. A record may
// be used again for the next file, which saves its memory.
std::optional<Damage> ParseContainer(std::string_view bytes, ContainerRecord& record);

// Makes the container and all that lies in it. False at the limit: the message was shown, nothing was made.
bool ApplyContainer(frmMain& Main, const ContainerRecord& record);

} // namespace quill
