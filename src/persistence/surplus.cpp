#include "persistence/surplus.h"

namespace quill {

void ClearSurplus(const FileReader& files, const std::string& folder, const NameSet& standing, int count,
                  Outdated outdated, Change& change) {
    const int run = RunLength(standing);
    for (const auto& name : standing) {
        const auto number = NumberOf(name, CommittedExtension);
        const bool unread = (number && *number >= run) || NumberOf(name, OldBackupExtension);
        const bool old = number && *number < run && *number >= count;
        if (unread || (old && outdated == Outdated::Aside))
            change.Aside(name, AsideName(files, folder, name));
        else if (old)
            change.Drop(name);
    }
}

} // namespace quill
