#include <gtest/gtest.h>
#include <numeric>
#include <string>

#include "linux/kernel/EmulatedEDID.h"
#include "support/TestDesks.h"

namespace vantrel::test {
namespace {

simulated::DisplayPlan planNamed(const std::string& name) {
    simulated::DisplayPlan plan;
    plan.vendor = 0x450C;
    plan.product = 0x2701;
    plan.serial = 0x01020304;
    plan.name = name;
    return plan;
}

// The text of the descriptor that has a display's name.
std::string nameIn(const EDIDBlock& block) {
    for (std::size_t place = 54; place < 126; place += 18) {
        if (block.at(place) == 0 && block.at(place + 1) == 0 && block.at(place + 3) == 0xFC)
            return {block.begin() + static_cast<std::ptrdiff_t>(place + 5),
                    block.begin() + static_cast<std::ptrdiff_t>(place + 18)};
    }
    return "none";
}

TEST(EmulatedEDID, HasTheIdentityOfItsDisplay) {
    const EDIDBlock block = emulatedEDID(planNamed("Halden HX27"));
    const std::vector<std::uint8_t> start(block.begin(), block.begin() + 16);
    EXPECT_EQ(start, (std::vector<std::uint8_t>{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00,  //
                                                0x45, 0x0C, 0x01, 0x27, 0x04, 0x03, 0x02, 0x01}));
}

TEST(EmulatedEDID, AddsUpToZero) {
    for (const char* name : {"", "A", "Halden HX27", "A name that is longer than its room"}) {
        const EDIDBlock block = emulatedEDID(planNamed(name));
        EXPECT_EQ(std::accumulate(block.begin(), block.end(), 0U) % 256, 0U) << name;
    }
}

TEST(EmulatedEDID, EndsAShortNameAndFillsItUp) {
    EXPECT_EQ(nameIn(emulatedEDID(planNamed("Halden HX27"))), "Halden HX27\n ");
}

TEST(EmulatedEDID, CutsALongNameAfterThirteenBytes) {
    EXPECT_EQ(nameIn(emulatedEDID(planNamed("Tessera T22 Panel"))), "Tessera T22 P");
}

TEST(EmulatedEDID, HasNoNameForADisplayWithoutOne) { EXPECT_EQ(nameIn(emulatedEDID(planNamed(""))), "none"); }

TEST(EmulatedEDID, HasTheSizeInPixelsInItsFirstTiming) {
    simulated::DisplayPlan plan = planNamed("Halden HX27");
    plan.width = 3840;
    plan.height = 2160;
    const EDIDBlock block = emulatedEDID(plan);
    EXPECT_EQ(block[56] | (block[58] >> 4) << 8, 3840);
    EXPECT_EQ(block[59] | (block[61] >> 4) << 8, 2160);
}

}  // namespace
}  // namespace vantrel::test
