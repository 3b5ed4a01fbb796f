#include "linux/kernel/EmulatedKernel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unistd.h>
#include <utility>

#include "platform/simulated/Frame.h"
#include "platform/simulated/Random.h"
#include "runtime/Fatal.h"

namespace vantrel::test {
namespace {

using platform::DisplayID;
using std::filesystem::perms;

constexpr const char* devices = "/sys/devices";
constexpr const char* graphics = "/sys/devices/pci0000:00/0000:00:02.0";
constexpr const char* card = "/sys/devices/pci0000:00/0000:00:02.0/drm/card0";

constexpr perms everybody = perms::owner_read | perms::owner_write | perms::group_read | perms::group_write |
                            perms::others_read | perms::others_write;
constexpr perms ownerAndGroup =
    perms::owner_read | perms::owner_write | perms::group_read | perms::group_write;
constexpr perms readers = perms::owner_read | perms::group_read | perms::others_read;

constexpr int i2cMajor = 89;

std::string kindOf(const simulated::DisplayPlan& plan, EmulatedKernel::Wiring wiring) {
    if (plan.isBuiltIn) return "eDP";
    return wiring == EmulatedKernel::Wiring::link ? "HDMI-A" : "DP";
}

}  // namespace

struct EmulatedKernel::Display {
    std::string connector;
    Wiring wiring = Wiring::link;
    std::shared_ptr<EmulatedBus> bus;
    int number = 0;
    bool hasBus = true;
    bool isPluggedIn = true;
    Output output = Output::on;
    // What the connector showed last.
    bool wasConnected = false;
};

EmulatedKernel::EmulatedKernel(const simulated::Desk& desk, runtime::MainLoop& mainLoop,
                               runtime::Clock& clock, BusTime busTime, const Wirings& wirings)
    : mainLoop_(mainLoop), clock_(clock) {
    testbed_.add({.path = graphics,
                  .node = {},
                  .properties = {{"SUBSYSTEM", "pci"}, {"DRIVER", "emulated"}, {"PCI_CLASS", "30000"}},
                  .attributes = {{"class", "0x030000"}, {"vendor", "0x1af4"}, {"device", "0x1050"}},
                  .links = {}});
    testbed_.add({.path = card,
                  .node = "dri/card0",
                  .properties = {{"SUBSYSTEM", "drm"},
                                 {"DEVTYPE", "drm_minor"},
                                 {"DEVNAME", "/dev/dri/card0"},
                                 {"MAJOR", "226"},
                                 {"MINOR", "0"}},
                  .attributes = {{"dev", "226:0"}},
                  .links = {{"device", "../../../0000:00:02.0"}}});
    addOtherBuses(busTime);

    constexpr std::array inTurn{Wiring::link, Wiring::child, Wiring::none};
    std::size_t turn = 0;
    const simulated::Random random(desk.seed);
    for (const simulated::DisplayPlan& plan : desk.displays) {
        const auto named = wirings.find(plan.id);
        Wiring wiring = Wiring::child;
        if (named != wirings.end()) {
            wiring = named->second;
        } else if (!plan.isBuiltIn) {
            wiring = inTurn.at(turn++ % inTurn.size());
        }
        auto bus = std::make_shared<EmulatedBus>(clock, busTime, plan, random.fork(plan.id));
        addDisplay(plan, wiring, std::move(bus));
    }
}

EmulatedKernel::~EmulatedKernel() = default;

void EmulatedKernel::expectPulses(Display& display) {
    if (display.bus->findMonitor() == nullptr) return;
    const auto showAt = [this, &display](runtime::MonotonicTime time) {
        mainLoop_.after(std::max(time - clock_.now(), runtime::MonotonicClock::duration::zero()),
                        whileThere([this, &display] { show(display); }));
    };
    display.bus->monitor().onPulse(
        [this, poster = mainLoop_.poster(), showAt](const simulated::Pulse& pulse) {
            poster.post(whileThere([showAt, pulse] {
                showAt(pulse.from);
                showAt(pulse.to);
            }));
        });
}

void EmulatedKernel::addDisplay(const simulated::DisplayPlan& plan, Wiring wiring,
                                std::shared_ptr<EmulatedBus> bus) {
    const std::string kind = kindOf(plan, wiring);
    Display display;
    display.connector = "card0-" + kind + "-" + std::to_string(++connectors_[kind]);
    display.wiring = wiring;
    display.bus = std::move(bus);
    display.isPluggedIn = plan.isConnected;
    display.number = firstBus + static_cast<int>(displays_.size());
    const auto [place, isNew] = displays_.emplace(plan.id, std::move(display));
    runtime::require(isNew, "two displays of a desk have the same id");
    const std::string path = connectorPath(plan.id);
    testbed_.add({.path = path,
                  .node = {},
                  .properties = {{"SUBSYSTEM", "drm"}, {"DEVTYPE", "drm_connector"}},
                  .attributes = {},
                  .links = {{"device", "../../card0"}}});
    show(place->second);
    addBus(place->second);
    expectPulses(place->second);
    if (plan.isBuiltIn && plan.brightness && !backlightPath_) addBacklight(path, *plan.brightness);
}

void EmulatedKernel::addOtherBuses(BusTime busTime) {
    const std::string management = std::string(devices) + "/pci0000:00/0000:00:1f.4";
    const std::string controller = std::string(devices) + "/platform/i2c_controller.0";
    testbed_.add({.path = management,
                  .node = {},
                  .properties = {{"SUBSYSTEM", "pci"}, {"DRIVER", "emulated"}, {"PCI_CLASS", "C0500"}},
                  .attributes = {{"class", "0x0c0500"}},
                  .links = {}});
    testbed_.add({.path = controller,
                  .node = {},
                  .properties = {{"SUBSYSTEM", "platform"}, {"DRIVER", "emulated"}},
                  .attributes = {},
                  .links = {}});
    const auto add = [this](int number, const std::string& parent, const std::string& name, auto bus) {
        addBus(number, parent, name, bus);
        otherBuses_.emplace(number, std::move(bus));
    };
    add(0, management, "SMBus adapter at efa0",
        std::make_shared<EmulatedBus>(clock_, busTime, EmulatedBus::Kind::smbus));
    add(1, controller, "I2C controller",
        std::make_shared<EmulatedBus>(clock_, busTime, EmulatedBus::Kind::i2c));
}

void EmulatedKernel::addBacklight(const std::string& connectorPath, float level) {
    backlightPath_ = connectorPath + "/intel_backlight";
    const auto start = std::to_string(std::lround(level * static_cast<float>(maximumBacklight)));
    testbed_.add({.path = *backlightPath_,
                  .node = {},
                  .properties = {{"SUBSYSTEM", "backlight"}},
                  .attributes = {{"type", "raw"},
                                 {"max_brightness", std::to_string(maximumBacklight)},
                                 {"brightness", start}},
                  // What is written is what there is.
                  .links = {{"actual_brightness", "brightness"},
                            {"device", "../../" + connectorPath.substr(connectorPath.rfind('/') + 1)}}});
}

void EmulatedKernel::addBus(Display& display) {
    const bool isChild = display.wiring == Wiring::child;
    addBus(display.number, isChild ? pathOf(display) : graphics,
           (isChild ? "AUX channel of " : "DDC line of ") + display.connector, display.bus);
    if (display.wiring == Wiring::link)
        testbed_.addLink(pathOf(display), "ddc", "../../../i2c-" + std::to_string(display.number));
    display.hasBus = true;
}

void EmulatedKernel::addBus(int number, const std::string& parent, const std::string& name,
                            std::shared_ptr<EmulatedBus> bus) {
    const std::string text = std::to_string(number);
    const std::string adapter = parent + "/i2c-" + text;
    const auto [node, isNew] = nodes_.try_emplace(number, number, clock_);
    if (isNew) node->second.attach(testbed_.get());
    node->second.connect(std::move(bus));
    testbed_.add({.path = adapter,
                  .node = {},
                  .properties = {{"SUBSYSTEM", "i2c"}},
                  .attributes = {{"name", name}},
                  .links = {}});
    testbed_.add({.path = adapter + "/i2c-dev/i2c-" + text,
                  .node = "i2c-" + text,
                  .properties = {{"SUBSYSTEM", "i2c-dev"},
                                 {"DEVNAME", EmulatedNode::path(number)},
                                 {"MAJOR", std::to_string(i2cMajor)},
                                 {"MINOR", text}},
                  .attributes = {{"dev", std::to_string(i2cMajor) + ':' + text}, {"name", name}},
                  .links = {{"device", "../../../i2c-" + text}}});
    std::filesystem::permissions(testbed_.place(EmulatedNode::path(number)), everybody);
}

const std::string& EmulatedKernel::connector(DisplayID id) const { return display(id).connector; }

std::string EmulatedKernel::connectorPath(DisplayID id) const { return pathOf(display(id)); }

std::optional<int> EmulatedKernel::busNumber(DisplayID id) const {
    const Display& found = display(id);
    return found.hasBus ? std::optional(found.number) : std::nullopt;
}

std::string EmulatedKernel::node(DisplayID id) const { return EmulatedNode::path(display(id).number); }

EmulatedNode::Counters EmulatedKernel::nodeCounters(DisplayID id) const {
    return nodes_.at(display(id).number).counters();
}

EmulatedBus& EmulatedKernel::bus(DisplayID id) { return *display(id).bus; }

std::uint64_t EmulatedKernel::strayWrites() const {
    std::uint64_t strays = 0;
    for (const auto& [number, bus] : otherBuses_) {
        const auto writes = bus->counters().writes;
        const auto found = writes.find(simulated::displayChip);
        if (found != writes.end()) strays += found->second;
    }
    return strays;
}

void EmulatedKernel::plug(DisplayID id) {
    Display& plugged = display(id);
    if (std::exchange(plugged.isPluggedIn, true)) return;
    plugged.output = Output::on;
    show(plugged);
}

void EmulatedKernel::unplug(DisplayID id) {
    Display& unplugged = display(id);
    if (std::exchange(unplugged.isPluggedIn, false)) show(unplugged);
}

void EmulatedKernel::setOutput(DisplayID id, Output output) {
    Display& changed = display(id);
    if (std::exchange(changed.output, output) != output) show(changed);
}

void EmulatedKernel::show(Display& shown) {
    const std::string path = pathOf(shown);
    const simulated::SimulatedMonitor* monitor = shown.bus->findMonitor();
    const bool isConnected = shown.isPluggedIn && (monitor == nullptr || monitor->isOnBus(clock_.now()));
    const bool isLit = isConnected && shown.output == Output::on;
    shown.bus->setPluggedIn(shown.isPluggedIn);
    testbed_.setAttribute(path, "status", isConnected ? "connected" : "disconnected");
    testbed_.setAttribute(path, "enabled", isLit ? "enabled" : "disabled");
    testbed_.setAttribute(path, "dpms", isLit ? "On" : "Off");
    testbed_.setAttribute(
        path, "edid",
        isConnected ? std::span<const std::uint8_t>(*shown.bus->edid()) : std::span<const std::uint8_t>());
    if (std::exchange(shown.wasConnected, isConnected) != isConnected)
        testbed_.event(card, "change", "HOTPLUG", "1");
}

void EmulatedKernel::removeBus(DisplayID id) {
    Display& removed = display(id);
    if (!std::exchange(removed.hasBus, false)) return;
    const std::string adapter = adapterOf(removed);
    nodes_.at(removed.number).disconnect();
    if (removed.wiring == Wiring::link) testbed_.removeLink(pathOf(removed), "ddc");
    testbed_.remove(adapter + "/i2c-dev/i2c-" + std::to_string(removed.number));
    testbed_.remove(adapter);
}

void EmulatedKernel::restoreBus(DisplayID id) { restoreBus(id, display(id).number); }

void EmulatedKernel::restoreBus(DisplayID id, int number) {
    Display& restored = display(id);
    runtime::require(!restored.hasBus, "a bus was restored that is there");
    restored.number = number;
    addBus(restored);
}

void EmulatedKernel::hang(DisplayID id, std::function<void()> stuck) {
    nodes_.at(display(id).number).hang([poster = mainLoop_.poster(), stuck = std::move(stuck)] {
        if (stuck) poster.post(stuck);
    });
}

void EmulatedKernel::resume(DisplayID id) { nodes_.at(display(id).number).resume(); }

void EmulatedKernel::denyNode(DisplayID id) {
    std::filesystem::permissions(testbed_.place(node(id)), perms::none);
}

void EmulatedKernel::allowNode(DisplayID id) {
    std::filesystem::permissions(testbed_.place(node(id)), everybody);
}

void EmulatedKernel::lendNode(DisplayID id, gid_t group) {
    const auto place = testbed_.place(node(id));
    const bool isGiven = ::chown(place.c_str(), static_cast<uid_t>(-1), group) == 0;
    runtime::require(isGiven, "this user can't give a node to that group");
    std::filesystem::permissions(place, ownerAndGroup);
}

int EmulatedKernel::backlight() const {
    runtime::require(backlightPath_.has_value(), "a desk without a backlight was asked for it");
    return std::stoi(testbed_.attribute(*backlightPath_, "brightness"));
}

void EmulatedKernel::setBacklight(int level) {
    runtime::require(backlightPath_.has_value(), "a desk without a backlight was asked for it");
    testbed_.setAttribute(*backlightPath_, "brightness", std::to_string(level));
    testbed_.event(*backlightPath_, "change", "SOURCE", "hotkey");
}

void EmulatedKernel::denyBacklight() {
    std::filesystem::permissions(testbed_.place(*backlightPath_ + "/brightness"), readers);
}

void EmulatedKernel::allowBacklight() {
    std::filesystem::permissions(testbed_.place(*backlightPath_ + "/brightness"), everybody);
}

EmulatedKernel::Display& EmulatedKernel::display(DisplayID id) {
    return const_cast<Display&>(std::as_const(*this).display(id));
}

const EmulatedKernel::Display& EmulatedKernel::display(DisplayID id) const {
    const auto found = displays_.find(id);
    runtime::require(found != displays_.end(), "the emulated kernel was asked for a display it doesn't have");
    return found->second;
}

std::string EmulatedKernel::pathOf(const Display& display) const {
    return std::string(card) + '/' + display.connector;
}

std::string EmulatedKernel::adapterOf(const Display& display) const {
    const std::string parent = display.wiring == Wiring::child ? pathOf(display) : graphics;
    return parent + "/i2c-" + std::to_string(display.number);
}

runtime::MainLoop::Work EmulatedKernel::whileThere(runtime::MainLoop::Work work) const {
    return [there = std::weak_ptr(isThere_), work = std::move(work)] {
        if (there.lock()) work();
    };
}

}  // namespace vantrel::test
