#include <chrono>
#include <cstddef>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/linux/GuardProcess.h"
#include "support/TemporaryFolder.h"

namespace vantrel::linux {
namespace {

// What takes long on a busy computer must not fail here.
constexpr std::chrono::hours forever{1};

bool post(const std::string& script, std::chrono::milliseconds patience = forever) {
    return GuardProcess({"/bin/sh", "-c", script}, patience).post();
}

TEST(GuardProcess, IsOnGuardOnceItSaysSo) { EXPECT_TRUE(post("echo on guard")); }

TEST(GuardProcess, MayTakeItsTime) { EXPECT_TRUE(post("printf 'on '; printf 'gu'; printf 'ard\\n'")); }

TEST(GuardProcess, IsNoneThatSaysSomethingElse) {
    EXPECT_FALSE(post("echo off guard"));
    EXPECT_FALSE(post("echo on guards"));
    EXPECT_FALSE(post("echo ' on guard'"));
    EXPECT_FALSE(post("echo; echo on guard"));
}

TEST(GuardProcess, IsNoneThatSaysTooLittle) {
    EXPECT_FALSE(post("printf 'on guard'"));
    EXPECT_FALSE(post("printf 'on'"));
}

TEST(GuardProcess, IsNoneThatEndsWithoutAWord) {
    EXPECT_FALSE(post("exit 0"));
    EXPECT_FALSE(post("exit 1"));
    EXPECT_FALSE(post("kill -9 $$"));
}

TEST(GuardProcess, IsNoneThatComplainsOnly) { EXPECT_FALSE(post("echo on guard >&2")); }

// However long it stays.
TEST(GuardProcess, IsNoneThatSaysNothingForTooLong) {
    EXPECT_FALSE(post("read forever </dev/tty || while true; do wait; done", std::chrono::milliseconds(1)));
}

TEST(GuardProcess, IsNoneThatIsNotThere) {
    EXPECT_FALSE(GuardProcess({"/nowhere/vantrel", "--guard"}).post());
    EXPECT_FALSE(GuardProcess({"/"}).post());
}

TEST(GuardProcess, GetsItsArguments) {
    EXPECT_TRUE(GuardProcess({"/bin/sh", "-c", "echo \"$1 $2\"", "name", "on", "guard"}, forever).post());
}

// As the guard does it: the process that was started ends, and the one it left behind stays.
TEST(GuardProcess, LeavesItBehind) {
    const test::TemporaryFolder folder;
    const std::string fifo = folder.path("fifo");
    const std::string script = "mkfifo " + fifo + "; (echo on guard; exec >&-; read word <" + fifo +
                               "; echo \"$word\" >" + folder.path("done") + "; echo >" + fifo + ") & exit 0";
    EXPECT_TRUE(post(script));
    // It is still there to hear this, and answers.
    EXPECT_TRUE(post("echo relieved >" + fifo + "; read answer <" + fifo + "; echo on guard"));
    EXPECT_EQ(folder.bytes("done"), "relieved\n");
}

TEST(GuardProcess, MayBePostedAgainAndAgain) {
    GuardProcess guard({"/bin/sh", "-c", "echo on guard"}, forever);
    for (int time = 0; time < 5; ++time) EXPECT_TRUE(guard.post());
}

// It keeps none of the program's own files open, which others may be waiting for the end of.
TEST(GuardProcess, LeavesNoEndOfItsPipeBehind) {
    const auto descriptors = [] {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
            ++count;
        return count;
    };
    const std::size_t before = descriptors();
    EXPECT_TRUE(post("echo on guard"));
    EXPECT_FALSE(post("exit 0"));
    EXPECT_FALSE(GuardProcess({"/nowhere"}).post());
    EXPECT_EQ(descriptors(), before);
}

}  // namespace
}  // namespace vantrel::linux
