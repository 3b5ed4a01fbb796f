#include <gtest/gtest.h>

#include "platform/simulated/SimulatedLibraries.h"
#include "simulated/DeskBench.h"

namespace vantrel::simulated {
namespace {

TEST(SimulatedLibraries, HaveEveryPrivateFunction) {
    DeskBench bench;
    auto& functions = bench.platform.functions;
    EXPECT_NE(functions.avCreate(), nullptr);
    EXPECT_NE(functions.avWrite(), nullptr);
    EXPECT_NE(functions.avRead(), nullptr);
    EXPECT_NE(functions.configureEnabled(), nullptr);
    EXPECT_NE(functions.getBrightness(), nullptr);
    EXPECT_NE(functions.setBrightness(), nullptr);
}

TEST(SimulatedLibraries, LackTheSymbolsThatTheDeskSays) {
    Desk desk = ordinaryDesk();
    desk.missingSymbols = {"CGSConfigureDisplayEnabled", "IOAVServiceReadI2C"};
    DeskBench bench(desk);
    auto& functions = bench.platform.functions;
    EXPECT_EQ(functions.configureEnabled(), nullptr);
    EXPECT_EQ(functions.avRead(), nullptr);
    EXPECT_NE(functions.avWrite(), nullptr);
    EXPECT_FALSE(bench.setOutput(2, platform::DisplayToggler::Output::off));
    EXPECT_EQ(bench.simulated.openConfigurations(), 0);
}

TEST(SimulatedLibraries, HaveASymbolOnlyInItsOwnLibrary) {
    VirtualTime time;
    runtime::MainLoop loop(time);
    World world(ordinaryDesk(), time, loop);
    SimulatedDisplayServices displays(world);
    AVServiceTable services(world);
    SimulatedLibraries libraries(world, displays, services);
    void* ioKit = libraries.open("/System/Library/Frameworks/IOKit.framework/IOKit");
    ASSERT_NE(ioKit, nullptr);
    EXPECT_NE(libraries.lookUp(ioKit, "IOAVServiceWriteI2C"), nullptr);
    EXPECT_EQ(libraries.lookUp(ioKit, "CGSConfigureDisplayEnabled"), nullptr);
    EXPECT_EQ(libraries.lookUp(nullptr, "IOAVServiceWriteI2C"), nullptr);
    EXPECT_EQ(libraries.open("/System/Library/Frameworks/Other.framework/Other"), nullptr);
}

TEST(SimulatedLibraries, GetAndSetTheLevelOfAPanel) {
    DeskBench bench;
    float level = 0;
    EXPECT_EQ(bench.platform.functions.getBrightness()(1, &level), 0);
    EXPECT_EQ(level, 0.5F);
    EXPECT_EQ(bench.platform.functions.setBrightness()(1, 0.25F), 0);
    EXPECT_EQ(bench.world().brightness(1), 0.25F);
}

TEST(SimulatedLibraries, FailForTheLevelOfAMonitor) {
    DeskBench bench;
    float level = 0.75F;
    EXPECT_NE(bench.platform.functions.getBrightness()(2, &level), 0);
    EXPECT_EQ(level, 0.75F);
    EXPECT_NE(bench.platform.functions.setBrightness()(2, 0.25F), 0);
}

TEST(SimulatedLibraries, TakeNoBytesFromNowhere) {
    DeskBench bench;
    const platform::AVService service = bench.service();
    EXPECT_NE(bench.platform.functions.avWrite()(service.get(), 0x37, 0x51, nullptr, 4), 0);
    EXPECT_NE(bench.platform.functions.avRead()(service.get(), 0x37, 0, nullptr, 4), 0);
    EXPECT_EQ(bench.platform.functions.avWrite()(service.get(), 0x37, 0x51, nullptr, 0), 0);
}

TEST(SimulatedLibrariesDeathTest, StopForASecondComputer) {
    DeskBench bench;
    EXPECT_DEATH(SimulatedPlatform(ordinaryDesk(), bench.time, bench.loop), "two simulated computers");
}

}  // namespace
}  // namespace vantrel::simulated
