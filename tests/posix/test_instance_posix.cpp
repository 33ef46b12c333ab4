#include "posix/instance_posix.h"
#include "posix/temp_folder.h"
#include "posix/variable_guard.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>

namespace quill {
namespace {

constexpr int Patient = 20'000; // milliseconds; never waited for when all is well
constexpr int Brief = 40;       // where the answer is known not to come
constexpr int ClaimFailed = 99;

std::string NameOf(const Result<Claim>& claim) {
    if (!claim) return "failed: " + claim.Error().Text;
    static constexpr const char* Names[] = {"First", "Called", "NoAnswer"};
    return Names[static_cast<int>(claim.Value())];
}

// Another process that starts, claims or calls, and ends.
class SecondStart {
public:
    SecondStart(const InstanceOptions& options, Summons word) : pid_(::fork()) {
        if (pid_ != 0) return;
        ::close_range(STDERR_FILENO + 1, ~0U,
                      0); // it is no child of the first copy and has none of its files
        InstancePosix second(options);
        const auto claim = second.ClaimOrCall(word);
        ::_exit(claim ? static_cast<int>(claim.Value()) : ClaimFailed);
    }
    std::string Ended() const {
        int status = 0;
        ::waitpid(pid_, &status, 0);
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : ClaimFailed;
        return code == ClaimFailed ? "failed" : NameOf(static_cast<Claim>(code));
    }

private:
    pid_t pid_;
};

// Another process that holds the claim until it is killed.
class RunningCopy {
public:
    explicit RunningCopy(const InstanceOptions& options) {
        int ends[2];
        if (::pipe(ends) != 0) std::abort();
        pid_ = ::fork();
        if (pid_ == 0) {
            InstancePosix first(options);
            const char said = NameOf(first.ClaimOrCall(Summons::Show))[0];
            if (::write(ends[1], &said, 1) == 1) ::pause();
            ::_exit(0);
        }
        if (::read(ends[0], &claim_, 1) != 1) std::abort();
        ::close(ends[0]);
        ::close(ends[1]);
    }
    ~RunningCopy() { Kill(); }
    bool IsFirst() const { return claim_ == 'F'; }
    void Kill() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        pid_ = 0;
    }

private:
    pid_t pid_ = 0;
    char claim_ = 0;
};

// A process of this user that connects and does not keep to the rules.
class OddCaller {
public:
    explicit OddCaller(const std::string& path) : socket_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        std::strncpy(name.sun_path, path.c_str(), sizeof name.sun_path - 1);
        if (::connect(socket_.Get(), reinterpret_cast<sockaddr*>(&name), sizeof name) != 0) std::abort();
    }
    void Say(const std::string& text) const { ::send(socket_.Get(), text.data(), text.size(), MSG_NOSIGNAL); }
    // What came back before the line was closed.
    std::string Heard() const {
        char bytes[16];
        const auto got = ::recv(socket_.Get(), bytes, sizeof bytes, 0);
        return got > 0 ? std::string(bytes, static_cast<std::size_t>(got)) : "closed";
    }
    void HangUp() { socket_.Close(); }

private:
    Descriptor socket_;
};

class InstanceTest : public testing::Test {
protected:
    InstanceOptions Options(int milliseconds = Patient, const std::string& token = "") const {
        return {folder.At("run"), token, milliseconds};
    }
    // Waits as the event loop does.
    static std::optional<Call> NextCall(InstancePosix& instance) {
        for (;;) {
            pollfd watched{instance.ListeningFd(), POLLIN, 0};
            if (::poll(&watched, 1, Patient) != 1) return {};
            if (auto call = instance.TakeCall()) return call;
        }
    }
    TempFolder folder;
};

TEST_F(InstanceTest, TheFirstCopyIsTheOne) {
    InstancePosix first(Options());
    EXPECT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    EXPECT_NE(first.ListeningFd(), -1);
    EXPECT_FALSE(first.TakeCall());
}

TEST_F(InstanceTest, ASecondStartIsHeardWithItsWordAndEnds) {
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    for (const Summons word : {Summons::Show, Summons::Toggle}) {
        const SecondStart second(Options(), word);
        const auto call = NextCall(first);
        ASSERT_TRUE(call);
        EXPECT_EQ(call->Word, word);
        EXPECT_EQ(call->ActivationToken, "");
        EXPECT_EQ(second.Ended(), "Called");
    }
}

TEST_F(InstanceTest, TheTokenForComingToTheFrontGoesAlong) {
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    const SecondStart second(Options(Patient, "panel-17_TIME42"), Summons::Show);
    const auto call = NextCall(first);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->ActivationToken, "panel-17_TIME42");
    EXPECT_EQ(second.Ended(), "Called");
}

TEST_F(InstanceTest, AFirstCopyThatHangsGivesNoAnswer) {
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    const SecondStart second(Options(Brief), Summons::Show);
    EXPECT_EQ(second.Ended(), "NoAnswer");
}

TEST_F(InstanceTest, AKilledFirstCopyLeavesTheWayFree) {
    RunningCopy killed(Options());
    ASSERT_TRUE(killed.IsFirst());
    killed.Kill();
    EXPECT_TRUE(std::filesystem::exists(folder.At("run/socket")));
    InstancePosix next(Options());
    EXPECT_EQ(NameOf(next.ClaimOrCall(Summons::Show)), "First");
    const SecondStart second(Options(), Summons::Show);
    EXPECT_TRUE(NextCall(next));
    EXPECT_EQ(second.Ended(), "Called");
}

TEST_F(InstanceTest, AnOrderlyEndLeavesTheWayFree) {
    {
        InstancePosix first(Options());
        ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    }
    EXPECT_FALSE(std::filesystem::exists(folder.At("run/socket")));
    const SecondStart next(Options(), Summons::Show);
    EXPECT_EQ(next.Ended(), "First");
}

TEST_F(InstanceTest, ACopyThatEndsWhileItIsCalledHandsOver) {
    auto first = std::make_unique<InstancePosix>(Options());
    ASSERT_EQ(NameOf(first->ClaimOrCall(Summons::Show)), "First");
    const SecondStart second(Options(), Summons::Show);
    pollfd watched{first->ListeningFd(), POLLIN, 0};
    ASSERT_EQ(::poll(&watched, 1, Patient), 1); // it has connected
    first.reset();
    EXPECT_EQ(second.Ended(), "First");
}

TEST_F(InstanceTest, ACopyThatIsLockedButNotListeningIsWaitedFor) {
    ASSERT_EQ(::mkdir(folder.At("run").c_str(), 0700), 0);
    Descriptor lock(::open(folder.At("run/lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    ASSERT_EQ(::flock(lock.Get(), LOCK_EX), 0);
    const SecondStart brief(Options(Brief), Summons::Show);
    EXPECT_EQ(brief.Ended(), "NoAnswer");
    const SecondStart patient(Options(), Summons::Show);
    lock.Close();
    EXPECT_EQ(patient.Ended(), "First");
}

TEST_F(InstanceTest, ACallerThatSaysNothingHoldsNobodyUp) {
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    const OddCaller silent(folder.At("run/socket"));
    EXPECT_FALSE(first.TakeCall());
    const SecondStart second(Options(), Summons::Toggle);
    const auto call = NextCall(first);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->Word, Summons::Toggle);
    EXPECT_EQ(second.Ended(), "Called");
}

TEST_F(InstanceTest, AWordInPiecesIsPutTogether) {
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    const OddCaller slow(folder.At("run/socket"));
    slow.Say("tog");
    EXPECT_FALSE(first.TakeCall());
    slow.Say("gle\n");
    const auto call = NextCall(first);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->Word, Summons::Toggle);
    EXPECT_EQ(slow.Heard(), "!");
}

TEST_F(InstanceTest, NonsenseIsDroppedUnanswered) {
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    for (const auto& text : {std::string("hello\n"), std::string("\n"), std::string(100'000, 'x')}) {
        const OddCaller caller(folder.At("run/socket"));
        caller.Say(text);
        EXPECT_FALSE(first.TakeCall());
        EXPECT_EQ(caller.Heard(), "closed");
    }
    OddCaller gone(folder.At("run/socket"));
    gone.Say("sho");
    gone.HangUp();
    EXPECT_FALSE(first.TakeCall());
}

TEST_F(InstanceTest, ManySilentCallersDoNotPileUp) {
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    std::vector<std::unique_ptr<OddCaller>> callers;
    for (int count = 0; count < 20; ++count) {
        callers.push_back(std::make_unique<OddCaller>(folder.At("run/socket")));
        EXPECT_FALSE(first.TakeCall());
    }
    EXPECT_EQ(callers.front()->Heard(), "closed");
    callers.back()->Say("show\n");
    EXPECT_TRUE(NextCall(first));
}

TEST_F(InstanceTest, OnlyThisUserReachesTheSocket) {
    ASSERT_EQ(::mkdir(folder.At("run").c_str(), 0700), 0);
    ASSERT_EQ(::chmod(folder.At("run").c_str(), 0777), 0);
    InstancePosix first(Options());
    ASSERT_EQ(NameOf(first.ClaimOrCall(Summons::Show)), "First");
    struct stat info {};
    ASSERT_EQ(::stat(folder.At("run").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700U);
    ASSERT_EQ(::stat(folder.At("run/socket").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600U);
}

TEST_F(InstanceTest, AFolderOfAnotherUsersIsRefused) {
    auto options = Options();
    if (::geteuid() == 0) {
        ASSERT_EQ(::mkdir(options.Folder.c_str(), 0777), 0);
        ASSERT_EQ(::chown(options.Folder.c_str(), 65534, 65534), 0);
    } else {
        options.Folder = "/usr";
    }
    InstancePosix first(options);
    EXPECT_EQ(NameOf(first.ClaimOrCall(Summons::Show)),
              "failed: " + options.Folder + ": not a folder of this user");
    EXPECT_EQ(first.ListeningFd(), -1);
}

TEST_F(InstanceTest, ALinkOrAFileInPlaceOfTheFolderIsRefused) {
    ASSERT_EQ(::symlink(folder.Path.c_str(), folder.At("run").c_str()), 0);
    InstancePosix linked(Options());
    EXPECT_FALSE(linked.ClaimOrCall(Summons::Show));
    ASSERT_EQ(::unlink(folder.At("run").c_str()), 0);
    const Descriptor file(::open(folder.At("run").c_str(), O_CREAT | O_WRONLY, 0600));
    InstancePosix blocked(Options());
    EXPECT_FALSE(blocked.ClaimOrCall(Summons::Show));
}

TEST_F(InstanceTest, AMissingPlaceForTheFolderSaysWhich) {
    InstancePosix first({folder.At("none/run"), "", Patient});
    EXPECT_EQ(NameOf(first.ClaimOrCall(Summons::Show)),
              "failed: " + folder.At("none/run") + ": No such file or directory");
}

TEST_F(InstanceTest, TheReloaderSeesWhetherACopyRuns) {
    EXPECT_TRUE(WaitUntilNoCopyRuns(Options(), 0));
    RunningCopy copy(Options());
    EXPECT_FALSE(WaitUntilNoCopyRuns(Options(), 0));
    copy.Kill();
    EXPECT_TRUE(WaitUntilNoCopyRuns(Options(), Patient));
}

TEST_F(InstanceTest, TheFolderIsTheSessionsOrAPrivateTemporaryOne) {
    const auto temporary = "/tmp/quillmere-" + std::to_string(::geteuid());
    const std::string tooLong = "/tmp/" + std::string(150, 'x');
    const std::pair<const char*, std::string> rows[] = {
        {folder.Path.c_str(), folder.At("quillmere")},
        {nullptr, temporary},
        {"", temporary},
        {"relative", temporary},
        {"/nowhere/at/all", temporary},
        {tooLong.c_str(), temporary},
    };
    for (const auto& [value, expected] : rows) {
        const VariableGuard runtime("XDG_RUNTIME_DIR", value);
        EXPECT_EQ(InstanceOptionsOfSystem().Folder, expected) << (value != nullptr ? value : "unset");
    }
}

TEST_F(InstanceTest, ATokenThatIsNoPlainWordIsLeftOut) {
    const VariableGuard startup("DESKTOP_STARTUP_ID", nullptr);
    for (const char* value : {"two words", "line\nshow", "\xC3\xBC", ""}) {
        const VariableGuard token("XDG_ACTIVATION_TOKEN", value);
        EXPECT_EQ(InstanceOptionsOfSystem().ActivationToken, "");
    }
    const VariableGuard older("DESKTOP_STARTUP_ID", "older");
    const VariableGuard none("XDG_ACTIVATION_TOKEN", nullptr);
    EXPECT_EQ(InstanceOptionsOfSystem().ActivationToken, "older");
    const VariableGuard token("XDG_ACTIVATION_TOKEN", "newer");
    EXPECT_EQ(InstanceOptionsOfSystem().ActivationToken, "newer");
}

} // namespace
} // namespace quill
