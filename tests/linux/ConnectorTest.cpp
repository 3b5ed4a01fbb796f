#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "linux/SysfsTree.h"
#include "linux/TestEDID.h"
#include "platform/linux/Connector.h"

namespace vantrel::linux {
namespace {

using Names = std::vector<std::string>;

class ConnectorTest : public testing::Test {
  protected:
    Names names() const {
        Names names;
        for (const Connector& connector : Connector::list(sysfs)) names.push_back(connector.name);
        return names;
    }
    Connector only() const {
        const auto connectors = Connector::list(sysfs);
        EXPECT_EQ(connectors.size(), 1);
        return connectors.empty() ? Connector() : connectors.front();
    }

    SysfsTree tree;
    const Sysfs sysfs = tree.sysfs();
    const EDIDBytes edid = edidOf(1, 2, 3, "Alder");
};

TEST_F(ConnectorTest, HasNoneWithoutAGraphicsDevice) { EXPECT_EQ(names(), Names()); }

TEST_F(ConnectorTest, HasNoneOfADeviceThatHasNone) {
    tree.addCard(0);
    tree.put("class/drm/version", "drm 1.1.0 20060810\n");
    EXPECT_EQ(names(), Names());
}

TEST_F(ConnectorTest, ListsASocketWithNothingIn) {
    tree.addConnector("card0-DP-1");
    const Connector expected{.folder = "/class/drm/card0-DP-1",
                             .name = "DP-1",
                             .device = tree.device(),
                             .isConnected = false,
                             .isEnabled = false,
                             .edid = {}};
    EXPECT_EQ(only(), expected);
}

TEST_F(ConnectorTest, ReadsTheEDIDOfWhatIsPluggedIn) {
    tree.addConnector("card0-DP-1");
    tree.plug("card0-DP-1", edid);
    EXPECT_TRUE(only().isConnected);
    EXPECT_FALSE(only().isEnabled);
    EXPECT_EQ(only().edid, edid);
}

TEST_F(ConnectorTest, KnowsWhetherAPictureIsSent) {
    tree.addConnector("card0-DP-1");
    tree.enable("card0-DP-1");
    EXPECT_TRUE(only().isEnabled);
    tree.disable("card0-DP-1");
    EXPECT_FALSE(only().isEnabled);
}

TEST_F(ConnectorTest, FollowsTheCable) {
    tree.addConnector("card0-DP-1");
    tree.plug("card0-DP-1", edid);
    tree.unplug("card0-DP-1");
    EXPECT_FALSE(only().isConnected);
    EXPECT_EQ(only().edid, EDIDBytes());
}

TEST_F(ConnectorTest, TakesAnEDIDOnlyFromWhatIsPluggedIn) {
    tree.addConnector("card0-VGA-1");
    tree.plug("card0-VGA-1", edid);
    tree.put(tree.placeOf("card0-VGA-1") + "/status", "unknown\n");
    EXPECT_FALSE(only().isConnected);
    EXPECT_EQ(only().edid, EDIDBytes());
}

TEST_F(ConnectorTest, IsThereThoughItsFilesHaveGone) {
    tree.addConnector("card0-DP-1");
    for (const char* file : {"/status", "/enabled", "/edid", "/device"})
        tree.remove(tree.placeOf("card0-DP-1") + file);
    const Connector connector = only();
    EXPECT_EQ(connector.name, "DP-1");
    EXPECT_EQ(connector.device, "");
    EXPECT_FALSE(connector.isConnected);
    EXPECT_FALSE(connector.isEnabled);
}

TEST_F(ConnectorTest, ListsByDeviceAndName) {
    for (const char* entry : {"card1-DP-1", "card0-HDMI-A-1", "card0-DP-10", "card0-DP-2", "card0-eDP-1"}) {
        tree.addConnector(entry);
    }
    EXPECT_EQ(names(), Names({"DP-2", "DP-10", "HDMI-A-1", "eDP-1", "DP-1"}));
}

TEST_F(ConnectorTest, TellsEqualNamesOfTwoDevicesApart) {
    tree.addConnector("card0-DP-1");
    tree.addConnector("card1-DP-1");
    const auto connectors = Connector::list(sysfs);
    ASSERT_EQ(connectors.size(), 2);
    EXPECT_EQ(connectors[0].name, connectors[1].name);
    EXPECT_NE(connectors[0].device, connectors[1].device);
    EXPECT_EQ(connectors[0].folder, "/class/drm/card0-DP-1");
    EXPECT_EQ(connectors[1].folder, "/class/drm/card1-DP-1");
}

TEST_F(ConnectorTest, HasTheSameDeviceWhateverItsCardIsNumbered) {
    tree.addCard(5);
    tree.addConnector("card5-DP-1");
    EXPECT_EQ(only().device, tree.device());
}

TEST_F(ConnectorTest, LeavesOutWhatNoMonitorCanBePluggedInto) {
    tree.addConnector("card0-Writeback-1");
    tree.addConnector("card0-DP-1");
    tree.put("class/drm/renderD128", "");
    tree.put("class/drm/ttm-1", "");
    EXPECT_EQ(names(), Names{"DP-1"});
}

TEST_F(ConnectorTest, KnowsWhichMonitorsArePartOfTheComputer) {
    for (const char* name : {"eDP-1", "LVDS-1", "DSI-1", "DPI-1", "eDP-12"}) {
        EXPECT_TRUE(Connector::isBuiltIn(name)) << name;
    }
    for (const char* name :
         {"DP-1", "HDMI-A-1", "DVI-D-1", "VGA-1", "Virtual-1", "USB-1", "eDP", "", "X-eDP-1"}) {
        EXPECT_FALSE(Connector::isBuiltIn(name)) << name;
    }
    EXPECT_TRUE((Connector{.folder = {},
                           .name = "eDP-1",
                           .device = {},
                           .isConnected = false,
                           .isEnabled = false,
                           .edid = {}})
                    .isBuiltIn());
}

}  // namespace
}  // namespace vantrel::linux
