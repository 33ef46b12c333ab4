#include "fake/shell.h"

#include <algorithm>

namespace quill::fake {

namespace {

bool BeginsWithOne(const std::string& path, const std::vector<std::string>& starts) {
    return std::any_of(starts.begin(), starts.end(),
                       [&](const std::string& start) { return path.starts_with(start); });
}

} // namespace

std::string Words(const LaunchRequest& request) {
    std::string text = request.Command ? "command" : request.Verb.empty() ? "start" : request.Verb;
    if (!request.File.empty()) text += " " + request.File;
    if (!request.Parameters.empty()) text += " " + request.Parameters;
    for (const auto& argument : request.Arguments) text += " [" + argument + "]";
    if (!request.Directory.empty()) text += " in " + request.Directory;
    if (request.Show != 1) text += " show " + std::to_string(request.Show);
    return text;
}

Status FakeShell::ShellExecute(const LaunchRequest& request) {
    Launches.push_back(request);
    if (OnLaunch) OnLaunch(request);
    const auto known = failuresFor_.find(request.File);
    return known == failuresFor_.end() ? NextFailure() : Status(known->second);
}

Status FakeShell::StartProgram(const std::string& path, const std::vector<std::string>& arguments) {
    Programs.push_back({path, arguments});
    return NextFailure();
}

Status FakeShell::MoveToTrash(const std::string& path) {
    if (!failures_.empty()) return NextFailure();
    if (!files_.Has(path)) return Failure{Reason::NotFound, "No such file or directory"};
    files_.Delete(path);
    Trashed.push_back(path);
    return {};
}

Status FakeShell::NextFailure() {
    if (failures_.empty()) return {};
    Status status = failures_.front();
    failures_.pop_front();
    return status;
}

bool FakeShell::PathIsNetworkPath(const std::string& path) const {
    return BeginsWithOne(path, NetworkPaths);
}

void FakeShell::PathFileExists(const std::string& path, int timeout, std::function<void(bool)> handler) {
    const int id = ++nextId_;
    Asked.push_back(path);
    waiting_.push_back({id, path, std::move(handler)});
    if (BeginsWithOne(path, SilentPaths))
        clock_.After(timeout, [this, id] { Finish(id, false); });
    else
        clock_.After(0, [this, id, path] { Finish(id, files_.Has(path)); });
}

void FakeShell::Answer(const std::string& path, bool exists) {
    std::vector<int> asked;
    for (const auto& question : waiting_)
        if (question.Path == path) asked.push_back(question.Id);
    for (const int id : asked) Finish(id, exists);
}

void FakeShell::Finish(int id, bool exists) {
    const auto found = std::find_if(waiting_.begin(), waiting_.end(),
                                    [id](const Question& question) { return question.Id == id; });
    if (found == waiting_.end()) return;
    const auto handler = std::move(found->Handler);
    waiting_.erase(found);
    handler(exists);
}

std::string FakeShell::LastLaunch() const {
    return Launches.empty() ? "(none)" : Words(Launches.back());
}

} // namespace quill::fake
