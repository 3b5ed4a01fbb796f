#include <gmock/gmock.h>

#include "platform/linux/wayland/WaylandDesktop.h"
#include "wayland/WaylandRig.h"

namespace vantrel::wayland {
namespace {

using testing::ElementsAre;

class WaylandDesktopTest : public WaylandRig {};

TEST_F(WaylandDesktopTest, IsNotThereWithoutACompositor) {
    EXPECT_EQ(WaylandDesktop::open({"/nowhere/wayland-0", "", true}, descriptors, clock), nullptr);
}

TEST_F(WaylandDesktopTest, HasTheNameThatTheSessionHas) {
    EXPECT_EQ(desktop->name(), "Wayland");
    EXPECT_EQ(open("sway")->name(), "Wayland (sway)");
}

TEST_F(WaylandDesktopTest, IsIdentifiedByItsDisplay) {
    std::string expected = "wayland-" + compositor.socket();
    for (char& character : expected) {
        if (character == '/') character = '_';
    }
    EXPECT_EQ(desktop->identity(), expected);
}

TEST_F(WaylandDesktopTest, GivesTablesBackWhenItGoes) {
    EXPECT_FALSE(desktop->keepsTables());
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    desktop.reset();
    // The connection's end is the last that the compositor reads of it.
    while (!compositor.monitor("DP-1").table.empty()) {
    }
}

TEST_F(WaylandDesktopTest, ListsWhatIsThereAsSoonAsItIsOpened) {
    EXPECT_THAT(names(), ElementsAre("DP-1", "DP-2"));
    const Output first = output("DP-1");
    EXPECT_TRUE(first.isConnected);
    EXPECT_TRUE(first.isLit);
    EXPECT_EQ(first.monitor, "Mock M1");
    EXPECT_EQ(first.tableCapacity, 256U);
    EXPECT_EQ(first.place, "wayland mode=1920x1080@60000 position=0,0 transform=0 scale=256");
    EXPECT_EQ(output("DP-2").place, "wayland mode=1920x1080@60000 position=1920,0 transform=0 scale=256");
}

TEST_F(WaylandDesktopTest, TellsNoEDIDThatItIsNotTold) { EXPECT_TRUE(output("DP-1").edid.empty()); }

TEST_F(WaylandDesktopTest, CallsAMonitorWithoutAModelByItsDescription) {
    compositor.change([](MockDesk& desk) {
        desk.monitors.push_back(std::make_unique<MockMonitor>("HDMI-A-1"));
        desk.monitors.back()->make = "Unknown";
        desk.monitors.push_back(std::make_unique<MockMonitor>("HDMI-A-2"));
        desk.monitors.back()->model = "Unknown";
    });
    EXPECT_EQ(output("HDMI-A-1").monitor, "M1");
    EXPECT_EQ(output("HDMI-A-2").monitor, "A mock monitor");
}

class BareWaylandDesktopTest : public WaylandRig {
  protected:
    BareWaylandDesktopTest() : WaylandRig({4, false, false, false}) {}
};

TEST_F(BareWaylandDesktopTest, ListsItsOutputsOnly) {
    EXPECT_THAT(names(), ElementsAre("DP-1", "DP-2"));
    const Output first = output("DP-1");
    EXPECT_TRUE(first.isLit);
    EXPECT_EQ(first.tableCapacity, 0U);
    EXPECT_EQ(first.monitor, "Mock M1");
    EXPECT_EQ(first.place, "wayland mode=1920x1080@60000 position=0,0 transform=0 scale=256");
}

TEST_F(BareWaylandDesktopTest, RefusesEverything) {
    EXPECT_FALSE(desktop->canSwitch());
    EXPECT_EQ(desktop->arrangement("DP-1"), std::nullopt);
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_FALSE(desktop->light("DP-1", std::nullopt));
    EXPECT_EQ(desktop->table("DP-1"), std::nullopt);
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
}

class OldWaylandDesktopTest : public WaylandRig {
  protected:
    OldWaylandDesktopTest() : WaylandRig({3, true, false, false}) {}
};

TEST_F(OldWaylandDesktopTest, ListsNoOutputWithoutAName) { EXPECT_TRUE(desktop->outputs().empty()); }

}  // namespace
}  // namespace vantrel::wayland
