#include <gtest/gtest.h>
#include <string>

#include "app/LinuxDesk.h"
#include "app/NoDesktop.h"
#include "runtime/RealScheduler.h"
#include "support/ChildProcess.h"
#include "support/RecordingLogSink.h"
#include "support/TemporaryFolder.h"

namespace vantrel::app {
namespace {

// In a process of its own, whose environment may change: without a desktop and a bus, and with
// a folder for the session, if one is told.
template <class Body>
std::string onADesk(const std::string& folder, Body body) {
    test::ChildProcess child([&](const test::ChildProcess::Report& report) {
        test::leaveDesktop(folder);
        runtime::RealScheduler scheduler;
        runtime::MainLoop loop(scheduler);
        LinuxDesk desk(scheduler, loop, true);
        report(body(desk));
    });
    std::string said = child.rest();
    EXPECT_EQ(child.wait(), 0);
    return said;
}

TEST(LinuxDesk, DoesWithoutADesktopAndABus) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(onADesk(folder.path(),
                      [](LinuxDesk& desk) {
                          return desk.desktop().name() + (desk.desktop().canSwitch() ? " switches" : "") +
                                 (desk.session().isLidClosed() ? " closed" : "");
                      }),
              "this session");
}

TEST(LinuxDesk, RemembersInTheSessionsFolder) {
    const test::TemporaryFolder folder;
    const auto note = [](LinuxDesk& desk) {
        test::RecordingLogSink log;
        desk.memory(log).noteDarkened("DP-1", "as it was");
        return std::string("noted");
    };
    const auto read = [](LinuxDesk& desk) {
        test::RecordingLogSink log;
        const auto notes = desk.memory(log).darkened();
        return notes.empty() ? std::string("nothing") : notes.begin()->first + " " + notes.begin()->second;
    };
    EXPECT_EQ(onADesk(folder.path(), read), "nothing");
    EXPECT_EQ(onADesk(folder.path(), note), "noted");
    EXPECT_EQ(onADesk(folder.path(), read), "DP-1 as it was");
    EXPECT_TRUE(folder.bytes("vantrel/settings.json"));
    const test::TemporaryFolder other;
    EXPECT_EQ(onADesk(other.path(), read), "nothing");
}

TEST(LinuxDesk, RemembersNothingWithoutAFolder) {
    EXPECT_EQ(onADesk("",
                      [](LinuxDesk& desk) {
                          test::RecordingLogSink log;
                          auto memory = desk.memory(log);
                          memory.noteDarkened("DP-1", "as it was");
                          return memory.darkened().empty() ? std::string("nothing") : "something";
                      }),
              "nothing");
}

TEST(LinuxDesk, HasAFileForTheGuardOfItsDesktop) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(onADesk(folder.path(), [](LinuxDesk& desk) { return desk.guardFile(); }),
              folder.path("vantrel/guard-none.lock"));
}

}  // namespace
}  // namespace vantrel::app
