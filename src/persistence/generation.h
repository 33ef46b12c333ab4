// Generation: the files that are read together at a start. There are two: the committed one (Quillmere.ini
// and the .con files) and the recovery one (Quillmere.REC and the .REC files). This file changes many of them
// at once, so that a death at any moment leaves either all of the old or all of the new. It does not know
// what stands in the files, nor when they are saved.
//
//   1. What is new is written into the staging folder Saving.part, with a manifest of everything that is
//   going
//      to happen: names that go aside, names that are dropped, files that move to their names, files that
//      stay.
//   2. Saving.part is renamed to Saving. That one operation is the commit point: before it nothing has
//      happened, after it everything will.
//   3. The steps of the manifest are done. Each finds out by itself whether it has been done before.
//   4. The manifest and the folder are removed.
//
// Settle, before a load and before each save, throws Saving.part away and does steps 3 and 4 for a Saving
// that it finds. Until then, and where the disk refuses, Standing looks through a Saving as if it were
// finished.
//
// A durable change waits for the disk: the staged files and the folder before step 2, the folders after 2 and
// before 4. Others cost no wait, since only the end of the system could lose them, not the end of the
// program.
//
// The old file is removed before a new one takes its name: renaming over an old file makes several file
// systems wait for the disk. That is safe here, since the manifest stands until all is through.
#pragma once

#include "persistence/manifest.h"
#include "persistence/names.h"
#include "platform/files.h"

#include <map>
#include <string>
#include <vector>

namespace quill {

class Change {
public:
    explicit Change(bool durable) { plan_.Durable = durable; }

    void Write(const std::string& name, std::string bytes, const WrittenFile& sum);
    void Take(const std::string& from, const std::string& to, const WrittenFile& sum);
    void Aside(const std::string& from, const std::string& to);
    void Drop(const std::string& name);
    void Keep(const std::string& name, const WrittenFile& sum);

    bool ChangesNothing() const; // nothing but Keep

private:
    friend Status Commit(Files& files, const std::string& folder, Change change);
    struct StagedFile {
        std::string BareName;
        std::string Bytes;
    };
    Manifest plan_;
    std::vector<StagedFile> staged_;
};

// The folder must be settled. A failure before the commit point leaves everything as it was; one behind it
// leaves a Saving, which the next Settle finishes.
Status Commit(Files& files, const std::string& folder, Change change);

// The value is where an unfinished save was put that can't be trusted, together with the recovery generation
// that it may have torn; empty nearly always.
Result<std::string> Settle(Files& files, const std::string& folder);

// Names of ours that stand on the disk; a settled folder is presumed.
Result<NameSet> StandingNames(const FileReader& files, const std::string& folder);

using PathsByName = std::map<std::string, std::string, std::less<>>; // to full paths

// Where the bytes of each of our names stand, as if an interrupted save were finished.
PathsByName Standing(const FileReader& files, const std::string& folder);

// True for the names of the recovery generation.
bool IsRecoveryName(std::string_view name);

} // namespace quill
