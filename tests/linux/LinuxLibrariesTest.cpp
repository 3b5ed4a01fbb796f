#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <vector>

#include "linux/LinuxBench.h"
#include "support/DeathTest.h"

namespace vantrel::linux {
namespace {

class LinuxLibrariesTest : public testing::Test {
  protected:
    platform::PrivateFunctions& functions() { return bench.platform.functions; }
    LinuxBench bench;
};

TEST_F(LinuxLibrariesTest, OffersEveryFunctionWhereTheDesktopSwitchesOutputs) {
    EXPECT_NE(functions().avCreate(), nullptr);
    EXPECT_NE(functions().avWrite(), nullptr);
    EXPECT_NE(functions().avRead(), nullptr);
    EXPECT_NE(functions().configureEnabled(), nullptr);
    EXPECT_NE(functions().getBrightness(), nullptr);
    EXPECT_NE(functions().setBrightness(), nullptr);
}

TEST(LinuxLibraries, OffersNoSwitchingWhereTheDesktopDoesNone) {
    simulated::Desk desk = test::usualDesk();
    desk.missingSymbols.push_back("CGSConfigureDisplayEnabled");
    LinuxBench bench(desk);
    ASSERT_FALSE(bench.hardware.desktop.canSwitch());
    EXPECT_EQ(bench.platform.functions.configureEnabled(), nullptr);
    EXPECT_NE(bench.platform.functions.avCreate(), nullptr);
}

TEST_F(LinuxLibrariesTest, TalksToAMonitor) {
    const auto entry = *bench.id(2);
    const void* service = functions().avCreate()(nullptr, entry);
    ASSERT_NE(service, nullptr);
    const std::vector<std::uint8_t> request{0x82, 0x01, 0x10, 0xAC};
    EXPECT_EQ(functions().avWrite()(service, 0x37, 0x51, request.data(), 4), 0);
    bench.time.sleepFor(std::chrono::milliseconds(50));
    std::vector<std::uint8_t> reply(11);
    EXPECT_EQ(functions().avRead()(service, 0x37, 0x51, reply.data(), 11), 0);
    EXPECT_EQ(reply[2], 0x02);
    EXPECT_EQ(reply[4], 0x10);
    EXPECT_EQ(reply[9], 50);
    bench.platform.registry.releaseService(service);
    EXPECT_EQ(bench.linux->liveServices(), 0U);
}

TEST_F(LinuxLibrariesTest, RefusesNoBytesWhereThereShouldBeSome) {
    const void* service = functions().avCreate()(nullptr, *bench.id(2));
    EXPECT_NE(functions().avWrite()(service, 0x37, 0x51, nullptr, 4), 0);
    EXPECT_NE(functions().avRead()(service, 0x37, 0x51, nullptr, 4), 0);
    EXPECT_EQ(bench.hardware.devices.counts(*bench.hardware.place(2).bus).writes, 0U);
    EXPECT_EQ(bench.hardware.devices.counts(*bench.hardware.place(2).bus).reads, 0U);
    bench.platform.registry.releaseService(service);
}

TEST_F(LinuxLibrariesTest, ReadsAndSetsTheBacklightOfThePanel) {
    float level = -1;
    EXPECT_EQ(functions().getBrightness()(*bench.id(1), &level), 0);
    EXPECT_FLOAT_EQ(level, 0.5F);
    EXPECT_EQ(functions().setBrightness()(*bench.id(1), 0.25F), 0);
    EXPECT_EQ(functions().getBrightness()(*bench.id(1), &level), 0);
    EXPECT_FLOAT_EQ(level, 0.25F);
    EXPECT_EQ(bench.hardware.session.backlights, std::vector<std::string>{"intel_backlight 250"});
}

TEST_F(LinuxLibrariesTest, HasNoLightBehindAnotherDisplay) {
    float level = -1;
    for (const platform::DisplayID display : {*bench.id(2), 0U}) {
        EXPECT_NE(functions().getBrightness()(display, &level), 0);
        EXPECT_NE(functions().setBrightness()(display, 0.25F), 0);
    }
    EXPECT_EQ(level, -1);
    EXPECT_TRUE(bench.hardware.session.backlights.empty());
    EXPECT_NE(functions().setBrightness()(*bench.id(1), std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST(LinuxLibraries, HasNoLevelOfAPanelWithoutABacklight) {
    simulated::DisplayPlan panel = test::panelPlan();
    panel.brightness.reset();
    LinuxBench bench(test::deskOf({panel}));
    float level = -1;
    EXPECT_NE(bench.platform.functions.getBrightness()(*bench.id(1), &level), 0);
    EXPECT_NE(bench.platform.functions.setBrightness()(*bench.id(1), 0.25F), 0);
}

using LinuxLibrariesDeathTest = test::DeathTest;

TEST_F(LinuxLibrariesDeathTest, StopsAtASecondPlatform) {
    LinuxBench bench;
    EXPECT_DEATH(LinuxBench second, "two Linux platforms");
}

TEST_F(LinuxLibrariesDeathTest, StopsAtACallAfterItHasGone) {
    LinuxBench bench;
    const auto create = bench.platform.functions.avCreate();
    bench.linux.reset();
    EXPECT_DEATH(create(nullptr, 1), "after its library had gone");
}

TEST(LinuxLibraries, MayBeMadeAgain) {
    { LinuxBench first; }
    LinuxBench second;
    EXPECT_NE(second.platform.functions.avCreate(), nullptr);
}

}  // namespace
}  // namespace vantrel::linux
