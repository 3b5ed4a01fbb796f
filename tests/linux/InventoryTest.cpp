#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "linux/InventoryRig.h"
#include "platform/simulated/Random.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;

class InventoryTest : public InventoryRig {
  protected:
    std::vector<std::string> names() {
        inventory.look();
        std::vector<std::string> names;
        for (const Inventory::Display& display : *inventory.displays())
            names.push_back(display.connector.name);
        return names;
    }

    const EDIDBytes alder = edidOf(1000, 22, 102, "Alder");
    const EDIDBytes birch = edidOf(1000, 23, 103, "Birch");
    // Equal monitors that nothing tells apart.
    const EDIDBytes twin = edidOf(1000, 24, 0, "Twin");
};

TEST_F(InventoryTest, IsEmptyBeforeTheFirstLook) {
    tree.addConnector("card0-DP-1");
    plug("card0-DP-1", alder);
    EXPECT_TRUE(inventory.displays()->empty());
}

TEST_F(InventoryTest, HasWhatIsPluggedInInTheOrderOfItsSockets) {
    for (const char* entry : {"card1-DP-1", "card0-HDMI-A-1", "card0-DP-10", "card0-DP-2", "card0-DP-3"}) {
        tree.addConnector(entry);
        plug(entry, alder);
    }
    unplug("card0-DP-3");
    EXPECT_EQ(names(), std::vector<std::string>({"DP-2", "DP-10", "HDMI-A-1", "DP-1"}));
}

TEST_F(InventoryTest, KnowsADisplaysSocketMonitorAndBus) {
    add("card0-DP-1", 4, Wiring::child);
    plug("card0-DP-1", alder);
    const auto display = look("card0-DP-1");
    ASSERT_TRUE(display);
    EXPECT_EQ(display->connector, Connector::list(sysfs).front());
    EXPECT_EQ(display->edid, EDID::read(alder));
    EXPECT_EQ(display->adapter, (Adapter{4, tree.device() + "/drm/card0/card0-DP-1/i2c-4"}));
    EXPECT_EQ(inventory.display(display->id), display);
}

TEST_F(InventoryTest, FindsNoDisplayOfANumberThatNoneHas) {
    tree.addConnector("card0-DP-1");
    plug("card0-DP-1", alder);
    const auto id = idOf("card0-DP-1");
    for (const platform::DisplayID other : {0U, id + 1, id - 1, 0xFFFFFFF0U}) {
        EXPECT_EQ(inventory.display(other), std::nullopt);
    }
}

TEST_F(InventoryTest, StandsAsItStoodAtTheLastLook) {
    tree.addConnector("card0-DP-1");
    plug("card0-DP-1", alder);
    const auto id = idOf("card0-DP-1");
    const auto before = inventory.displays();
    unplug("card0-DP-1");
    EXPECT_TRUE(inventory.display(id));
    inventory.look();
    EXPECT_EQ(inventory.display(id), std::nullopt);
    EXPECT_TRUE(inventory.displays()->empty());
    EXPECT_EQ(before->size(), 1) << "who holds an older one keeps it";
}

TEST_F(InventoryTest, HasADisplayWhoseEDIDCanNotBeRead) {
    add("card0-DP-1", 4, Wiring::child);
    plug("card0-DP-1", EDIDBytes(128, 0x11));
    const auto display = look("card0-DP-1");
    ASSERT_TRUE(display);
    EXPECT_EQ(display->edid, std::nullopt);
    EXPECT_EQ(display->adapter->bus, 4);
    EXPECT_EQ(idOf("card0-DP-1"), display->id);
    plug("card0-DP-1", {});
    EXPECT_EQ(look("card0-DP-1")->edid, std::nullopt);
}

// Identifiers.

TEST_F(InventoryTest, GivesAMonitorTheSameIdentifierWhenItIsPluggedInAgain) {
    tree.addConnector("card0-DP-1");
    tree.addConnector("card0-DP-2");
    plug("card0-DP-2", birch);
    plug("card0-DP-1", alder);
    const auto id = idOf("card0-DP-1");
    unplug("card0-DP-1");
    EXPECT_EQ(idOf("card0-DP-1"), 0);
    unplug("card0-DP-2");
    plug("card0-DP-1", alder);
    EXPECT_EQ(idOf("card0-DP-1"), id);
}

TEST_F(InventoryTest, GivesTheSameIdentifiersAfterARestart) {
    for (const char* entry : {"card0-DP-1", "card0-DP-2", "card0-DP-3"}) tree.addConnector(entry);
    plug("card0-DP-1", alder);
    plug("card0-DP-2", twin);
    plug("card0-DP-3", twin);
    inventory.look();
    Inventory next(sysfs, buses);
    next.look();
    EXPECT_EQ(*next.displays(), *inventory.displays());
}

TEST_F(InventoryTest, GivesTheSameIdentifierWhateverTheCardAndTheBusAreNumbered) {
    add("card0-DP-1", 4, Wiring::child);
    plug("card0-DP-1", alder);
    const auto id = idOf("card0-DP-1");
    tree.renumber(4, 9);
    EXPECT_EQ(idOf("card0-DP-1"), id);
    unplug("card0-DP-1");
    tree.addCard(3);
    tree.addConnector("card3-DP-1");
    plug("card3-DP-1", alder);
    EXPECT_EQ(idOf("card3-DP-1"), id);
}

TEST_F(InventoryTest, TellsEqualMonitorsApartByTheirSockets) {
    std::set<platform::DisplayID> alone;
    std::set<platform::DisplayID> together;
    for (const char* entry : {"card0-DP-1", "card0-DP-2", "card1-DP-1"}) {
        tree.addConnector(entry);
        plug(entry, twin);
        alone.insert(idOf(entry));
        unplug(entry);
    }
    for (const char* entry : {"card0-DP-1", "card0-DP-2", "card1-DP-1"}) plug(entry, twin);
    for (const char* entry : {"card0-DP-1", "card0-DP-2", "card1-DP-1"}) together.insert(idOf(entry));
    EXPECT_EQ(alone.size(), 3);
    EXPECT_EQ(together, alone);
}

TEST_F(InventoryTest, GivesEachMonitorOnASocketAnIdentifierOfItsOwn) {
    tree.addConnector("card0-DP-1");
    std::set<platform::DisplayID> ids;
    for (const EDIDBytes& edid : {alder, birch, twin, edidOf(1001, 22, 102), edidOf(1000, 22, 103),
                                  edidOf(1000, 21, 102), edidOf(1000, 22, 0x10066), EDIDBytes()}) {
        plug("card0-DP-1", edid);
        ids.insert(idOf("card0-DP-1"));
    }
    EXPECT_EQ(ids.size(), 8);
}

TEST_F(InventoryTest, TellsMonitorsApartWhoseIdentifiersMeet) {
    tree.addConnector("card0-DP-1");
    tree.addConnector("card0-DP-2");
    // FNV-1a, as the identifiers are made: two monitors are looked for whose hashes are equal.
    const auto hash = [this](const std::string& name, std::uint32_t serial) {
        std::string bytes = tree.device() + '\0' + name + '\0';
        for (const std::uint32_t number : {1000U, 22U, serial}) {
            for (const unsigned shift : {0U, 8U, 16U, 24U})
                bytes += static_cast<char>(number >> shift & 0xFFU);
        }
        std::uint32_t value = 2166136261U;
        for (const char byte : bytes) value = (value ^ static_cast<std::uint8_t>(byte)) * 16777619U;
        return value;
    };
    std::unordered_map<std::uint32_t, std::uint32_t> serials;
    simulated::Random random(1);
    const auto serial = [&random] { return static_cast<std::uint32_t>(random.uniform(1, 0xFFFFFFFF)); };
    while (serials.size() < 100'000) {
        const std::uint32_t first = serial();
        serials.emplace(hash("DP-1", first), first);
    }
    std::uint32_t second = serial();
    while (!serials.contains(hash("DP-2", second))) second = serial();
    const EDIDBytes left = edidOf(1000, 22, serials.at(hash("DP-2", second)));
    const EDIDBytes right = edidOf(1000, 22, second);

    plug("card0-DP-1", left);
    const auto id = idOf("card0-DP-1");
    unplug("card0-DP-1");
    plug("card0-DP-2", right);
    ASSERT_EQ(idOf("card0-DP-2"), id) << "they don't meet";
    plug("card0-DP-1", left);
    EXPECT_EQ(idOf("card0-DP-1"), id);
    EXPECT_NE(idOf("card0-DP-2"), id);
    EXPECT_NE(idOf("card0-DP-2"), 0);
    EXPECT_EQ(inventory.display(idOf("card0-DP-2"))->connector.name, "DP-2");
}

// Buses.

TEST_F(InventoryTest, AsksNobodyForABusThatAConnectorNames) {
    add("card0-DP-1", 4, Wiring::child);
    add("card0-HDMI-A-1", 5, Wiring::link);
    plug("card0-DP-1", alder, 4);
    plug("card0-HDMI-A-1", birch, 5);
    EXPECT_EQ(busOf("card0-DP-1"), 4);
    EXPECT_EQ(busOf("card0-HDMI-A-1"), 5);
    EXPECT_EQ(devices.transfers(), 0);
}

TEST_F(InventoryTest, AsksTheMonitorsForABusThatNothingNames) {
    add("card0-DP-1", 4, Wiring::none);
    add("card0-DP-2", 5, Wiring::none);
    plug("card0-DP-1", alder, 5);
    plug("card0-DP-2", birch, 4);
    EXPECT_EQ(busOf("card0-DP-1"), 5);
    EXPECT_EQ(busOf("card0-DP-2"), 4);
}

TEST_F(InventoryTest, KnowsWhoWasAskedInVain) {
    add("card0-DP-1", 4, Wiring::none);
    add("card0-DP-2", 5, Wiring::child);
    add("card0-DP-3", 6, Wiring::none);
    plug("card0-DP-1", alder);
    plug("card0-DP-2", birch, 5);
    EXPECT_EQ(look("card0-DP-1")->askedInVain, (std::vector<I2CDevices::Bus>{4, 6}));
    EXPECT_TRUE(look("card0-DP-2")->askedInVain.empty());
    plug("card0-DP-1", alder, 6);
    EXPECT_EQ(busOf("card0-DP-1"), 6);
    EXPECT_TRUE(look("card0-DP-1")->askedInVain.empty());
}

TEST_F(InventoryTest, AsksOnlyTheBusesOfItsDeviceThatAreNobodyElses) {
    add("card0-DP-1", 4, Wiring::child);
    add("card0-DP-2", 5, Wiring::none);
    add("card1-DP-1", 6, Wiring::none);
    plug("card0-DP-1", twin, 4);
    plug("card0-DP-2", twin, 5);
    devices.putEDID(6, twin);
    EXPECT_EQ(busOf("card0-DP-2"), 5);
    EXPECT_EQ(devices.counts(4), FakeI2C::Counts());
    EXPECT_EQ(devices.counts(6), FakeI2C::Counts());
}

TEST_F(InventoryTest, AsksForNoBusOfABuiltInPanel) {
    add("card0-eDP-1", 4, Wiring::none);
    plug("card0-eDP-1", alder, 4);
    EXPECT_EQ(busOf("card0-eDP-1"), std::nullopt);
    EXPECT_EQ(devices.transfers(), 0);
}

TEST_F(InventoryTest, AsksOnceForEachTimeThatAMonitorIsPluggedIn) {
    add("card0-DP-1", 4, Wiring::none);
    plug("card0-DP-1", alder, 4);
    inventory.look();
    EXPECT_EQ(devices.transfers(), 2);
    for (int look = 0; look < 3; ++look) EXPECT_EQ(busOf("card0-DP-1"), 4);
    EXPECT_EQ(devices.transfers(), 2);
    unplug("card0-DP-1");
    inventory.look();
    plug("card0-DP-1", alder);
    EXPECT_EQ(busOf("card0-DP-1"), 4);
    EXPECT_EQ(devices.transfers(), 4);
}

TEST_F(InventoryTest, AsksAgainForAnotherMonitor) {
    add("card0-DP-1", 4, Wiring::none);
    add("card0-DP-2", 5, Wiring::none);
    plug("card0-DP-1", alder, 4);
    EXPECT_EQ(busOf("card0-DP-1"), 4);
    devices.take(4, 0x50);
    plug("card0-DP-1", birch, 5);
    EXPECT_EQ(busOf("card0-DP-1"), 5);
}

TEST_F(InventoryTest, AsksAgainWhenTheBusHasGoneOrHasAnotherNumber) {
    add("card0-DP-1", 4, Wiring::none);
    plug("card0-DP-1", alder, 4);
    EXPECT_EQ(busOf("card0-DP-1"), 4);
    tree.renumber(4, 8);
    devices.renumber(4, 8);
    EXPECT_EQ(busOf("card0-DP-1"), 8);
    tree.removeAdapter(8);
    devices.removeBus(8);
    EXPECT_EQ(busOf("card0-DP-1"), std::nullopt);
}

// What a connector names counts for more than what was found out before.
TEST_F(InventoryTest, AsksAgainWhenTheBusIsSomebodyElsesNow) {
    add("card0-DP-1", 4, Wiring::none);
    add("card0-DP-2", 5, Wiring::link);
    plug("card0-DP-1", alder, 4);
    plug("card0-DP-2", birch, 5);
    EXPECT_EQ(busOf("card0-DP-1"), 4);
    for (const auto& [from, to] : {std::pair(4U, 9U), std::pair(5U, 4U), std::pair(9U, 5U)}) {
        tree.renumber(from, to);
        devices.renumber(from, to);
    }
    EXPECT_EQ(busOf("card0-DP-1"), 5);
    EXPECT_EQ(busOf("card0-DP-2"), 4);
}

TEST_F(InventoryTest, AsksUntilItFindsTheMonitor) {
    add("card0-DP-1", 4, Wiring::none);
    plug("card0-DP-1", alder, 4);
    devices.fail(4, EACCES);
    EXPECT_EQ(busOf("card0-DP-1"), std::nullopt);
    devices.fail(4, 0);
    EXPECT_EQ(busOf("card0-DP-1"), 4);
}

TEST_F(InventoryTest, AsksNobodyForAMonitorWithoutAnEDID) {
    add("card0-DP-1", 4, Wiring::none);
    plug("card0-DP-1", {});
    EXPECT_EQ(busOf("card0-DP-1"), std::nullopt);
    EXPECT_EQ(devices.transfers(), 0);
}

TEST_F(InventoryTest, GivesEachOfEqualMonitorsABusOfItsOwn) {
    add("card0-DP-1", 4, Wiring::none);
    add("card0-DP-2", 5, Wiring::none);
    plug("card0-DP-1", twin, 4);
    plug("card0-DP-2", twin, 5);
    EXPECT_EQ(busOf("card0-DP-1"), 4);
    EXPECT_EQ(busOf("card0-DP-2"), 5);
}

TEST_F(InventoryTest, LeavesAMonitorItsBusWhenAnEqualOneIsPluggedInBeforeIt) {
    add("card0-DP-1", 5, Wiring::none);
    add("card0-DP-2", 4, Wiring::none);
    plug("card0-DP-2", twin, 4);
    EXPECT_EQ(busOf("card0-DP-2"), 4);
    plug("card0-DP-1", twin, 5);
    EXPECT_EQ(busOf("card0-DP-1"), 5);
    EXPECT_EQ(busOf("card0-DP-2"), 4);
}

TEST_F(InventoryTest, IsHeldUpByAHangingBusForItsBoundAndOnlyOnce) {
    add("card0-DP-1", 4, Wiring::none);
    add("card0-DP-2", 5, Wiring::none);
    plug("card0-DP-1", alder, 5);
    devices.delay(4, 60s);
    EXPECT_EQ(busOf("card0-DP-1"), 5);
    EXPECT_EQ(time.now().time_since_epoch(), BoundedI2C::bound);
    plug("card0-DP-2", birch);
    EXPECT_EQ(busOf("card0-DP-2"), std::nullopt);
    EXPECT_EQ(time.now().time_since_epoch(), BoundedI2C::bound);
}

TEST_F(InventoryTest, KeepsTheBusesThatLeadToMonitorsAndNoOthers) {
    add("card0-DP-1", 4, Wiring::child);
    add("card0-DP-2", 5, Wiring::none);
    add("card0-DP-3", 6, Wiring::none);
    plug("card0-DP-1", alder, 4);
    plug("card0-DP-2", birch, 6);
    inventory.look();
    EDIDBytes some(1);
    EXPECT_EQ(buses.read(4, 0x50, some), 0);
    EXPECT_EQ(buses.read(6, 0x50, some), 0);
    EXPECT_EQ(buses.read(5, 0x50, some), ENODEV);
    unplug("card0-DP-1");
    inventory.look();
    EXPECT_EQ(buses.read(4, 0x50, some), ENODEV);
    EXPECT_EQ(buses.read(6, 0x50, some), 0);
}

TEST_F(InventoryTest, KnowsWhetherATransferWouldStillReachTheMonitor) {
    add("card0-DP-1", 4, Wiring::child);
    plug("card0-DP-1", alder);
    const auto display = look("card0-DP-1");
    ASSERT_TRUE(display->adapter);
    EXPECT_TRUE(inventory.leadsTo(display->id, *display->adapter));
    EXPECT_FALSE(inventory.leadsTo(display->id + 1, *display->adapter)) << "it is another one's";
    tree.removeAdapter(4);
    EXPECT_FALSE(inventory.leadsTo(display->id, *display->adapter));
}

TEST_F(InventoryTest, MayBeReadOnAnyThreadWhileItLooks) {
    add("card0-DP-1", 4, Wiring::none);
    plug("card0-DP-1", alder, 4);
    devices.delay(4, 100ms);
    const auto id = idOf("card0-DP-1");
    unplug("card0-DP-1");
    inventory.look();
    plug("card0-DP-1", alder);
    int before = 0;
    int after = 0;
    time.startThread("reader", runtime::QualityOfService::userInitiated, [&] {
        for (int turn = 0; turn < 40; ++turn) {
            time.sleepFor(10ms);
            (inventory.display(id) ? after : before) += 1;
        }
    });
    inventory.look();
    time.sleepFor(1s);
    EXPECT_GT(before, 10);
    EXPECT_GT(after, 10);
    EXPECT_EQ(before + after, 40);
}

}  // namespace
}  // namespace vantrel::linux
