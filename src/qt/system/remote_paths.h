// Which paths lie on another machine, told without asking that machine: by the form of the text and by the
// table of mounts.
#pragma once

#include <string>

namespace quill {

bool IsAddress(const std::string& text);       // has a scheme: "https://...", "mailto:..."
bool IsRemoteScheme(const std::string& text);  // smb:, sftp: and the like
bool IsOnRemoteMount(const std::string& path); // a local path below a network file system

} // namespace quill
