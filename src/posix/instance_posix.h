// The one running copy: a lock file that a death frees, and a socket that only this user reaches. The first
// copy holds the lock and listens; a second one connects, says its word and waits until it has been taken.
//
// The socket is named in a folder of our own: in $XDG_RUNTIME_DIR, or, without one, in the temporary
// folder, private and with its owner checked. A socket left by a dead copy is removed only by who holds the
// lock.
#pragma once

#include "platform/instance.h"
#include "posix/descriptor.h"

#include <optional>
#include <string>
#include <vector>

namespace quill {

struct InstanceOptions {
    std::string Folder;            // of lock and socket; made when it is missing
    std::string ActivationToken;   // lets the first copy come to the front; empty: none
    int AnswerMilliseconds = 2000; // how long the first copy may take
};

InstanceOptions InstanceOptionsOfSystem();

// What a second start said.
struct Call {
    Summons Word = Summons::Show;
    std::string ActivationToken; // empty: none
};

class InstancePosix : public Instance {
public:
    explicit InstancePosix(InstanceOptions options) : options_(std::move(options)) {}
    ~InstancePosix() override; // the claim ends here too

    Result<Claim> ClaimOrCall(Summons word) override;

    // Becomes readable when there is something for TakeCall; -1 when this copy is not the first. To be
    // watched by the event loop.
    int ListeningFd() const { return events_.Get(); }
    // The next word that has come, and tells its sender so. Never waits: a caller that says nothing is kept
    // aside. To be called until it is empty.
    std::optional<Call> TakeCall();

private:
    struct Caller {
        Descriptor Socket;
        std::string Said;
    };
    enum class Outcome { Nobody, Taken, Gone, Silent }; // of calling the first copy

    std::string LockPath() const { return options_.Folder + "/lock"; }
    std::string SocketPath() const { return options_.Folder + "/socket"; }
    Outcome CallFirst(Summons word, std::int64_t until) const;
    Result<bool> TakeLock(); // false: another copy holds it
    Status Listen();
    Status WatchCallers();
    void AcceptCallers();
    std::optional<Call> Hear(Caller& caller);
    bool Watch(int fd) const;

    InstanceOptions options_;
    Descriptor lock_, listener_, events_;
    std::vector<Caller> callers_;
};

// Waits until no copy runs; false when one still does after so many milliseconds.
bool WaitUntilNoCopyRuns(const InstanceOptions& options, int milliseconds);

} // namespace quill
