// The fake computer's shell: starts nothing, writes down what it was asked to start, and answers late or
// never where a path lies on a dead share.
#pragma once

#include "fake/clock.h"
#include "fake/files.h"
#include "platform/shell.h"

#include <deque>

namespace quill::fake {

struct StartedProgram {
    std::string Path;
    std::vector<std::string> Arguments;
};

class FakeShell : public Shell {
public:
    FakeShell(FakeFiles& files, FakeClock& clock) : files_(files), clock_(clock) {}

    Status ShellExecute(const LaunchRequest& request) override;
    Status StartProgram(const std::string& path, const std::vector<std::string>& arguments) override;
    void ShowInFolder(const std::string& path) override { Shown.push_back(path); }
    Status ShowFileProperties(const std::string& path) override {
        PropertiesShown.push_back(path);
        return NextFailure();
    }
    Status MoveToTrash(const std::string& path) override;
    bool PathIsNetworkPath(const std::string& path) const override;
    void PathFileExists(const std::string& path, int timeout, std::function<void(bool)> handler) override;

    void FailNext(Failure failure) {
        failures_.push_back(std::move(failure));
    } // ShellExecute or StartProgram
    void FailFor(const std::string& file, Failure failure) { failuresFor_[file] = std::move(failure); }
    // Run while ShellExecute is under way: the world may change meanwhile.
    std::function<void(const LaunchRequest&)> OnLaunch;

    std::vector<std::string> NetworkPaths{"smb:", "sftp:"}; // beginnings of remote paths
    std::vector<std::string> SilentPaths;                   // beginnings of paths that answer only to Answer
    // Answers every open question about a path. Unanswered ones are "no" at their timeout by the clock.
    void Answer(const std::string& path, bool exists);
    std::size_t Waiting() const { return waiting_.size(); }

    std::vector<LaunchRequest> Launches; // failed ones too
    std::vector<StartedProgram> Programs;
    std::vector<std::string> Shown;
    std::vector<std::string> PropertiesShown;
    std::vector<std::string> Trashed; // with success
    std::vector<std::string> Asked;   // paths of PathFileExists
    std::string LastLaunch() const;   // "open /usr/bin/editor --new", or "(none)"

private:
    struct Question {
        int Id = 0;
        std::string Path;
        std::function<void(bool)> Handler;
    };
    Status NextFailure();
    void Finish(int id, bool exists);

    FakeFiles& files_;
    FakeClock& clock_;
    std::deque<Failure> failures_;
    std::map<std::string, Failure> failuresFor_;
    std::vector<Question> waiting_;
    int nextId_ = 0;
};

std::string Words(const LaunchRequest& request);

} // namespace quill::fake
