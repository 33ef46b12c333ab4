// Applications: the desktop's applications, started for a document, an address or by their own entry. All
// return at once with the system's own words when it did not work; an empty folder is ours.
#pragma once

#include "platform/result.h"

#include <string>

namespace quill {

Status OpenDocument(const std::string& path, const std::string& folder); // a folder is one too
Status OpenAddress(const std::string& address, const std::string& folder);
Status LaunchEntry(const std::string& path, const std::string& folder);

} // namespace quill
