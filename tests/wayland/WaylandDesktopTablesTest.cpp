#include "wayland/WaylandRig.h"

namespace vantrel::wayland {
namespace {

class WaylandDesktopTablesTest : public WaylandRig {};

TEST_F(WaylandDesktopTablesTest, HasThePlainTableAtFirst) { EXPECT_EQ(desktop->table("DP-1"), plain()); }

TEST_F(WaylandDesktopTablesTest, LeavesTheControlToOthersAtFirst) {
    const auto other = open("");
    EXPECT_EQ(output("DP-1").tableCapacity, 256U);
    EXPECT_TRUE(other->setTable("DP-1", dimmed()));
}

TEST_F(WaylandDesktopTablesTest, AsksForNoControlWhereNoTablesAreWanted) {
    const auto guard = WaylandDesktop::open({compositor.socket(), "", false}, descriptors, clock);
    EXPECT_EQ(guard->outputs().at(0).tableCapacity, 0U);
    EXPECT_FALSE(guard->setTable("DP-1", dimmed()));
    EXPECT_TRUE(guard->canSwitch());
    // The other desktop's.
    EXPECT_EQ(compositor.monitor("DP-1").controlRequests, 1);
}

TEST_F(WaylandDesktopTablesTest, HandsATableToTheCompositor) {
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    const auto table = compositor.monitor("DP-1").table;
    ASSERT_EQ(table.size(), 768U);
    EXPECT_EQ(table[0], 32768);
    EXPECT_EQ(table[511], 32768);
    EXPECT_EQ(table[512], 16384);
    EXPECT_EQ(table[767], 16384);
    EXPECT_EQ(desktop->table("DP-1"), dimmed());
}

TEST_F(WaylandDesktopTablesTest, KeepsOutputsApart) {
    ASSERT_TRUE(desktop->setTable("DP-2", dimmed()));
    EXPECT_TRUE(compositor.monitor("DP-1").table.empty());
    EXPECT_EQ(desktop->table("DP-1"), plain());
}

TEST_F(WaylandDesktopTablesTest, KeepsSamplesInTheirRange) {
    auto table = plain();
    table.red.front() = -1.0F;
    table.green.front() = 2.0F;
    table.blue.front() = std::numeric_limits<float>::quiet_NaN();
    ASSERT_TRUE(desktop->setTable("DP-1", table));
    const auto samples = compositor.monitor("DP-1").table;
    EXPECT_EQ(samples[0], 0);
    EXPECT_EQ(samples[256], 65535);
    EXPECT_EQ(samples[512], 0);
}

TEST_F(WaylandDesktopTablesTest, SetsOneTableAfterTheOtherByOneControl) {
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    auto darker = dimmed();
    darker.red.assign(256, 0.25F);
    ASSERT_TRUE(desktop->setTable("DP-1", darker));
    EXPECT_EQ(compositor.monitor("DP-1").table.front(), 16384);
    // One for the capacity, one for the tables.
    EXPECT_EQ(compositor.monitor("DP-1").controlRequests, 2);
}

TEST_F(WaylandDesktopTablesTest, LetsGoOfTheControlWithThePlainTable) {
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    const auto other = open("");
    EXPECT_EQ(other->outputs().at(0).tableCapacity, 0U);
    ASSERT_TRUE(desktop->setTable("DP-1", plain()));
    EXPECT_TRUE(compositor.monitor("DP-1").table.empty());
    EXPECT_EQ(desktop->table("DP-1"), plain());
    EXPECT_TRUE(open("")->setTable("DP-1", dimmed()));
}

TEST_F(WaylandDesktopTablesTest, RefusesATableOfAnotherSize) {
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed(255)));
    auto uneven = dimmed();
    uneven.green.pop_back();
    EXPECT_FALSE(desktop->setTable("DP-1", uneven));
    EXPECT_EQ(desktop->table("DP-1"), plain());
}

TEST_F(WaylandDesktopTablesTest, RefusesATableForAnOutputThatIsNotThere) {
    EXPECT_FALSE(desktop->setTable("DP-9", dimmed()));
    EXPECT_EQ(desktop->table("DP-9"), std::nullopt);
}

TEST_F(WaylandDesktopTablesTest, HasNoTableAnyMoreWhenTheControlIsTakenAway) {
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    compositor.seizeControl("DP-1");
    EXPECT_EQ(output("DP-1").tableCapacity, 0U);
    EXPECT_EQ(desktop->table("DP-1"), std::nullopt);
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
    EXPECT_EQ(output("DP-2").tableCapacity, 256U);
}

TEST_F(WaylandDesktopTablesTest, FailsWhenAnotherProgramHasTheControl) {
    const auto other = open("");
    ASSERT_TRUE(other->setTable("DP-1", dimmed()));
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
    EXPECT_EQ(output("DP-1").tableCapacity, 0U);
}

TEST_F(WaylandDesktopTablesTest, TriesAgainWhenTheOutputAppearsAnew) {
    compositor.change([](MockDesk& desk) { desk.monitor("DP-1").isPlugged = false; });
    compositor.change([](MockDesk& desk) {
        desk.monitors.front()->isPlugged = true;
        desk.monitors.front()->refusesControl = true;
    });
    waitUntil([&] { return names().size() == 2 && output("DP-1").isLit; });
    compositor.change([](MockDesk& desk) { desk.monitor("DP-1").isPlugged = false; });
    compositor.change([](MockDesk& desk) {
        desk.monitors.front()->isPlugged = true;
        desk.monitors.front()->refusesControl = false;
    });
    waitUntil([&] { return names().size() == 2 && output("DP-1").tableCapacity == 256; });
    EXPECT_TRUE(desktop->setTable("DP-1", dimmed()));
}

TEST_F(WaylandDesktopTablesTest, ForgetsTheTableOfAnOutputThatHasGone) {
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    compositor.change([](MockDesk& desk) { desk.monitor("DP-1").isPlugged = false; });
    EXPECT_EQ(desktop->table("DP-1"), std::nullopt);
    compositor.change([](MockDesk& desk) { desk.monitors.front()->isPlugged = true; });
    waitUntil([&] { return names().size() == 2 && output("DP-1").tableCapacity == 256; });
    EXPECT_EQ(desktop->table("DP-1"), plain());
}

TEST_F(WaylandDesktopTablesTest, HasNoTableThatIsTooLargeToBeMeant) {
    compositor.change([](MockDesk& desk) {
        desk.monitors.push_back(std::make_unique<MockMonitor>("DP-3"));
        desk.monitors.back()->tableSize = 4000000000U;
        desk.monitors.push_back(std::make_unique<MockMonitor>("DP-4"));
        desk.monitors.back()->tableSize = 2;
    });
    waitUntil([&] { return names().size() == 4 && output("DP-4").tableCapacity == 2; });
    EXPECT_EQ(output("DP-3").tableCapacity, 0U);
    EXPECT_EQ(desktop->table("DP-4"), plain(2));
}

}  // namespace
}  // namespace vantrel::wayland
