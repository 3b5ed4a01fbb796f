#include "platform/linux/LinuxObstacles.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>

#include "platform/linux/KernelI2C.h"

namespace vantrel::linux {
namespace {

using text::Text;

std::string nameOf(const Inventory::Display& display) {
    return display.edid && display.edid->name ? *display.edid->name : display.connector.name;
}

void addOnce(std::vector<Text>& texts, Text text) {
    if (std::find(texts.begin(), texts.end(), text) == texts.end()) texts.push_back(std::move(text));
}

}  // namespace

std::vector<Text> LinuxObstacles::find() {
    std::vector<Text> obstacles;
    const auto displays = inventory_.displays();
    for (const Inventory::Display& display : *displays) {
        if (!displays_.isOnline(display.id) || display.connector.isBuiltIn()) continue;
        auto found = obstacle(display);
        if (!found) continue;
        addOnce(obstacles, *std::move(found));
    }
    if (!obstacles.empty() && !desktop_.hasTables()) {
        obstacles.push_back(
            Text::translated("The picture can't be dimmed instead: %@ gives programs no way to it. Most "
                             "sessions on Xorg do; one can be chosen when you log in.",
                             {desktop_.name()}));
    }
    return obstacles;
}

std::optional<Text> LinuxObstacles::obstacle(const Inventory::Display& display) {
    if (!display.adapter) {
        for (const I2CDevices::Bus bus : display.askedInVain) {
            if (auto found = obstacle(bus)) return found;
        }
        return Text::translated(
            "%@ has no control channel on this connection. A cable straight from the "
            "computer to the monitor, without an adapter or a dock, usually has.",
            {nameOf(display)});
    }
    const I2CDevices::Bus bus = display.adapter->bus;
    if (auto found = obstacle(bus)) return found;
    const auto failure = answers_.lastingFailure(display.id);
    if (!failure) return std::nullopt;
    if (*failure == EBUSY) {
        return Text::translated(
            "A driver of the kernel holds the control channel of %@. To see which, run: "
            "readlink /sys/bus/i2c/devices/%@-0037/driver",
            {nameOf(display), std::to_string(bus)});
    }
    return Text::translated("%@ doesn't answer. Look for DDC/CI in the monitor's own menu and switch it on.",
                            {nameOf(display)});
}

std::optional<Text> LinuxObstacles::obstacle(I2CDevices::Bus bus) {
    switch (nodes_.access(bus)) {
        case DeviceNodes::Access::missing:
            return Text::translated(
                "The kernel's module for monitors' control channels isn't loaded. To load "
                "it, run: sudo modprobe i2c-dev");
        case DeviceNodes::Access::forbidden:
            return forbidden(bus);
        case DeviceNodes::Access::allowed:
            break;
    }
    return std::nullopt;
}

Text LinuxObstacles::forbidden(I2CDevices::Bus bus) {
    const auto group = nodes_.group(bus);
    if (group) {
        return Text::translated(
            "You may not use the monitors' control channels (%@). To be permitted, run this and "
            "log in again: sudo usermod --append --groups %@ $USER",
            {KernelI2C::path(bus), *group});
    }
    return Text::translated(
        "You may not use the monitors' control channels (%@). To be permitted, run this and "
        "restart: sudo apt install i2c-tools && sudo usermod --append --groups i2c $USER",
        {KernelI2C::path(bus)});
}

}  // namespace vantrel::linux
