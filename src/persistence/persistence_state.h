// What persistence remembers between a load and the saves after it.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quill {

struct WrittenFile {
    std::uint64_t Size = 0;
    std::uint64_t Checksum = 0;
};

struct BackupRequest {
    std::string FileName; // bare
    bool Confirm = false; // the user asked for it: the result is shown
};

struct PersistenceState {
    // What stands on the disk of the recovery generation, by name; lets a recovery save write only what
    // differs. Empty: nothing is known, everything is written.
    std::map<std::string, WrittenFile> Recovery;
    std::string SaveFailure;        // why the last save failed, for lblCaption; empty = it did not
    std::string StoredEffect = "1"; // [Effect], in place only at the end of the load
    bool ExitSaved = false;         // the exit's own save is over
    std::vector<std::string> Older; // files in another version that this load has read; full paths
    bool SaveAfterLoad = false;     // something was damaged: a recovery save follows the load at once
    bool Quit = false;              // the load ended the program
    bool BackupRunning = false;     // the zip is being made off the thread
    std::optional<BackupRequest> NextBackup; // asked for meanwhile; made when the running one is through
};

} // namespace quill
