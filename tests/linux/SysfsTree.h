// A sysfs in a temporary folder, laid out as the kernel does it: the devices in a tree, and
// links to them by class and by bus. What happens to the hardware, happens to the files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/Sysfs.h"
#include "support/TemporaryFolder.h"

namespace vantrel::linux {

class SysfsTree {
  public:
    // How a connector names its adapter; `none`: an adapter of the graphics device only.
    enum class Wiring { child, link, none };
    // Sits in a computer as its only one, as a rule.
    static constexpr const char* usualDevice = "0000:00:02.0";

    SysfsTree() {
        for (const char* folder : {"class/drm", "class/backlight", "bus/i2c/devices"}) makeFolder(folder);
    }

    Sysfs sysfs() const { return Sysfs(folder_.path()); }
    std::string path(const std::string& name) const { return folder_.path(name); }
    void put(const std::string& name, std::string_view bytes) const {
        std::ofstream(path(name), std::ios::binary) << bytes;
    }
    void remove(const std::string& name) const { std::filesystem::remove_all(path(name)); }

    // A graphics device, in full: what Connector::device is.
    std::string device(const std::string& pci = usualDevice) const {
        return std::filesystem::canonical(path("devices/pci0000:00/" + pci)).string();
    }
    void addCard(unsigned card, const std::string& pci = usualDevice) {
        const std::string place = "devices/pci0000:00/" + pci + "/drm/card" + std::to_string(card);
        cards_[card] = "devices/pci0000:00/" + pci;
        makeFolder(place);
        link(place + "/device", cards_[card]);
        link("class/drm/card" + std::to_string(card), place);
    }

    // A connector ("card0-DP-1") with nothing plugged in. Its card is added if there is none.
    void addConnector(const std::string& entry) {
        const unsigned card = cardOf(entry);
        if (!cards_.contains(card))
            addCard(card, card == 0 ? usualDevice : "0000:0" + std::to_string(card) + ":00.0");
        const std::string place = placeOf(entry);
        makeFolder(place);
        link(place + "/device", cards_[card] + "/drm/card" + std::to_string(card));
        link("class/drm/" + entry, place);
        put(place + "/enabled", "disabled\n");
        unplug(entry);
    }
    void plug(const std::string& entry, const std::vector<std::uint8_t>& edid) const {
        put(placeOf(entry) + "/edid", {reinterpret_cast<const char*>(edid.data()), edid.size()});
        put(placeOf(entry) + "/status", "connected\n");
    }
    void unplug(const std::string& entry) const {
        put(placeOf(entry) + "/edid", "");
        put(placeOf(entry) + "/status", "disconnected\n");
    }
    // Whether the kernel sends a picture, which changes with no cable.
    void enable(const std::string& entry) const { put(placeOf(entry) + "/enabled", "enabled\n"); }
    void disable(const std::string& entry) const { put(placeOf(entry) + "/enabled", "disabled\n"); }

    // The adapter of a connector.
    void addAdapter(unsigned bus, const std::string& entry, Wiring wiring) {
        const std::string parent = wiring == Wiring::child ? placeOf(entry) : cards_.at(cardOf(entry));
        addAdapterAt(bus, parent);
        if (wiring == Wiring::link) link(placeOf(entry) + "/ddc", adapters_[bus]);
    }
    // An adapter below some other device, such as a memory controller.
    void addAdapterAt(unsigned bus, const std::string& parent) {
        const std::string name = "i2c-" + std::to_string(bus);
        adapters_[bus] = parent + "/" + name;
        makeFolder(parent + "/" + name + "/i2c-dev/" + name);
        link("bus/i2c/devices/" + name, adapters_[bus]);
    }
    // Its links into the connectors go with it.
    void removeAdapter(unsigned bus) {
        const std::string place = adapters_.at(bus);
        for (const std::string& owner : linksTo(place)) std::filesystem::remove(owner);
        remove(place);
        adapters_.erase(bus);
    }
    // As when its driver was loaded again: the same adapter under another number.
    void renumber(unsigned from, unsigned to) {
        const std::string place = adapters_.at(from);
        std::vector<std::string> owners = linksTo(place);
        removeAdapter(from);
        addAdapterAt(to, std::filesystem::path(place).parent_path().string());
        for (const std::string& owner : owners) {
            if (owner.ends_with("/ddc"))
                std::filesystem::create_directory_symlink(path(adapters_[to]), owner);
        }
    }
    // A chip on a bus ("4-0037"), which stands among the adapters.
    void addClient(unsigned bus, const std::string& name) {
        makeFolder(adapters_.at(bus) + "/" + name);
        link("bus/i2c/devices/" + name, adapters_[bus] + "/" + name);
    }

    void addBacklight(const std::string& name, const std::string& type, std::uint64_t brightness,
                      std::uint64_t maximum) const {
        const std::string place = "devices/pci0000:00/backlight/" + name;
        makeFolder(place);
        link("class/backlight/" + name, place);
        put(place + "/type", type + "\n");
        put(place + "/max_brightness", std::to_string(maximum) + "\n");
        setBacklight(name, brightness);
    }
    void setBacklight(const std::string& name, std::uint64_t value) const {
        put("class/backlight/" + name + "/brightness", std::to_string(value) + "\n");
    }

    // Where a connector's files are, below the root.
    std::string placeOf(const std::string& entry) const {
        const unsigned card = cardOf(entry);
        return cards_.at(card) + "/drm/card" + std::to_string(card) + "/" + entry;
    }

  private:
    static unsigned cardOf(const std::string& entry) {
        return static_cast<unsigned>(std::stoul(entry.substr(std::string_view("card").size())));
    }
    void makeFolder(const std::string& name) const { std::filesystem::create_directories(path(name)); }
    void link(const std::string& name, const std::string& to) const {
        const auto target =
            std::filesystem::relative(path(to), std::filesystem::path(path(name)).parent_path());
        std::filesystem::create_directory_symlink(target, path(name));
    }
    std::vector<std::string> linksTo(const std::string& place) const {
        std::vector<std::string> found;
        const auto end = std::filesystem::canonical(path(place));
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path())) {
            if (entry.is_symlink() && std::filesystem::weakly_canonical(entry.path()) == end) {
                found.push_back(entry.path().string());
            }
        }
        return found;
    }

    const test::TemporaryFolder folder_;
    // By their numbers, where they are.
    std::map<unsigned, std::string> cards_;
    std::map<unsigned, std::string> adapters_;
};

}  // namespace vantrel::linux
