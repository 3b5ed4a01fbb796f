#include <gtest/gtest.h>

#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/DeskWriter.h"
#include "platform/simulated/ShippedDesks.h"
#include "simulated/DeskFileText.h"
#include "simulated/MonitorBench.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using platform::Transfer;

Desk shippedDesk(std::string_view name) {
    Desk desk = readDeskText(std::string(*ShippedDesks::text(name)));
    for (DisplayPlan& display : desk.displays) {
        if (display.monitor) display.monitor->personality = Personality();
    }
    return desk;
}

TEST(DeskWriter, WritesADeskForPeople) {
    Desk desk;
    desk.title = "T";
    DisplayPlan& display = desk.displays.emplace_back();
    display.id = 2;
    display.name = "Lumo 24";
    display.vendor = 0x72;
    display.product = 0x12345;
    display.monitor.emplace().features[0x10] = {0, 50, 100, false};
    desk.registry = {framebufferEntry(display), proxyEntry(display)};
    EXPECT_EQ(DeskWriter::text(desk), R"json({
  "title": "T",
  "displays": [
    {
      "id": 2,
      "name": "Lumo 24",
      "vendor": "0x0072",
      "product": "0x12345",
      "monitor": {"features": {"0x10": {"current": 50, "maximum": 100}}}
    }
  ],
  "registry": [
    {"framebuffer": 2},
    {"proxy": 2}
  ]
}
)json");
}

TEST(DeskWriter, WritesEveryShippedDeskSoThatItReadsTheSame) {
    for (const ShippedDesks::Entry& entry : ShippedDesks::list()) {
        const Desk desk = shippedDesk(entry.name);
        ASSERT_FALSE(desk.displays.empty()) << desk.title;
        const Desk read = readDeskText(DeskWriter::text(desk));
        EXPECT_EQ(read, desk) << entry.name << ": " << read.title;
    }
}

TEST(DeskWriter, WritesEveryMemberThatADisplayHas) {
    Desk desk;
    desk.title = "T \"quoted\"\n";
    desk.description = "D";
    desk.seed = 0xFFFFFFFFFFFFFFFF;
    desk.displays.resize(2);
    DisplayPlan& panel = desk.displays.front();
    panel.id = 1;
    panel.isBuiltIn = true;
    panel.brightness = 0.1F;
    panel.width = 1;
    panel.height = 2;
    panel.transferTableCapacity = 0;
    DisplayPlan& display = desk.displays.back();
    display.id = 0xFFFFFFFF;
    display.vendor = 0xFFFFFFFF;
    display.serial = 0xFFFFFFFF;
    display.edidUUID = "U";
    display.isConnected = false;
    display.isOn = false;
    display.monitor = ordinaryMonitor();
    display.monitor->features[0x87].unsupported = true;
    display.monitor->capabilities = std::string("\xFF\0(", 3);
    display.monitor->personality.dead = true;
    display.monitor->recording = {
        {0us, 1us, Transfer::Direction::write, 0x36, 0x50, bytes(get10), 4, 0},
        {86'399'999'999us, 1234567us, Transfer::Direction::read, 0x37, 0, {}, 11, -1},
    };
    desk.registry = {
        {RegistryEntryPlan::Kind::other, "O\xFF", 0, {{"A", -1}, {"B", std::monostate()}}},
        {RegistryEntryPlan::Kind::framebuffer, "F", 0xFFFFFFFF, {{"EDID UUID", "other"}, {"X", "more"}}},
        {RegistryEntryPlan::Kind::proxy, "DCPAVServiceProxy", 0xFFFFFFFF, {}},
        framebufferEntry(panel),
    };
    desk.missingSymbols = {"IOAVServiceWriteI2C"};
    desk.obstacles = {"No cable.", ""};
    const Desk read = readDeskText(DeskWriter::text(desk));
    EXPECT_EQ(read, desk) << read.title;
}

TEST(DeskWriter, WritesADeskWithNothingOnIt) {
    Desk desk;
    desk.title = "Empty";
    EXPECT_EQ(readDeskText(DeskWriter::text(desk)), desk);
}

}  // namespace
}  // namespace vantrel::simulated
