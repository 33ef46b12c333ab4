// The fake computer's file tree: files, folders and modes in memory, no links. It writes down what was asked
// of it, fails when told, and can let the process die at a chosen step while the tree stays for the next
// start.
//
// A step is one operation that changes the disk: Create, Rename, Remove, one level of MakeFolder,
// RemoveFolder, Sync, Copy. Steps are counted from 1 since Recount().
#pragma once

#include "platform/files.h"

#include <map>
#include <optional>

namespace quill::fake {

// Thrown by every operation of a process that is dead. No routine of ours catches it; the test does.
struct ProcessDied {};

struct Node {
    bool Folder = false;
    std::string Bytes;
    unsigned Mode = 0600; // permission bits of the owner count
    std::int64_t Modified = 0;
    bool Synced = true; // the bytes are on the disk
    bool operator==(const Node&) const = default;
};

using Tree = std::map<std::string, Node>; // by full path

class FakeFiles : public Files {
public:
    FakeFiles();

    Result<FileInfo> Stat(const std::string& path) const override;
    Result<std::string> Read(const std::string& path, std::uint64_t limit) const override;
    Result<std::vector<std::string>> List(const std::string& folder) const override;
    Status Create(const std::string& path, std::string_view bytes) override;
    Status Rename(const std::string& from, const std::string& to) override;
    Status Remove(const std::string& path) override;
    Status MakeFolder(const std::string& path) override;
    Status RemoveFolder(const std::string& path) override;
    Status Sync(const std::string& path) override;
    Status Copy(const std::string& from, const std::string& to) override;

    // What was asked: "create Containers/0.REC 123", "rename a -> b". Paths below LogRoot are cut to what
    // follows it. A step that failed ends in "!" and the reason's text.
    std::vector<std::string> Log;
    mutable std::vector<std::string> Reads; // "stat", "read" and "list", kept apart
    std::string LogRoot;                    // ends in "/"; empty: full paths
    // Renames of files whose bytes were not on the disk yet.
    std::vector<std::string> LostSyncs;

    int Steps() const { return steps_; }
    void Recount() { steps_ = 0, Log.clear(), Reads.clear(), LostSyncs.clear(); }

    // The n-th step from now is done, and whatever follows it throws. 0: before any.
    void DieAfter(int n);
    // The n-th step from now throws; a Create or Copy leaves the first half of its bytes.
    void DieTornAt(int n);
    bool Dead() const { return dead_; }
    void Revive(); // the next start: no death ahead, failures and limits stay

    void FailMutation(int n, Reason reason); // the n-th step from now, once
    void FailFrom(int n, Reason reason);     // that one and all behind it
    void FailReading(const std::string& path, Reason reason);
    void Space(std::uint64_t bytes); // free bytes from now
    void MakeReadOnly(const std::string& path);
    void MakeWritable(const std::string& path);
    void MakeUnreadable(const std::string& path);
    void Heal();     // no failure and no limit any more; modes stay
    void CutPower(); // files whose bytes were never synced are empty afterwards

    // Setting the stage: no step, no log, parents are made.
    void Put(const std::string& path, std::string_view bytes, unsigned mode = 0600);
    void PutFolder(const std::string& path, unsigned mode = 0700);
    void Delete(const std::string& path);           // with all below it
    std::string Get(const std::string& path) const; // the bytes; "(none)" when no file stands there
    bool Has(const std::string& path) const { return tree_.contains(path); }
    std::vector<std::string> Names(const std::string& folder) const; // sorted

    Tree Snapshot() const { return tree_; }
    void Restore(Tree tree) { tree_ = std::move(tree); }
    // A readable listing with contents, paths relative to the folder, sorted.
    std::string Dump(const std::string& folder) const;

private:
    void Alive() const;
    std::optional<Failure> Begin();
    Status End(const std::string& what, Status status);
    std::optional<Failure> ParentTrouble(const std::string& path) const;
    std::optional<Failure> RoomTrouble(std::uint64_t bytes) const;
    const Node* Find(const std::string& path) const;
    Node& Standing(const std::string& path);
    bool HasChildren(const std::string& folder) const;
    std::string Short(const std::string& path) const;
    std::uint64_t Used() const;
    Status DoCreate(const std::string& path, std::string_view bytes, unsigned mode);
    Status DoRename(const std::string& from, const std::string& to);
    std::optional<Failure> Replaceable(const Node& from, const std::string& to) const;

    Tree tree_;
    int steps_ = 0;
    std::int64_t time_ = 1'700'000'000; // one second a step
    bool dead_ = false;
    std::optional<int> dieAfter_, tornAt_, failFrom_; // counted from now
    bool torn_ = false;                               // the step under way is the torn one
    Reason failFromReason_ = Reason::Other;
    std::map<int, Reason> failAt_;
    std::map<std::string, Reason> failReading_;
    std::optional<std::uint64_t> limit_; // most bytes that the tree may hold
};

Failure FailureOf(Reason reason); // with the system's words for it

} // namespace quill::fake
