#include <cerrno>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "linux/FakeI2C.h"
#include "linux/SysfsTree.h"
#include "linux/TestEDID.h"
#include "platform/linux/Adapters.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel::linux {
namespace {

using Wiring = SysfsTree::Wiring;
using Buses = std::vector<unsigned>;

class AdaptersTest : public testing::Test {
  protected:
    AdaptersTest() {
        for (const char* entry : {"card0-DP-1", "card0-HDMI-A-1", "card1-DP-1"}) tree.addConnector(entry);
    }

    Buses ofDevice(const std::string& device) const {
        Buses buses;
        for (const Adapter& adapter : Adapters::ofDevice(sysfs, device)) buses.push_back(adapter.bus);
        return buses;
    }
    std::optional<Adapter> ofConnector(const std::string& entry) const {
        for (const Connector& connector : Connector::list(sysfs)) {
            if (connector.folder.ends_with("/" + entry)) return Adapters::ofConnector(sysfs, connector);
        }
        ADD_FAILURE() << "there is no " << entry;
        return std::nullopt;
    }
    std::optional<unsigned> busOf(const std::string& entry) const {
        const auto adapter = ofConnector(entry);
        return adapter ? std::optional(adapter->bus) : std::nullopt;
    }
    std::optional<unsigned> withEDID(const Buses& buses, const EDIDBytes& edid) {
        std::vector<Adapter> adapters;
        for (const unsigned bus : buses) adapters.push_back({bus, "/devices/i2c-" + std::to_string(bus)});
        const auto adapter = Adapters::withEDID(devices, adapters, edid);
        return adapter ? std::optional(adapter->bus) : std::nullopt;
    }

    simulated::VirtualTime time;
    SysfsTree tree;
    const Sysfs sysfs = tree.sysfs();
    FakeI2C devices{time};
    const EDIDBytes alder = edidOf(1, 2, 3, "Alder");
    const EDIDBytes birch = edidOf(1, 2, 4, "Birch");
};

// Of a device.

TEST_F(AdaptersTest, HasNoneWhereThereIsNone) {
    EXPECT_EQ(ofDevice(tree.device()), Buses());
    EXPECT_EQ(ofConnector("card0-DP-1"), std::nullopt);
}

TEST_F(AdaptersTest, ListsEveryAdapterOfADeviceByItsNumber) {
    tree.addAdapter(10, "card0-HDMI-A-1", Wiring::none);
    tree.addAdapter(9, "card0-HDMI-A-1", Wiring::link);
    tree.addAdapter(4, "card0-DP-1", Wiring::child);
    EXPECT_EQ(ofDevice(tree.device()), Buses({4, 9, 10}));
}

TEST_F(AdaptersTest, ListsNoAdapterOfAnotherDevice) {
    tree.addAdapter(4, "card0-DP-1", Wiring::child);
    tree.addAdapter(5, "card1-DP-1", Wiring::child);
    tree.addAdapterAt(0, "devices/pci0000:00/0000:00:1f.4");
    // Whose name begins as the device's does.
    tree.addAdapterAt(1, std::string("devices/pci0000:00/") + SysfsTree::usualDevice + "0");
    EXPECT_EQ(ofDevice(tree.device()), Buses{4});
    EXPECT_EQ(ofDevice(""), Buses());
}

TEST_F(AdaptersTest, ListsNoChipsForAdapters) {
    tree.addAdapter(4, "card0-DP-1", Wiring::none);
    tree.addClient(4, "4-0037");
    tree.addClient(4, "i2c-x");
    EXPECT_EQ(ofDevice(tree.device()), Buses{4});
}

// Of a connector.

TEST_F(AdaptersTest, FindsTheAdapterThatIsTheConnectorsChild) {
    tree.addAdapter(4, "card0-DP-1", Wiring::child);
    tree.addAdapter(5, "card0-HDMI-A-1", Wiring::none);
    const auto adapter = ofConnector("card0-DP-1");
    ASSERT_TRUE(adapter);
    EXPECT_EQ(adapter->bus, 4);
    EXPECT_EQ(adapter->device, tree.device() + "/drm/card0/card0-DP-1/i2c-4");
    EXPECT_EQ(busOf("card0-HDMI-A-1"), std::nullopt);
}

TEST_F(AdaptersTest, FindsTheAdapterThatALinkLeadsTo) {
    tree.addAdapter(4, "card0-DP-1", Wiring::none);
    tree.addAdapter(12, "card0-HDMI-A-1", Wiring::link);
    const auto adapter = ofConnector("card0-HDMI-A-1");
    ASSERT_TRUE(adapter);
    EXPECT_EQ(adapter->bus, 12);
    EXPECT_EQ(adapter->device, tree.device() + "/i2c-12");
    EXPECT_EQ(Adapters::ofDevice(sysfs, tree.device()).back(), adapter) << "one adapter by every way";
}

TEST_F(AdaptersTest, PrefersTheChildToTheLink) {
    tree.addAdapter(4, "card0-DP-1", Wiring::link);
    tree.addAdapter(6, "card0-DP-1", Wiring::child);
    EXPECT_EQ(busOf("card0-DP-1"), 6);
}

TEST_F(AdaptersTest, TakesNothingElseInTheConnectorsFolderForAnAdapter) {
    for (const char* name : {"i2c-", "i2c-x", "i2c-4x", "i2c--4", "drm_dp_aux0", "i2c-99999999999"}) {
        tree.put(tree.placeOf("card0-DP-1") + "/" + name, "");
    }
    EXPECT_EQ(ofConnector("card0-DP-1"), std::nullopt);
}

TEST_F(AdaptersTest, FindsNoAdapterAtALinkThatLeadsNowhere) {
    tree.addAdapter(4, "card0-DP-1", Wiring::link);
    tree.remove("devices/pci0000:00/0000:00:02.0/i2c-4");
    EXPECT_EQ(ofConnector("card0-DP-1"), std::nullopt);
}

// By its EDID.

TEST_F(AdaptersTest, FindsTheAdapterBehindWhichAMonitorHasThisEDID) {
    devices.putEDID(4, alder);
    devices.putEDID(5, birch);
    EXPECT_EQ(withEDID({4, 5}, birch), 5);
    EXPECT_EQ(withEDID({4, 5}, alder), 4);
}

TEST_F(AdaptersTest, FindsTheFirstOfSeveral) {
    devices.putEDID(4, birch);
    devices.putEDID(5, alder);
    devices.putEDID(6, alder);
    EXPECT_EQ(withEDID({4, 5, 6}, alder), 5);
    EXPECT_EQ(withEDID({6, 5}, alder), 6);
    EXPECT_EQ(devices.counts(4).writes, 1);
}

TEST_F(AdaptersTest, FindsNoneWhereNobodyAnswers) {
    devices.addBus(4);
    EXPECT_EQ(withEDID({}, alder), std::nullopt);
    EXPECT_EQ(withEDID({4, 5}, alder), std::nullopt) << "an empty bus, and none at all";
}

TEST_F(AdaptersTest, PassesOverBusesThatFail) {
    devices.putEDID(4, alder);
    devices.putEDID(5, alder);
    devices.fail(4, EACCES);
    EXPECT_EQ(withEDID({4, 5}, alder), 5);
}

TEST_F(AdaptersTest, PassesOverMonitorsThatFailInTheMiddle) {
    devices.put(4, 0x50, {[](auto) { return 0; }, [](auto) { return EIO; }});
    devices.putEDID(5, alder);
    EXPECT_EQ(withEDID({4, 5}, alder), 5);
}

TEST_F(AdaptersTest, ReadsAnEDIDFromItsStart) {
    devices.putEDID(4, alder);
    EDIDBytes some(10);
    EXPECT_EQ(devices.read(4, 0x50, some), 0);
    EXPECT_EQ(withEDID({4}, alder), 4);
    EXPECT_EQ(withEDID({4}, alder), 4);
}

TEST_F(AdaptersTest, ComparesTheWholeBaseBlock) {
    EDIDBytes similar = alder;
    similar[127] ^= 1;
    devices.putEDID(4, similar);
    EXPECT_EQ(withEDID({4}, alder), std::nullopt);
}

TEST_F(AdaptersTest, ComparesNothingBehindTheBaseBlock) {
    devices.putEDID(4, alder);
    EDIDBytes longer = alder;
    longer.resize(256, 0x5A);
    EXPECT_EQ(withEDID({4}, longer), 4);
}

TEST_F(AdaptersTest, AsksNobodyForLessThanABlock) {
    devices.putEDID(4, alder);
    EXPECT_EQ(withEDID({4}, {}), std::nullopt);
    EXPECT_EQ(withEDID({4}, EDIDBytes(alder.begin(), alder.end() - 1)), std::nullopt);
    EXPECT_EQ(devices.transfers(), 0);
}

// Whether it is there.

TEST_F(AdaptersTest, IsThereUntilItGoes) {
    for (const Wiring wiring : {Wiring::child, Wiring::link}) {
        tree.addAdapter(4, "card0-DP-1", wiring);
        const auto adapter = ofConnector("card0-DP-1");
        ASSERT_TRUE(adapter);
        EXPECT_TRUE(Adapters::isThere(sysfs, *adapter));
        tree.removeAdapter(4);
        EXPECT_FALSE(Adapters::isThere(sysfs, *adapter));
        EXPECT_EQ(ofConnector("card0-DP-1"), std::nullopt);
    }
}

TEST_F(AdaptersTest, IsNotThereUnderAnotherNumber) {
    tree.addAdapter(4, "card0-DP-1", Wiring::link);
    const auto adapter = ofConnector("card0-DP-1");
    tree.renumber(4, 7);
    EXPECT_FALSE(Adapters::isThere(sysfs, *adapter));
    EXPECT_EQ(busOf("card0-DP-1"), 7);
}

TEST_F(AdaptersTest, IsNotThereWhenAnotherAdapterHasGotItsNumber) {
    tree.addAdapter(4, "card0-DP-1", Wiring::child);
    const auto adapter = ofConnector("card0-DP-1");
    tree.removeAdapter(4);
    tree.addAdapter(4, "card1-DP-1", Wiring::child);
    EXPECT_FALSE(Adapters::isThere(sysfs, *adapter));
}

TEST_F(AdaptersTest, IsThereAgainInItsOldPlaceUnderItsOldNumber) {
    tree.addAdapter(4, "card0-DP-1", Wiring::child);
    const auto adapter = ofConnector("card0-DP-1");
    tree.removeAdapter(4);
    tree.addAdapter(4, "card0-DP-1", Wiring::child);
    EXPECT_TRUE(Adapters::isThere(sysfs, *adapter));
}

}  // namespace
}  // namespace vantrel::linux
