#include <gtest/gtest.h>

#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "support/RecordingLogSink.h"
#include "support/TestDesks.h"
#include "support/VirtualLoop.h"

namespace vantrel::simulated {
namespace {

TEST(SimulatedLoginItem, IsOffAtFirst) { EXPECT_FALSE(SimulatedLoginItem().isEnabled()); }

TEST(SimulatedLoginItem, IsWhatItWasMadeLast) {
    SimulatedLoginItem item;
    EXPECT_EQ(item.enable(), std::nullopt);
    EXPECT_TRUE(item.isEnabled());
    EXPECT_EQ(item.disable(), std::nullopt);
    EXPECT_FALSE(item.isEnabled());
}

TEST(SimulatedLoginItem, RefusesWithTheGivenTextAndStaysAsItIs) {
    SimulatedLoginItem item;
    item.refuse("Operation not permitted");
    EXPECT_EQ(item.enable(), "Operation not permitted");
    EXPECT_FALSE(item.isEnabled());
}

TEST(SimulatedLoginItem, MayRefuseToBeSwitchedOffToo) {
    SimulatedLoginItem item;
    item.enable();
    item.refuse("Managed by your organisation");
    EXPECT_EQ(item.disable(), "Managed by your organisation");
    EXPECT_TRUE(item.isEnabled());
}

TEST(SimulatedLoginItem, ObeysAgainWhenItIsToldTo) {
    SimulatedLoginItem item;
    item.refuse("Operation not permitted");
    item.refuse(std::nullopt);
    EXPECT_EQ(item.enable(), std::nullopt);
    EXPECT_TRUE(item.isEnabled());
}

TEST(SimulatedLoginItem, IsRefusedThroughTheSimulatedPlatform) {
    test::VirtualLoop virtualLoop;
    test::RecordingLogSink log;
    SimulatedPlatform simulated(test::usualDesk(), virtualLoop.time, virtualLoop.loop);
    const platform::Platform platform = simulated.platform(log);
    simulated.refuseLoginItem("Operation not permitted");
    EXPECT_EQ(platform.loginItem.enable(), "Operation not permitted");
}

}  // namespace
}  // namespace vantrel::simulated
