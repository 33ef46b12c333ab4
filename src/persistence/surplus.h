// Surplus: container files that stand on the disk and are not of the new generation. Those that the last
// start read are out of date and go; those that no start would have read (behind a gap in the numbers,
// backups of older versions) may be all that is left of something, and get a name beside.
#pragma once

#include "persistence/generation.h"

namespace quill {

enum class Outdated { Drop, Aside };

// Of the .con files only those that are not among the first count, which the change itself replaces.
void ClearSurplus(const FileReader& files, const std::string& folder, const NameSet& standing, int count,
                  Outdated outdated, Change& change);

} // namespace quill
