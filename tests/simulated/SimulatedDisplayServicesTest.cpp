#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDisplayServices.h"
#include "simulated/DeskBench.h"

namespace vantrel::simulated {
namespace {

using platform::DisplayToggler::Output;
using IDs = std::vector<platform::DisplayID>;

TEST(SimulatedDisplayServices, TellsTheNumbersOfADisplay) {
    DeskBench bench;
    EXPECT_EQ(bench.platform.displays.vendorNumber(2), 0x10AC);
    EXPECT_EQ(bench.platform.displays.modelNumber(2), 0x4002);
    EXPECT_EQ(bench.platform.displays.serialNumber(2), 7002);
}

TEST(SimulatedDisplayServices, TellsNoNumbersOfAnUnpluggedDisplay) {
    DeskBench bench;
    bench.world().unplug(2);
    EXPECT_EQ(bench.platform.displays.vendorNumber(2), 0);
    EXPECT_EQ(bench.platform.displays.modelNumber(2), 0);
    EXPECT_EQ(bench.platform.displays.serialNumber(2), 0);
}

TEST(SimulatedDisplayServices, StillKnowsADisplayWhoseOutputIsOff) {
    DeskBench bench;
    bench.setOutput(2, Output::off);
    EXPECT_EQ(bench.platform.displays.serialNumber(2), 7002);
    EXPECT_EQ(bench.platform.displays.screenName(2), std::nullopt);
}

TEST(SimulatedDisplayServices, NamesTheScreensThatAreOnline) {
    DeskBench bench;
    EXPECT_EQ(bench.platform.displays.screenName(2), "Left");
    bench.world().unplug(2);
    EXPECT_EQ(bench.platform.displays.screenName(2), std::nullopt);
}

TEST(SimulatedDisplayServices, HasNoNameForANamelessScreen) {
    Desk desk = ordinaryDesk();
    desk.displays[1].name = "";
    EXPECT_EQ(DeskBench(desk).platform.displays.screenName(2), std::nullopt);
}

TEST(SimulatedDisplayServices, HasNoTableForADisplayThatIsNotOnline) {
    DeskBench bench;
    bench.setOutput(2, Output::off);
    EXPECT_EQ(bench.platform.displays.transferTableCapacity(2), 0);
    EXPECT_EQ(bench.platform.displays.transferTable(2, 256), std::nullopt);
}

TEST(SimulatedDisplayServices, ChangesNothingUntilAConfigurationIsComplete) {
    DeskBench bench;
    auto& displays = bench.platform.displays;
    const auto configuration = displays.beginConfiguration();
    ASSERT_TRUE(configuration);
    EXPECT_EQ(bench.platform.functions.configureEnabled()(*configuration, 2, false), 0);
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
    EXPECT_TRUE(displays.completeConfiguration(*configuration, 1));
    EXPECT_EQ(bench.online(), (IDs{1, 3}));
    EXPECT_EQ(bench.simulated.openConfigurations(), 0);
}

TEST(SimulatedDisplayServices, ChangesNothingWhenAConfigurationIsCancelled) {
    DeskBench bench;
    const auto configuration = bench.platform.displays.beginConfiguration();
    bench.platform.functions.configureEnabled()(*configuration, 2, false);
    bench.platform.displays.cancelConfiguration(*configuration);
    bench.loop.run();
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
    EXPECT_EQ(bench.calls, DeskBench::Calls{});
    EXPECT_EQ(bench.simulated.openConfigurations(), 0);
}

TEST(SimulatedDisplayServices, CompletesSeveralChangesInTheirOrder) {
    DeskBench bench;
    const auto configuration = bench.platform.displays.beginConfiguration();
    bench.platform.functions.configureEnabled()(*configuration, 3, false);
    bench.platform.functions.configureEnabled()(*configuration, 2, false);
    EXPECT_TRUE(bench.platform.displays.completeConfiguration(*configuration, 1));
    bench.loop.run();
    EXPECT_EQ(bench.calls, (DeskBench::Calls{{3, begins}, {3, removed}, {2, begins}, {2, removed}}));
}

TEST(SimulatedDisplayServices, RefusesToTurnOnADisplayThatIsNotPluggedIn) {
    DeskBench bench;
    bench.setOutput(2, Output::off);
    bench.world().unplug(2);
    EXPECT_FALSE(bench.setOutput(2, Output::on));
    EXPECT_EQ(bench.simulated.openConfigurations(), 0);
}

TEST(SimulatedDisplayServices, RefusesADisplayThatItDoesNotKnow) {
    DeskBench bench;
    EXPECT_FALSE(bench.setOutput(99, Output::off));
}

TEST(SimulatedDisplayServices, RefusesToBeginAConfiguration) {
    DeskBench bench;
    bench.simulated.refuse(Refusal::begin);
    EXPECT_EQ(bench.platform.displays.beginConfiguration(), std::nullopt);
    bench.simulated.refuse(Refusal::nothing);
    EXPECT_TRUE(bench.setOutput(2, Output::off));
}

TEST(SimulatedDisplayServices, RefusesToConfigureADisplay) {
    DeskBench bench;
    bench.simulated.refuse(Refusal::enable);
    EXPECT_FALSE(bench.setOutput(2, Output::off));
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
}

TEST(SimulatedDisplayServices, RefusesToCompleteAConfigurationAndEndsIt) {
    DeskBench bench;
    bench.simulated.refuse(Refusal::complete);
    EXPECT_FALSE(bench.setOutput(2, Output::off));
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
    EXPECT_EQ(bench.simulated.openConfigurations(), 0);
}

TEST(SimulatedDisplayServicesDeathTest, StopsForAConfigurationThatHasEnded) {
    DeskBench bench;
    const auto configuration = bench.platform.displays.beginConfiguration();
    bench.platform.displays.cancelConfiguration(*configuration);
    EXPECT_DEATH(bench.platform.displays.completeConfiguration(*configuration, 1), "not in progress");
}

}  // namespace
}  // namespace vantrel::simulated
