// Icon cache: the pictures that were fetched for shortcuts, in a folder of the settings folder. A file of it
// is made here and nowhere else, under a name that no other will ever have; several shortcuts may name the
// same file. It goes when nothing names it any more, and not before that stands on the disk.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <string_view>

namespace quill {

std::string IconCacheFolder(const frmMain& Main);
bool IsCacheName(std::string_view name); // a bare name, as the files of the cache have
// The full path of a new file with these bytes; empty when they are no picture, or can't be written.
std::string KeepInIconCache(frmMain& Main, const std::string& bytes);
bool IsCachedIcon(const frmMain& Main, const std::string& icon); // as a record has it
// To be called when a committed save has succeeded.
void CleanIconCache(frmMain& Main);

} // namespace quill
