#include "persistence/clsZip.h"

namespace quill {

std::string clsZip::PartName() const {
    return ZipFileName.substr(0, ZipFileName.rfind('/') + 1) + "Quillmere_Backup.part";
}

Status clsZip::AddFilesToZip(const std::vector<ZipEntry>& Files) {
    return port_.Write(PartName(), Files);
}

Status clsZip::ClearPart(Files& files) const {
    auto removed = files.Remove(PartName());
    return removed.Missing() ? Status() : removed;
}

Status clsZip::TakePlace(Files& files) const {
    auto placed = files.Sync(PartName());
    if (placed) placed = files.Rename(PartName(), ZipFileName);
    if (!placed) (void)files.Remove(PartName());
    return placed;
}

} // namespace quill
