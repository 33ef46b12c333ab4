// Applications: the desktop's applications, started for a document, an address or by their own entry. All
// return at once with the system's own words when it did not work.
#pragma once

#include "platform/result.h"

#include <string>
#include <vector>

namespace quill {

struct ApplicationStart {
    std::string Folder; // where it starts; empty: where its entry says, else the home folder
    int Show = 1;       // 1 as it comes, 2 minimised, 3 maximised
};

Status OpenDocument(const std::string& path, const ApplicationStart& start); // a folder is one too
Status OpenAddress(const std::string& address, const ApplicationStart& start);
// An entry that is only a link opens what it names. Documents are paths and addresses.
Status LaunchEntry(const std::string& path, const std::vector<std::string>& documents,
                   const ApplicationStart& start);
// The words of an entry's command, without places for documents; empty: it can't be read.
std::vector<std::string> CommandOfEntry(const std::string& path);

} // namespace quill
