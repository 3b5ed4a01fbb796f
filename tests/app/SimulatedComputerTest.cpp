#include <gtest/gtest.h>

#include "app/SimulatedComputer.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"
#include "support/TemporaryFolder.h"
#include "support/TestDesks.h"

namespace vantrel::app {
namespace {

class SimulatedComputerTest : public testing::Test {
  protected:
    // What a computer remembers of what an earlier one was told.
    std::optional<platform::DefaultsValue> remembered(const std::optional<std::string>& settingsFolder) {
        SimulatedComputer(simulated::Desk{}, settingsFolder, time, loop)
            .platform(log)
            .defaults.set("key", std::string("value"));
        SimulatedComputer second(simulated::Desk{}, settingsFolder, time, loop);
        return second.platform(log).defaults.value("key");
    }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    test::RecordingLogSink log;
    test::TemporaryFolder folder;
};

TEST_F(SimulatedComputerTest, HasTheDisplaysOfItsDesk) {
    SimulatedComputer computer(test::usualDesk(), std::nullopt, time, loop);
    EXPECT_EQ(computer.platform(log).displays.onlineDisplays().size(), 3U);
}

TEST_F(SimulatedComputerTest, HasASystemThatKeepsNoLog) {
    EXPECT_EQ(SimulatedComputer(simulated::Desk{}, std::nullopt, time, loop).systemLog(), nullptr);
}

TEST_F(SimulatedComputerTest, ForgetsSettingsWithoutAFolder) { EXPECT_EQ(remembered({}), std::nullopt); }

TEST_F(SimulatedComputerTest, KeepsSettingsInAFolder) {
    EXPECT_EQ(remembered(folder.path("state")), platform::DefaultsValue(std::string("value")));
}

}  // namespace
}  // namespace vantrel::app
