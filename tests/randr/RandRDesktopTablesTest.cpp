#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "ServerTest.h"

namespace vantrel::randr {
namespace {

using platform::TransferTable;

class RandRDesktopTablesTest : public ServerTest {};

TEST_F(RandRDesktopTablesTest, WhatWasSetIsReadBackExactly) {
    // None of its values is a number of 16 bits.
    const TransferTable set = table(0.7654321F);
    EXPECT_TRUE(desktop->setTable("DUMMY1", set));
    EXPECT_EQ(desktop->table("DUMMY1"), set);
}

TEST_F(RandRDesktopTablesTest, TheServerHoldsItInSixteenBits) {
    const TransferTable set = table(1);
    EXPECT_TRUE(desktop->setTable("DUMMY1", set));
    const auto red = other.red("DUMMY1");
    EXPECT_EQ(red.front(), 0);
    EXPECT_EQ(red[128], std::lround(set.red[128] * 65535));
    EXPECT_EQ(red.back(), 65535);
}

TEST_F(RandRDesktopTablesTest, OtherOutputsKeepTheirs) {
    const auto first = desktop->table("DUMMY0");
    const auto third = desktop->table("DUMMY2");
    EXPECT_TRUE(desktop->setTable("DUMMY1", table(0.25)));
    EXPECT_EQ(desktop->table("DUMMY0"), first);
    EXPECT_EQ(desktop->table("DUMMY2"), third);
}

TEST_F(RandRDesktopTablesTest, WhatAnotherClientSetsIsReadFromThenOn) {
    EXPECT_TRUE(desktop->setTable("DUMMY1", table(0.25)));
    other.setAll("DUMMY1", 32768);
    const auto read = desktop->table("DUMMY1");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->red, std::vector<float>(256, 32768.0F / 65535));
    // And what was read can be set, and is the same.
    EXPECT_TRUE(desktop->setTable("DUMMY0", *read));
    EXPECT_EQ(other.red("DUMMY0"), other.red("DUMMY1"));
}

TEST_F(RandRDesktopTablesTest, ValuesBeyondTheLimitsBecomeTheLimits) {
    TransferTable set = table(1);
    set.red[0] = -1;
    set.red[1] = 2;
    set.red[2] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(desktop->setTable("DUMMY1", set));
    const auto red = other.red("DUMMY1");
    EXPECT_EQ(red[0], 0);
    EXPECT_EQ(red[1], 65535);
    EXPECT_EQ(red[2], 0);
}

TEST_F(RandRDesktopTablesTest, ATableOfAnotherSizeIsRefused) {
    const auto before = desktop->table("DUMMY1");
    TransferTable uneven = table(0.5);
    uneven.blue.pop_back();
    EXPECT_FALSE(desktop->setTable("DUMMY1", table(0.5, 255)));
    EXPECT_FALSE(desktop->setTable("DUMMY1", table(0.5, 257)));
    EXPECT_FALSE(desktop->setTable("DUMMY1", uneven));
    EXPECT_FALSE(desktop->setTable("DUMMY1", {}));
    EXPECT_EQ(desktop->table("DUMMY1"), before);
}

TEST_F(RandRDesktopTablesTest, ATableStaysWhenTheOutputComesBackToItsCrtc) {
    EXPECT_TRUE(desktop->setTable("DUMMY1", table(0.25)));
    const auto arrangement = desktop->arrangement("DUMMY1");
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    EXPECT_TRUE(desktop->light("DUMMY1", arrangement));
    EXPECT_EQ(desktop->table("DUMMY1"), table(0.25));
}

TEST_F(RandRDesktopTablesTest, ATableStaysWhenTheConnectionEnds) {
    EXPECT_TRUE(desktop->setTable("DUMMY1", table(0.25)));
    const auto held = other.red("DUMMY1");
    desktop.reset();
    EXPECT_EQ(other.red("DUMMY1"), held);
}

TEST_F(RandRDesktopTablesTest, TheTableOfAnotherOutputIsNotInherited) {
    const auto plain = desktop->table("DUMMY1");
    const auto arrangement = desktop->arrangement("DUMMY1");
    EXPECT_TRUE(desktop->setTable("DUMMY0", table(0.25)));
    EXPECT_TRUE(desktop->darken("DUMMY0"));
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    xrandr.expect("--output DUMMY3 --crtc 1 --mode 1920x1080 --pos 0x0");
    // The only free one is the one that DUMMY0 had.
    EXPECT_TRUE(desktop->light("DUMMY1", arrangement));
    const auto read = desktop->table("DUMMY1");
    ASSERT_TRUE(read);
    EXPECT_EQ(other.red("DUMMY1"), other.red("DUMMY2"));
    EXPECT_FLOAT_EQ(read->green[100], plain->green[100]);
}

}  // namespace
}  // namespace vantrel::randr
