#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "linux/InventoryRig.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/simulated/DefaultRegistry.h"

namespace vantrel::linux {
namespace {

using Names = std::vector<std::string>;
using platform::PropertyDictionary;
using platform::PropertyValue;
using Iterator = std::unique_ptr<platform::RegistryIterator>;
using Entry = std::unique_ptr<platform::RegistryEntry>;

class LinuxRegistryTest : public InventoryRig {
  protected:
    LinuxRegistryTest() {
        for (const char* entry : {"card0-DP-1", "card0-DP-2", "card0-eDP-1"}) tree.addConnector(entry);
    }

    // The framebuffer at this place among the displays, and the proxy behind it.
    Entry framebuffer(std::size_t place) { return entry(2 * place); }
    Entry proxy(std::size_t place) { return entry(2 * place + 1); }
    Entry entry(std::size_t place) {
        const Iterator walk = registry.iterateServicePlane();
        Entry found = walk->next();
        while (found && place-- > 0) found = walk->next();
        return found;
    }
    // Of the proxies, in the order of the walk.
    std::vector<platform::DisplayID> walk() {
        std::vector<platform::DisplayID> ids;
        const Iterator walk = registry.iterateServicePlane();
        while (const Entry entry = walk->next()) {
            if (entry->name() == "DCPAVServiceProxy") ids.push_back(entry->object());
        }
        return ids;
    }
    static std::optional<std::string> text(const Entry& entry, std::string_view key) {
        const auto value = entry->property(key);
        const auto* found = value ? std::get_if<std::string>(&*value) : nullptr;
        return found != nullptr ? std::optional(*found) : std::nullopt;
    }
    static PropertyDictionary product(const Entry& entry) {
        const auto attributes = entry->property("DisplayAttributes");
        if (!attributes) return {};
        return std::get<PropertyDictionary>(
            std::get<PropertyDictionary>(*attributes).at("ProductAttributes"));
    }

    AnswerLog answers;
    AVServices services{inventory, buses, answers};
    LinuxRegistry registry{inventory, services};
    const EDIDBytes alder = edidOf(0x10AC, 0x40A1, 7001, "Alder");
    const EDIDBytes birch = edidOf(0x10AC, 0x40A2, 7002, "Birch");
    const EDIDBytes panel = edidOf(0x06AF, 0x1234, 0);
};

TEST_F(LinuxRegistryTest, IsEmptyWithoutAMonitor) {
    inventory.look();
    const Iterator walk = registry.iterateServicePlane();
    ASSERT_TRUE(walk);
    EXPECT_EQ(walk->next(), nullptr);
    EXPECT_EQ(walk->next(), nullptr);
}

TEST_F(LinuxRegistryTest, ShowsAFramebufferAndThenAProxyOfEachMonitor) {
    plug("card0-DP-1", alder);
    plug("card0-DP-2", birch);
    inventory.look();
    Names names;
    const Iterator walk = registry.iterateServicePlane();
    while (const Entry entry = walk->next()) names.push_back(entry->name());
    EXPECT_EQ(names, Names({"IOMobileFramebufferShim", "DCPAVServiceProxy", "IOMobileFramebufferShim",
                            "DCPAVServiceProxy"}));
    EXPECT_EQ(walk->next(), nullptr);
}

TEST_F(LinuxRegistryTest, ShowsWhoAMonitorIs) {
    plug("card0-DP-1", alder);
    inventory.look();
    simulated::DisplayPlan plan;
    plan.vendor = 0x10AC;
    plan.product = 0x40A1;
    const Entry entry = framebuffer(0);
    EXPECT_EQ(text(entry, "EDID UUID"), simulated::edidUUID(plan));
    EXPECT_EQ(text(entry, "EDID UUID"), "10ACA140-0000-0000-0000-000000000000");
    EXPECT_EQ(product(entry), (PropertyDictionary{{"ProductName", std::string("Alder")},
                                                  {"SerialNumber", std::int64_t(7001)}}));
}

TEST_F(LinuxRegistryTest, ShowsTheHighestSerialNumberAsItIs) {
    plug("card0-DP-1", edidOf(1, 2, 0xFFFFFFFF, "Alder"));
    inventory.look();
    EXPECT_EQ(product(framebuffer(0)).at("SerialNumber"), PropertyValue(std::int64_t(0xFFFFFFFF)));
}

TEST_F(LinuxRegistryTest, ShowsNoNameOfAMonitorWithoutOne) {
    plug("card0-DP-1", edidOf(1, 2, 3));
    inventory.look();
    EXPECT_EQ(product(framebuffer(0)), (PropertyDictionary{{"SerialNumber", std::int64_t(3)}}));
    EXPECT_EQ(text(framebuffer(0), "EDID UUID"), "00010200-0000-0000-0000-000000000000");
}

TEST_F(LinuxRegistryTest, ShowsNothingOfAMonitorThatDoesNotSayWhoItIs) {
    plug("card0-DP-1", {});
    inventory.look();
    EXPECT_EQ(framebuffer(0)->name(), "IOMobileFramebufferShim");
    EXPECT_EQ(framebuffer(0)->property("EDID UUID"), std::nullopt);
    EXPECT_EQ(framebuffer(0)->property("DisplayAttributes"), std::nullopt);
    EXPECT_EQ(text(proxy(0), "Location"), "External");
}

TEST_F(LinuxRegistryTest, SaysWhetherAMonitorIsPartOfTheComputer) {
    plug("card0-DP-1", alder);
    plug("card0-eDP-1", panel);
    inventory.look();
    EXPECT_EQ(text(proxy(0), "Location"), "External");
    EXPECT_EQ(text(proxy(1), "Location"), "Internal");
    EXPECT_EQ(framebuffer(0)->property("Location"), std::nullopt);
    EXPECT_EQ(proxy(0)->property("EDID UUID"), std::nullopt);
}

TEST_F(LinuxRegistryTest, LeadsFromAProxyToItsMonitorAndFromAFramebufferToNone) {
    tree.addAdapter(4, "card0-DP-1", Wiring::child);
    plug("card0-DP-1", alder);
    const auto id = idOf("card0-DP-1");
    EXPECT_EQ(proxy(0)->object(), id);
    EXPECT_EQ(services.create(framebuffer(0)->object()), nullptr);
    const void* service = services.create(proxy(0)->object());
    ASSERT_NE(service, nullptr);
    registry.releaseService(service);
    EXPECT_EQ(services.live(), 0);
}

// The order.

TEST_F(LinuxRegistryTest, ShowsThoseWithAPictureFirst) {
    plug("card0-DP-1", alder);
    plug("card0-DP-2", birch);
    plug("card0-eDP-1", panel);
    const auto first = idOf("card0-DP-1");
    const auto second = idOf("card0-DP-2");
    const auto third = idOf("card0-eDP-1");
    EXPECT_EQ(walk(), std::vector({first, second, third}));
    registry.setOnline({third});
    EXPECT_EQ(walk(), std::vector({third, first, second}));
    registry.setOnline({third, second});
    EXPECT_EQ(walk(), std::vector({second, third, first})) << "in their own order";
    registry.setOnline({first, second, third});
    EXPECT_EQ(walk(), std::vector({first, second, third}));
    registry.setOnline({third, 17});
    EXPECT_EQ(walk(), std::vector({third, first, second}));
    registry.setOnline({});
    EXPECT_EQ(walk(), std::vector({first, second, third}));
}

TEST_F(LinuxRegistryTest, KeepsEachMonitorsIdentityWithItsProxyInAnyOrder) {
    plug("card0-DP-1", alder);
    plug("card0-DP-2", birch);
    const auto second = idOf("card0-DP-2");
    registry.setOnline({second});
    EXPECT_EQ(product(framebuffer(0)).at("ProductName"), PropertyValue(std::string("Birch")));
    EXPECT_EQ(proxy(0)->object(), second);
}

TEST_F(LinuxRegistryTest, WalksOnOverWhatItSawAtItsStart) {
    plug("card0-DP-1", alder);
    plug("card0-DP-2", birch);
    inventory.look();
    const Iterator walk = registry.iterateServicePlane();
    const Entry first = walk->next();
    unplug("card0-DP-1");
    unplug("card0-DP-2");
    inventory.look();
    EXPECT_EQ(product(first).at("ProductName"), PropertyValue(std::string("Alder")));
    int rest = 0;
    while (walk->next()) ++rest;
    EXPECT_EQ(rest, 3);
    EXPECT_EQ(entry(0), nullptr);
}

TEST_F(LinuxRegistryTest, MayBeWalkedOnAnyThread) {
    plug("card0-DP-1", alder);
    plug("card0-DP-2", birch);
    const auto first = idOf("card0-DP-1");
    const auto second = idOf("card0-DP-2");
    int walks = 0;
    for (int walker = 0; walker < 3; ++walker) {
        time.startThread("walker", runtime::QualityOfService::userInitiated, [&] {
            for (int turn = 0; turn < 10; ++turn) {
                const auto ids = walk();
                EXPECT_EQ(ids.size(), 2);
                EXPECT_NE(ids.front(), ids.back());
                ++walks;
                time.sleepFor(std::chrono::milliseconds(2));
            }
        });
    }
    for (int turn = 0; turn < 20; ++turn) {
        registry.setOnline({turn % 2 == 0 ? first : second});
        time.sleepFor(std::chrono::milliseconds(1));
    }
    time.sleepFor(std::chrono::seconds(1));
    EXPECT_EQ(walks, 30);
}

}  // namespace
}  // namespace vantrel::linux
