#include <gtest/gtest.h>
#include <string>

#include "app/Computers.h"
#include "app/NoDesktop.h"
#include "app/ThisComputer.h"
#include "runtime/RealScheduler.h"
#include "support/ChildProcess.h"

namespace vantrel::app {
namespace {

TEST(LinuxComputer, IsTheOneThatIsMeantWithoutADesk) {
    test::ChildProcess child([](const test::ChildProcess::Report& report) {
        test::leaveDesktop();
        runtime::RealScheduler scheduler;
        runtime::MainLoop loop(scheduler);
        const auto computer = Computers::make({}, std::nullopt, Computers::Settings::kept, scheduler, loop);
        // A simulated one has no system to log to.
        report(computer->systemLog() != nullptr ? "with a system's log" : "simulated");
    });
    EXPECT_EQ(child.rest(), "with a system's log");
    EXPECT_EQ(child.wait(), 0);
}

TEST(LinuxComputer, IsKnownToTheProgram) { EXPECT_TRUE(ThisComputer::isKnown()); }

}  // namespace
}  // namespace vantrel::app
