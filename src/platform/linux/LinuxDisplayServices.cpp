#include "platform/linux/LinuxDisplayServices.h"

#include <algorithm>
#include <set>

#include "platform/linux/OutputMatch.h"
#include "platform/linux/Status.h"
#include "runtime/Fatal.h"

namespace vantrel::linux {

using platform::DisplayID;
using platform::TransferTable;

namespace {

// The display is what it was, but not quite: mode, place, bus.
constexpr std::uint32_t setModeFlag = 1U << 3;

}  // namespace

LinuxDisplayServices::LinuxDisplayServices(Parts parts, runtime::MainLoop& mainLoop)
    : parts_(parts), mainLoop_(mainLoop) {
    told_ = look();
    parts_.events.onChange([this] { expectChanges(); });
    parts_.desktop.onChange([this] { expectChanges(); });
    parts_.session.onLid([this] { expectChanges(); });
    // A program that crashed may have left the user in the dark.
    expectChanges();
}

LinuxDisplayServices::~LinuxDisplayServices() {
    parts_.events.onChange({});
    parts_.desktop.onChange({});
    parts_.session.onLid({});
    for (const auto& timer : {expected_, again_}) {
        if (timer) mainLoop_.cancel(*timer);
    }
}

const LinuxDisplayServices::Look& LinuxDisplayServices::look() {
    parts_.inventory.look();
    const auto plugged = parts_.inventory.displays();
    const std::vector<Desktop::Output> outputs = parts_.desktop.outputs();
    const auto matches = OutputMatch::match(*plugged, outputs);
    const bool isLidClosed = parts_.session.isLidClosed();
    Look now;
    for (const Inventory::Display& display : *plugged) {
        auto& [inventory, output] = now.displays[display.id];
        inventory = display;
        bool isLit = display.connector.isEnabled;
        if (const auto match = matches.find(display.id); match != matches.end()) {
            const auto found =
                std::find_if(outputs.begin(), outputs.end(),
                             [&match](const Desktop::Output& each) { return each.name == match->second; });
            output = *found;
            isLit = output.isLit;
        }
        if (isLit && !(isLidClosed && display.connector.isBuiltIn())) now.online.push_back(display.id);
    }
    look_ = std::move(now);
    parts_.registry.setOnline(look_.online);
    return look_;
}

std::vector<DisplayID> LinuxDisplayServices::onlineDisplays() { return look().online; }

bool LinuxDisplayServices::isOnline(DisplayID display) const {
    return std::find(look_.online.begin(), look_.online.end(), display) != look_.online.end();
}

const Desktop::Output* LinuxDisplayServices::outputOf(DisplayID display) const {
    const auto found = look_.displays.find(display);
    if (found == look_.displays.end() || found->second.second.name.empty()) return nullptr;
    return &found->second.second;
}

// There is one: of several panels that are part of the computer, the first.
bool LinuxDisplayServices::isBuiltIn(DisplayID display) {
    const auto displays = parts_.inventory.displays();
    const auto first = std::find_if(displays->begin(), displays->end(), [](const Inventory::Display& each) {
        return each.connector.isBuiltIn();
    });
    return first != displays->end() && first->id == display;
}

std::uint32_t LinuxDisplayServices::vendorNumber(DisplayID display) {
    const auto found = parts_.inventory.display(display);
    return found && found->edid ? found->edid->vendor : 0;
}

std::uint32_t LinuxDisplayServices::modelNumber(DisplayID display) {
    const auto found = parts_.inventory.display(display);
    return found && found->edid ? found->edid->product : 0;
}

std::uint32_t LinuxDisplayServices::serialNumber(DisplayID display) {
    const auto found = parts_.inventory.display(display);
    return found && found->edid ? found->edid->serial : 0;
}

std::optional<std::string> LinuxDisplayServices::screenName(DisplayID display) {
    const auto found = parts_.inventory.display(display);
    if (!found || !found->edid || !isOnline(display)) return std::nullopt;
    return found->edid->name;
}

std::uint32_t LinuxDisplayServices::transferTableCapacity(DisplayID display) {
    const Desktop::Output* output = outputOf(display);
    return output != nullptr && isOnline(display) ? output->tableCapacity : 0;
}

std::optional<TransferTable> LinuxDisplayServices::transferTable(DisplayID display, std::uint32_t capacity) {
    if (transferTableCapacity(display) == 0) return std::nullopt;
    auto table = parts_.tables.table(outputOf(display)->name);
    if (!table) return std::nullopt;
    for (auto* channel : {&table->red, &table->green, &table->blue}) {
        channel->resize(std::min<std::size_t>(channel->size(), capacity));
    }
    return table;
}

void LinuxDisplayServices::setTransferTable(DisplayID display, const TransferTable& table) {
    const std::size_t capacity = transferTableCapacity(display);
    if (capacity == 0 || table.red.size() != capacity) return;
    if (table.green.size() != capacity || table.blue.size() != capacity) return;
    parts_.tables.set(outputOf(display)->name, table);
}

std::optional<LinuxDisplayServices::Configuration> LinuxDisplayServices::beginConfiguration() {
    return &configurations_.emplace_back();
}

std::int32_t LinuxDisplayServices::configureEnabled(Configuration configuration, DisplayID display,
                                                    Output output) {
    Changes& changes = *find(configuration);
    look();
    if (outputOf(display) == nullptr) return Status::illegalArgument;
    changes.push_back({display, output});
    return Status::success;
}

bool LinuxDisplayServices::completeConfiguration(Configuration configuration, std::uint32_t) {
    const auto found = find(configuration);
    const Changes changes = std::move(*found);
    configurations_.erase(found);
    const bool isDone =
        std::all_of(changes.begin(), changes.end(), [this](const Change& change) { return apply(change); });
    if (!changes.empty()) expectChanges();
    return isDone;
}

bool LinuxDisplayServices::apply(const Change& change) {
    const Desktop::Output* output = outputOf(change.display);
    if (output == nullptr) return false;
    const std::string name = output->name;
    return change.output == Output::on ? parts_.outputs.light(name) : parts_.outputs.darken(name);
}

void LinuxDisplayServices::cancelConfiguration(Configuration configuration) {
    configurations_.erase(find(configuration));
}

std::list<LinuxDisplayServices::Changes>::iterator LinuxDisplayServices::find(Configuration configuration) {
    const auto found =
        std::find_if(configurations_.begin(), configurations_.end(),
                     [configuration](const Changes& changes) { return &changes == configuration; });
    runtime::require(found != configurations_.end(), "a display configuration that is not in progress");
    return found;
}

void LinuxDisplayServices::onReconfiguration(ReconfigurationCallback callback) {
    callbacks_.push_back(std::move(callback));
}

void LinuxDisplayServices::expectChanges() {
    if (expected_) return;
    expected_ = mainLoop_.post([this] {
        expected_.reset();
        keepLight();
        announce();
    });
}

void LinuxDisplayServices::keepLight() {
    if (again_) mainLoop_.cancel(*again_);
    again_.reset();
    if (parts_.outputs.keepLight()) return;
    again_ = mainLoop_.after(OutputSwitch::pause, [this] {
        again_.reset();
        expectChanges();
    });
}

void LinuxDisplayServices::announce() {
    const Look before = std::exchange(told_, look());
    const auto wasOnline = [&before](DisplayID display) {
        return std::find(before.online.begin(), before.online.end(), display) != before.online.end();
    };
    std::vector<std::pair<DisplayID, std::uint32_t>> changes;
    for (const DisplayID display : before.online) {
        if (!isOnline(display)) changes.emplace_back(display, removeFlag);
    }
    for (const auto& [display, now] : told_.displays) {
        const auto then = before.displays.find(display);
        if (isOnline(display) && !wasOnline(display)) {
            changes.emplace_back(display, addFlag);
        } else if (isOnline(display) == wasOnline(display) && then != before.displays.end() &&
                   then->second != now) {
            changes.emplace_back(display, setModeFlag);
        }
    }
    for (const auto& [display, flags] : changes) call(display, beginConfigurationFlag);
    for (const auto& [display, flags] : changes) call(display, flags);
}

// A callback may register another one, which hears of it too.
void LinuxDisplayServices::call(DisplayID display, std::uint32_t flags) {
    for (std::size_t index = 0; index < callbacks_.size(); ++index) {
        const ReconfigurationCallback callback = callbacks_[index];
        callback(display, flags);
    }
}

}  // namespace vantrel::linux
