#include <gtest/gtest.h>

#include "app/ThisComputer.h"
#include "macos/fake/FakeMac.h"
#include "platform/Log.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"
#include "support/TestDesks.h"

namespace vantrel::app {
namespace {

class MacComputerTest : public testing::Test {
  protected:
    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    simulated::SimulatedPlatform desk{test::usualDesk(), time, loop};
    macos::fake::FakeMac fake{desk, time};
    test::RecordingLogSink log;
};

TEST_F(MacComputerTest, IsKnown) {
    EXPECT_TRUE(ThisComputer::isKnown());
    EXPECT_NE(ThisComputer::make(time, loop), nullptr);
}

TEST_F(MacComputerTest, HasTheDisplaysOfItsDesk) {
    const auto computer = ThisComputer::make(time, loop);
    EXPECT_EQ(computer->platform(log).displays.onlineDisplays(), desk.world().online());
}

TEST_F(MacComputerTest, HasASystemThatKeepsALog) {
    const auto computer = ThisComputer::make(time, loop);
    ASSERT_NE(computer->systemLog(), nullptr);
    computer->systemLog()->write(platform::Log::subsystem, platform::Log::ui, platform::LogLevel::standard,
                                 "text");
    ASSERT_EQ(fake.logged().size(), 1U);
    EXPECT_EQ(fake.logged().front().text, "text");
}

TEST_F(MacComputerTest, WritesToTheLogThatItIsGiven) {
    const auto computer = ThisComputer::make(time, loop);
    computer->platform(log).log.write(platform::Log::ui, platform::LogLevel::standard, "text");
    EXPECT_EQ(log.lines().size(), 1U);
    EXPECT_TRUE(fake.logged().empty());
}

}  // namespace
}  // namespace vantrel::app
