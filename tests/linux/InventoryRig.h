// An inventory of a sysfs in a folder, with I2C buses in virtual time. Base of fixtures.
#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "linux/FakeI2C.h"
#include "linux/SysfsTree.h"
#include "linux/TestEDID.h"
#include "platform/linux/BoundedI2C.h"
#include "platform/linux/Inventory.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel::linux {

class InventoryRig : public testing::Test {
  protected:
    using Wiring = SysfsTree::Wiring;

    ~InventoryRig() override { time.finishThreads(); }

    // A connector with an adapter behind which the monitor's EDID can be read.
    void add(const std::string& entry, unsigned bus, Wiring wiring) {
        tree.addConnector(entry);
        tree.addAdapter(bus, entry, wiring);
        devices.addBus(bus);
    }
    void plug(const std::string& entry, const EDIDBytes& edid, std::optional<unsigned> bus = std::nullopt) {
        tree.plug(entry, edid);
        if (bus) devices.putEDID(*bus, edid);
    }
    void unplug(const std::string& entry, std::optional<unsigned> bus = std::nullopt) {
        tree.unplug(entry);
        if (bus) devices.take(*bus, 0x50);
    }
    // What is on that connector at a new look.
    std::optional<Inventory::Display> look(const std::string& entry) {
        inventory.look();
        for (const Inventory::Display& display : *inventory.displays()) {
            if (display.connector.folder == "/class/drm/" + entry) return display;
        }
        return std::nullopt;
    }
    std::optional<unsigned> busOf(const std::string& entry) {
        const auto display = look(entry);
        if (!display || !display->adapter) return std::nullopt;
        return display->adapter->bus;
    }
    platform::DisplayID idOf(const std::string& entry) {
        const auto display = look(entry);
        return display ? display->id : 0;
    }

    simulated::VirtualTime time;
    SysfsTree tree;
    const Sysfs sysfs = tree.sysfs();
    FakeI2C devices{time};
    BoundedI2C buses{devices, time};
    Inventory inventory{sysfs, buses};
};

}  // namespace vantrel::linux
