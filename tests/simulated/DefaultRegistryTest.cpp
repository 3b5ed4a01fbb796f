#include <gtest/gtest.h>

#include "platform/simulated/DefaultRegistry.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

TEST(DefaultRegistry, PrefersADisplaysOwnUUID) {
    DisplayPlan display;
    display.vendor = 0x0472;
    display.edidUUID = "0472";
    EXPECT_EQ(edidUUID(display), "0472");
}

TEST(DefaultRegistry, MakesTheUUIDOfTheLowBytesOfLongNumbers) {
    DisplayPlan display;
    display.vendor = 0x756E6B6E;
    display.product = 0xFFFF00AB;
    EXPECT_EQ(edidUUID(display), "6B6EAB00-0000-0000-0000-000000000000");
}

}  // namespace
}  // namespace vantrel::simulated
