#include "platform/linux/Inventory.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace vantrel::linux {
namespace {

using platform::DisplayID;

// FNV-1a, 32 bits.
class Hash {
  public:
    void add(std::string_view text) {
        for (const char character : text) add(static_cast<std::uint8_t>(character));
        add(std::uint8_t{0});
    }
    void add(std::uint32_t number) {
        for (unsigned shift : {0U, 8U, 16U, 24U}) add(static_cast<std::uint8_t>(number >> shift));
    }
    std::uint32_t value() const { return value_; }

  private:
    void add(std::uint8_t byte) { value_ = (value_ ^ byte) * 16777619U; }
    std::uint32_t value_ = 2166136261U;
};

DisplayID identifier(const Connector& connector, const EDID& edid) {
    Hash hash;
    hash.add(connector.device);
    hash.add(connector.name);
    hash.add(edid.vendor);
    hash.add(edid.product);
    hash.add(edid.serial);
    return hash.value();
}

// 0 is no display; the highest numbers are for nobody's display.
constexpr DisplayID lowest = 1;
constexpr DisplayID highest = 0xFFFFFF00;

// Two hashes that meet are told apart by their order, which is the kernel's.
DisplayID freeIdentifier(DisplayID wanted, const std::set<DisplayID>& taken) {
    DisplayID id = std::clamp(wanted, lowest, highest);
    while (taken.contains(id)) id = id == highest ? lowest : id + 1;
    return id;
}

Inventory::Displays pluggedIn(const Sysfs& sysfs) {
    Inventory::Displays displays;
    std::set<DisplayID> taken;
    for (Connector& connector : Connector::list(sysfs)) {
        if (!connector.isConnected) continue;
        const auto edid = EDID::read(connector.edid);
        const DisplayID id = freeIdentifier(identifier(connector, edid.value_or(EDID())), taken);
        taken.insert(id);
        displays.push_back({id, std::move(connector), edid, std::nullopt, {}});
    }
    return displays;
}

}  // namespace

void Inventory::look() {
    Displays displays = pluggedIn(sysfs_);
    findAdapters(displays);
    const std::lock_guard lock(mutex_);
    displays_ = std::make_shared<const Displays>(std::move(displays));
}

void Inventory::findAdapters(Displays& displays) {
    std::set<I2CDevices::Bus> found;
    std::map<std::string, Asked> asked;
    // Before anybody is asked: what is known to be one monitor's is no other's.
    for (Display& display : displays) {
        if (display.connector.isBuiltIn()) continue;
        display.adapter = Adapters::ofConnector(sysfs_, display.connector);
        if (display.adapter) found.insert(display.adapter->bus);
    }
    for (Display& display : displays) {
        if (display.adapter || display.connector.isBuiltIn()) continue;
        display.adapter = askedBefore(display.connector, found);
        if (!display.adapter) continue;
        note(asked, display);
        found.insert(display.adapter->bus);
    }
    for (Display& display : displays) {
        if (display.adapter || display.connector.isBuiltIn()) continue;
        ask(display, found);
        if (!display.adapter) continue;
        note(asked, display);
        found.insert(display.adapter->bus);
    }
    asked_ = std::move(asked);
    buses_.keepBuses(found);
}

void Inventory::note(std::map<std::string, Asked>& asked, const Display& display) {
    asked.emplace(display.connector.folder, Asked{display.connector.edid, *display.adapter});
}

std::optional<Adapter> Inventory::askedBefore(const Connector& connector,
                                              const std::set<I2CDevices::Bus>& others) const {
    const auto before = asked_.find(connector.folder);
    if (before == asked_.end() || before->second.edid != connector.edid) return std::nullopt;
    const Adapter& adapter = before->second.adapter;
    if (others.contains(adapter.bus) || !Adapters::isThere(sysfs_, adapter)) return std::nullopt;
    return adapter;
}

bool Inventory::leadsTo(DisplayID display, const Adapter& adapter) const {
    const auto displays = this->displays();
    const bool isAnothers = std::any_of(displays->begin(), displays->end(), [&](const Display& other) {
        return other.id != display && other.adapter == adapter;
    });
    return !isAnothers && Adapters::isThere(sysfs_, adapter);
}

void Inventory::ask(Display& display, const std::set<I2CDevices::Bus>& others) {
    auto candidates = Adapters::ofDevice(sysfs_, display.connector.device);
    std::erase_if(candidates, [&others](const Adapter& adapter) { return others.contains(adapter.bus); });
    std::set<I2CDevices::Bus> used = others;
    for (const Adapter& candidate : candidates) used.insert(candidate.bus);
    buses_.keepBuses(used);
    display.adapter = Adapters::withEDID(buses_, candidates, display.connector.edid);
    if (display.adapter) return;
    for (const Adapter& candidate : candidates) display.askedInVain.push_back(candidate.bus);
}

std::shared_ptr<const Inventory::Displays> Inventory::displays() const {
    const std::lock_guard lock(mutex_);
    return displays_;
}

std::optional<Inventory::Display> Inventory::display(DisplayID id) const {
    const auto displays = this->displays();
    const auto found = std::find_if(displays->begin(), displays->end(),
                                    [id](const Display& display) { return display.id == id; });
    return found != displays->end() ? std::optional(*found) : std::nullopt;
}

}  // namespace vantrel::linux
