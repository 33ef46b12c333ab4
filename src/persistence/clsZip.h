// clsZip: a flat archive in the making. It is written under a name of its own and takes the place of an older
// archive only when it is whole, so that a backup that fails leaves the last one alone.
#pragma once

#include "platform/files.h"
#include "platform/zip.h"

#include <string>
#include <vector>

namespace quill {

class clsZip {
public:
    explicit clsZip(Zip& port) : port_(port) {}

    std::string ZipFileName; // full path of the archive to make

    // Safe on any thread, after ClearPart.
    Status AddFilesToZip(const std::vector<ZipEntry>& Files);
    // On the one thread, before and after: what a death left under the working name goes, and the archive
    // that is through takes its place.
    Status ClearPart(Files& files) const;
    Status TakePlace(Files& files) const;

private:
    std::string PartName() const; // one for all archives, so that no death leaves more than one behind

    Zip& port_;
};

} // namespace quill
