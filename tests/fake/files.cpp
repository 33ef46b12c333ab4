#include "fake/files.h"

#include <stdexcept>

namespace quill::fake {

namespace {

constexpr unsigned ReadBit = 0400;
constexpr unsigned WriteBit = 0200;
constexpr unsigned RunBit = 0100;

std::string ParentOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

std::string Below(const std::string& folder) {
    return folder == "/" ? folder : folder + "/";
}

std::string Clean(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

FileInfo InfoOf(const Node& node) {
    FileInfo info;
    info.IsFolder = node.Folder;
    info.IsRegular = !node.Folder;
    info.IsExecutable = (node.Mode & RunBit) != 0;
    info.IsWritable = (node.Mode & WriteBit) != 0;
    info.Size = node.Bytes.size();
    info.Modified = node.Modified;
    return info;
}

} // namespace

Failure FailureOf(Reason reason) {
    switch (reason) {
    case Reason::NotFound:
        return {reason, "No such file or directory"};
    case Reason::Exists:
        return {reason, "File exists"};
    case Reason::NoSpace:
        return {reason, "No space left on device"};
    case Reason::Denied:
        return {reason, "Permission denied"};
    case Reason::TooLarge:
        return {reason, "File too large"};
    default:
        return {reason, "Input/output error"};
    }
}

FakeFiles::FakeFiles() {
    tree_["/"] = Node{true, {}, 0700, time_, true};
}

// ---- reading

Result<FileInfo> FakeFiles::Stat(const std::string& path) const {
    Alive();
    Reads.push_back("stat " + Short(path));
    const Node* node = Find(path);
    if (node == nullptr) return FailureOf(Reason::NotFound);
    return InfoOf(*node);
}

Result<std::string> FakeFiles::Read(const std::string& path, std::uint64_t limit) const {
    Alive();
    Reads.push_back("read " + Short(path));
    const Node* node = Find(path);
    if (node == nullptr) return FailureOf(Reason::NotFound);
    if (const auto fails = failReading_.find(Clean(path)); fails != failReading_.end())
        return FailureOf(fails->second);
    if (node->Folder) return Failure{Reason::Other, "Is a directory"};
    if ((node->Mode & ReadBit) == 0) return FailureOf(Reason::Denied);
    if (node->Bytes.size() > limit) return FailureOf(Reason::TooLarge);
    return node->Bytes;
}

Result<std::vector<std::string>> FakeFiles::List(const std::string& folder) const {
    Alive();
    Reads.push_back("list " + Short(folder));
    const Node* node = Find(folder);
    if (node == nullptr || !node->Folder) return FailureOf(Reason::NotFound);
    if (const auto fails = failReading_.find(Clean(folder)); fails != failReading_.end())
        return FailureOf(fails->second);
    if ((node->Mode & ReadBit) == 0) return FailureOf(Reason::Denied);
    return Names(folder);
}

// ---- changing

Status FakeFiles::Create(const std::string& path, std::string_view bytes) {
    const auto what = "create " + Short(path) + " " + std::to_string(bytes.size());
    if (auto failure = Begin()) return End(what, *failure);
    return End(what, DoCreate(path, bytes, 0600));
}

Status FakeFiles::Rename(const std::string& from, const std::string& to) {
    const auto what = "rename " + Short(from) + " -> " + Short(to);
    if (auto failure = Begin()) return End(what, *failure);
    return End(what, DoRename(Clean(from), Clean(to)));
}

Status FakeFiles::Remove(const std::string& path) {
    const auto what = "remove " + Short(path);
    if (auto failure = Begin()) return End(what, *failure);
    const Node* node = Find(path);
    if (node == nullptr) return End(what, FailureOf(Reason::NotFound));
    if (node->Folder) return End(what, Failure{Reason::Other, "Is a directory"});
    if (auto failure = ParentTrouble(path)) return End(what, *failure);
    tree_.erase(path);
    return End(what, {});
}

Status FakeFiles::MakeFolder(const std::string& path) {
    Alive();
    const auto folder = Clean(path);
    if (const Node* node = Find(folder)) return node->Folder ? Status() : Status(FailureOf(Reason::Exists));
    const Node* above = Find(ParentOf(folder));
    if (above != nullptr && !above->Folder) return Failure{Reason::NotFound, "Not a directory"};
    if (auto made = MakeFolder(ParentOf(folder)); !made) return made;
    const auto what = "mkdir " + Short(folder);
    if (auto failure = Begin()) return End(what, *failure);
    if (auto failure = ParentTrouble(folder)) return End(what, *failure);
    tree_[folder] = Node{true, {}, 0700, time_, true};
    return End(what, {});
}

Status FakeFiles::RemoveFolder(const std::string& path) {
    const auto folder = Clean(path);
    const auto what = "rmdir " + Short(folder);
    if (auto failure = Begin()) return End(what, *failure);
    const Node* node = Find(folder);
    if (node == nullptr || !node->Folder) return End(what, FailureOf(Reason::NotFound));
    if (HasChildren(folder)) return End(what, Failure{Reason::Other, "Directory not empty"});
    if (auto failure = ParentTrouble(folder)) return End(what, *failure);
    tree_.erase(folder);
    return End(what, {});
}

Status FakeFiles::Sync(const std::string& path) {
    const auto what = "sync " + Short(path);
    if (auto failure = Begin()) return End(what, *failure);
    const auto found = tree_.find(Clean(path));
    if (found == tree_.end()) return End(what, FailureOf(Reason::NotFound));
    found->second.Synced = true;
    return End(what, {});
}

Status FakeFiles::Copy(const std::string& from, const std::string& to) {
    const auto what = "copy " + Short(from) + " -> " + Short(to);
    if (auto failure = Begin()) return End(what, *failure);
    const Node* node = Find(from);
    if (node == nullptr) return End(what, FailureOf(Reason::NotFound));
    if (node->Folder) return End(what, Failure{Reason::Other, "Is a directory"});
    if ((node->Mode & ReadBit) == 0) return End(what, FailureOf(Reason::Denied));
    const Node source = *node;
    return End(what, DoCreate(to, source.Bytes, source.Mode));
}

Status FakeFiles::DoCreate(const std::string& path, std::string_view bytes, unsigned mode) {
    if (Find(path) != nullptr) return FailureOf(Reason::Exists);
    if (auto failure = ParentTrouble(path)) return *failure;
    if (auto failure = RoomTrouble(bytes.size())) return *failure;
    const auto kept = torn_ ? bytes.substr(0, bytes.size() / 2) : bytes;
    tree_[path] = Node{false, std::string(kept), mode, time_, false};
    return {};
}

Status FakeFiles::DoRename(const std::string& from, const std::string& to) {
    const Node* node = Find(from);
    if (node == nullptr) return FailureOf(Reason::NotFound);
    if (auto failure = ParentTrouble(from)) return *failure;
    if (auto failure = ParentTrouble(to)) return *failure;
    if (from == to) return {};
    if (StartsWith(to, Below(from))) return Failure{Reason::Other, "Invalid argument"};
    if (auto failure = Replaceable(*node, to)) return *failure;
    if (!node->Synced) LostSyncs.push_back(Short(from) + " -> " + Short(to));
    tree_.erase(to);
    Tree moved;
    for (auto& [path, entry] : tree_)
        if (path == from || StartsWith(path, Below(from))) moved[to + path.substr(from.size())] = entry;
    std::erase_if(tree_,
                  [&](const auto& row) { return row.first == from || StartsWith(row.first, Below(from)); });
    tree_.merge(moved);
    return {};
}

std::optional<Failure> FakeFiles::Replaceable(const Node& from, const std::string& to) const {
    const Node* old = Find(to);
    if (old == nullptr) return {};
    if (old->Folder && !from.Folder) return Failure{Reason::Other, "Is a directory"};
    if (!old->Folder && from.Folder) return Failure{Reason::NotFound, "Not a directory"};
    if (old->Folder && HasChildren(to)) return Failure{Reason::Other, "Directory not empty"};
    return {};
}

// ---- steps

void FakeFiles::Alive() const {
    if (dead_) throw ProcessDied{};
}

std::optional<Failure> FakeFiles::Begin() {
    Alive();
    ++steps_;
    ++time_;
    torn_ = tornAt_ && *tornAt_ == steps_;
    if (const auto fails = failAt_.find(steps_); fails != failAt_.end()) return FailureOf(fails->second);
    if (failFrom_ && steps_ >= *failFrom_) return FailureOf(failFromReason_);
    return {};
}

Status FakeFiles::End(const std::string& what, Status status) {
    Log.push_back(status ? what : what + " ! " + status.Error().Text);
    if (dieAfter_ && steps_ >= *dieAfter_) dead_ = true;
    if (torn_) {
        dead_ = true;
        throw ProcessDied{};
    }
    return status;
}

void FakeFiles::DieAfter(int n) {
    dieAfter_ = steps_ + n;
    dead_ = n == 0;
}
void FakeFiles::DieTornAt(int n) {
    tornAt_ = steps_ + n;
}
void FakeFiles::Revive() {
    dead_ = torn_ = false;
    dieAfter_.reset();
    tornAt_.reset();
}
void FakeFiles::FailMutation(int n, Reason reason) {
    failAt_[steps_ + n] = reason;
}
void FakeFiles::FailFrom(int n, Reason reason) {
    failFrom_ = steps_ + n;
    failFromReason_ = reason;
}
void FakeFiles::FailReading(const std::string& path, Reason reason) {
    failReading_[Clean(path)] = reason;
}
void FakeFiles::Space(std::uint64_t bytes) {
    limit_ = Used() + bytes;
}
// A stage that is set for what is not there would test nothing.
Node& FakeFiles::Standing(const std::string& path) {
    const auto found = tree_.find(Clean(path));
    if (found == tree_.end()) throw std::runtime_error("nothing stands at " + path);
    return found->second;
}
void FakeFiles::MakeReadOnly(const std::string& path) {
    Standing(path).Mode &= ~0222U;
}
void FakeFiles::MakeWritable(const std::string& path) {
    Standing(path).Mode |= WriteBit;
}
void FakeFiles::MakeUnreadable(const std::string& path) {
    Standing(path).Mode &= ~0444U;
}
void FakeFiles::Heal() {
    failAt_.clear();
    failReading_.clear();
    failFrom_.reset();
    limit_.reset();
}
void FakeFiles::CutPower() {
    for (auto& [path, node] : tree_)
        if (!node.Synced) node.Bytes.clear();
}

// ---- the tree

std::optional<Failure> FakeFiles::ParentTrouble(const std::string& path) const {
    const Node* parent = Find(ParentOf(path));
    if (parent == nullptr || !parent->Folder) return FailureOf(Reason::NotFound);
    if ((parent->Mode & WriteBit) == 0) return FailureOf(Reason::Denied);
    return {};
}

std::optional<Failure> FakeFiles::RoomTrouble(std::uint64_t bytes) const {
    if (limit_ && Used() + bytes > *limit_) return FailureOf(Reason::NoSpace);
    return {};
}

std::uint64_t FakeFiles::Used() const {
    std::uint64_t used = 0;
    for (const auto& [path, node] : tree_) used += node.Bytes.size();
    return used;
}

const Node* FakeFiles::Find(const std::string& path) const {
    const auto found = tree_.find(Clean(path));
    return found == tree_.end() ? nullptr : &found->second;
}

bool FakeFiles::HasChildren(const std::string& folder) const {
    const auto next = tree_.lower_bound(Below(folder) + '\x01');
    return next != tree_.end() && StartsWith(next->first, Below(folder));
}

std::string FakeFiles::Short(const std::string& path) const {
    return !LogRoot.empty() && StartsWith(path, LogRoot) ? path.substr(LogRoot.size()) : path;
}

// ---- the stage

void FakeFiles::Put(const std::string& path, std::string_view bytes, unsigned mode) {
    PutFolder(ParentOf(path));
    tree_[path] = Node{false, std::string(bytes), mode, time_, true};
}

void FakeFiles::PutFolder(const std::string& path, unsigned mode) {
    const auto folder = Clean(path);
    if (tree_.contains(folder)) return;
    PutFolder(ParentOf(folder));
    tree_[folder] = Node{true, {}, mode, time_, true};
}

void FakeFiles::Delete(const std::string& path) {
    const auto gone = Clean(path);
    std::erase_if(tree_,
                  [&](const auto& row) { return row.first == gone || StartsWith(row.first, Below(gone)); });
}

std::string FakeFiles::Get(const std::string& path) const {
    const Node* node = Find(path);
    return node == nullptr || node->Folder ? "(none)" : node->Bytes;
}

std::vector<std::string> FakeFiles::Names(const std::string& folder) const {
    std::vector<std::string> names;
    const auto start = Below(Clean(folder));
    for (auto row = tree_.lower_bound(start); row != tree_.end() && StartsWith(row->first, start); ++row) {
        const auto name = row->first.substr(start.size());
        if (!name.empty() && name.find('/') == std::string::npos) names.push_back(name);
    }
    return names;
}

std::string FakeFiles::Dump(const std::string& folder) const {
    std::string text;
    const auto start = Below(Clean(folder));
    for (const auto& [path, node] : tree_) {
        if (!StartsWith(path, start) || path == start) continue;
        text += "== " + path.substr(start.size()) + (node.Folder ? "/" : "") + "\n";
        if (!node.Folder) text += node.Bytes + (node.Bytes.ends_with('\n') ? "" : "\n");
    }
    return text;
}

} // namespace quill::fake
