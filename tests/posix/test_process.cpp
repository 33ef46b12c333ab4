#include "posix/descriptor.h"
#include "posix/process.h"
#include "posix/temp_folder.h"
#include "posix/variable_guard.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>

namespace quill {
namespace {

class ProcessTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(::mkfifo(folder.At("out").c_str(), 0600), 0); }

    // Starts a script that writes into "$OUT", and waits for what it wrote.
    std::string Run(const std::string& script, std::vector<std::string> arguments = {},
                    const std::string& directory = "") {
        ProcessStart start{"/bin/sh", {"-c", "{ " + script + " ; } > \"$OUT\"", "sh"}, directory};
        start.Arguments.insert(start.Arguments.end(), arguments.begin(), arguments.end());
        start.Environment = {{"OUT", folder.At("out")}, {"GREETING", "good day"}, {"GONE", ""}};
        const auto started = StartDetached(start);
        if (!started) return "failed: " + started.Error().Text;
        return ReadOut(); // opens when the script opens it
    }
    std::string ReadOut() const {
        std::ifstream stream(folder.At("out"));
        std::stringstream text;
        text << stream.rdbuf();
        return text.str();
    }
    static std::string Failed(const ProcessStart& start) {
        const auto started = StartDetached(start);
        return started ? "started" : started.Error().Text;
    }
    void Write(const std::string& name, const std::string& text, mode_t mode) const {
        std::ofstream(folder.At(name)) << text;
        ::chmod(folder.At(name).c_str(), mode);
    }
    TempFolder folder;
};

TEST_F(ProcessTest, ArgumentsArriveAsTheyAre) {
    EXPECT_EQ(Run("printf '%s|' \"$@\"", {"a", "b c", "", "$(id) `id` *", "\"'\\", "ü"}),
              "a|b c||$(id) `id` *|\"'\\|ü|");
}

TEST_F(ProcessTest, ItStartsInItsFolder) {
    EXPECT_EQ(Run("pwd", {}, folder.Path), folder.Path + "\n");
}

TEST_F(ProcessTest, TheEnvironmentIsOursWithTheChanges) {
    const VariableGuard kept("QUILL_KEPT", "kept");
    const VariableGuard greeting("GREETING", "old");
    const VariableGuard gone("GONE", "still here");
    EXPECT_EQ(Run("echo $QUILL_KEPT, $GREETING, ${GONE-unset}"), "kept, good day, unset\n");
}

TEST_F(ProcessTest, ItsNumberIsTold) {
    ProcessStart start{"/bin/sh", {"-c", "echo $$ > \"$OUT\""}, ""};
    start.Environment = {{"OUT", folder.At("out")}};
    const auto started = StartDetached(start);
    ASSERT_TRUE(started);
    EXPECT_EQ(ReadOut(), std::to_string(started.Value()) + "\n");
}

TEST_F(ProcessTest, ItLivesInASessionOfItsOwnAndIsNoChildOfOurs) {
    std::istringstream text(Run("cut -d ' ' -f 4,6 /proc/$$/stat"));
    pid_t parent = 0, session = 0;
    ASSERT_TRUE(text >> parent >> session);
    EXPECT_NE(parent, ::getpid());
    EXPECT_NE(session, ::getsid(0));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(ProcessTest, NoneOfOurFilesStaysOpenInIt) {
    const Descriptor open(::open("/dev/null", O_RDONLY)); // without close-on-exec
    const Descriptor high(::fcntl(open.Get(), F_DUPFD, 50));
    EXPECT_EQ(Run("test -e /proc/$$/fd/" + std::to_string(high.Get()) + " && echo open || echo closed"),
              "closed\n");
    EXPECT_EQ(Run("readlink /proc/$$/fd/0"), "/dev/null\n");
}

TEST_F(ProcessTest, ItsSignalsAreAsAfterALogin) {
    ::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(Run("grep -E 'SigIgn|SigBlk' /proc/self/status | tr -d '[:space:]'"),
              "SigBlk:0000000000000000SigIgn:0000000000000000");
    ::signal(SIGPIPE, SIG_DFL);
}

TEST_F(ProcessTest, AFailedStartGivesTheSystemsWords) {
    Write("plain", "text", 0600);
    Write("nonsense", "no program", 0700);
    Write("orphan", "#!/nowhere/interpreter\n", 0700);
    struct Row {
        const char* Name;
        ProcessStart Start;
        std::string Text;
    };
    const Row rows[] = {
        {"missing", {folder.At("none"), {}, ""}, "No such file or directory"},
        {"not in PATH", {"quill-no-such-program", {}, ""}, "No such file or directory"},
        {"empty", {"", {}, ""}, "No such file or directory"},
        {"not executable", {folder.At("plain"), {}, ""}, "Permission denied"},
        {"a folder", {folder.Path, {}, ""}, "Permission denied"},
        {"not a program", {folder.At("nonsense"), {}, ""}, "Exec format error"},
        {"no interpreter", {folder.At("orphan"), {}, ""}, "No such file or directory"},
        {"no start folder",
         {"/bin/true", {}, folder.At("none")},
         folder.At("none") + ": No such file or directory"},
    };
    for (const auto& row : rows) EXPECT_EQ(Failed(row.Start), row.Text) << row.Name;
}

TEST_F(ProcessTest, AProgramIsFoundByItsNameInThePathOnly) {
    ASSERT_EQ(::symlink("/bin/true", folder.At("tool").c_str()), 0);
    Write("text", "", 0600);
    ASSERT_EQ(::mkdir(folder.At("folder").c_str(), 0700), 0);
    const VariableGuard path("PATH", ("/nowhere::" + folder.Path).c_str());
    EXPECT_EQ(FindProgram("tool"), folder.At("tool"));
    EXPECT_EQ(Failed({"tool", {}, ""}), "started");
    for (const char* name : {"text", "folder", "none", ""}) EXPECT_EQ(FindProgram(name), "") << name;
}

} // namespace
} // namespace quill
