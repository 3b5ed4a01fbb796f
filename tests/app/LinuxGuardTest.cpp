// The guard where there is no desktop to guard: what it does on one is what GuardDuty's and
// OutputSwitch's tests show.
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

#include "app/LinuxGuard.h"
#include "app/NoDesktop.h"
#include "platform/linux/GuardProcess.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace vantrel::app {
namespace {

class LinuxGuardTest : public testing::Test {
  protected:
    LinuxGuardTest() { std::filesystem::create_directory(folder.path("vantrel")); }

    // What a guard says until it has let go of its output.
    std::string guardSays() const {
        test::ChildProcess child([&](const test::ChildProcess::Report& report) {
            test::leaveDesktop(folder.path());
            report.becomeStandardOutput();
            ::_exit(LinuxGuard::run());
        });
        std::string said = child.rest();
        EXPECT_EQ(child.wait(), 0);
        return said;
    }

    const test::TemporaryFolder folder;
};

TEST_F(LinuxGuardTest, GoesWithoutAWordWhereNothingIsTurnedOff) { EXPECT_EQ(guardSays(), ""); }

TEST_F(LinuxGuardTest, SaysSoWhereSomebodyIsOnGuard) {
    const int post =
        ::open(folder.path("vantrel/guard-none.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(post, 0);
    ASSERT_EQ(::flock(post, LOCK_EX | LOCK_NB), 0);
    EXPECT_EQ(guardSays(), linux::GuardProcess::onGuard);
    ::flock(post, LOCK_UN);
    EXPECT_EQ(guardSays(), "");
    ::close(post);
}

TEST_F(LinuxGuardTest, TakesNoPostWithoutAFolder) {
    std::filesystem::remove_all(folder.path("vantrel"));
    EXPECT_EQ(guardSays(), "");
}

}  // namespace
}  // namespace vantrel::app
