#include "platform/linux/mutter/MutterDesktop.h"

#include <chrono>
#include <optional>

#include "platform/linux/mutter/MessageReader.h"

namespace vantrel::mutter {
namespace {

// Until a Mutter that is too busy to answer is asked again.
constexpr std::chrono::seconds pause(1);
// How often a change that came in between is taken for bad luck.
constexpr int attempts = 4;

// One session has one such desktop, but a user may have several sessions.
std::string busName(linux::Bus& bus) {
    const auto answer = bus.call(
        bus.makeCall({"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"}, "GetId"));
    return MessageReader(answer.get()).text();
}

std::string written(const LogicalMonitor& part) { return Layout({part}).line(); }

// The layout in which the monitor was lit, with those others only that are lit now. Where
// that isn't how the others would be laid out without the monitor, they have been
// changed meanwhile, and stay as they are.
Layout restored(Layout before, const DisplayState& state, const std::string& connector) {
    const Layout all = before;
    for (const LogicalMonitor& part : all.parts()) {
        for (const auto& [other, mode] : part.modes) {
            if (other != connector && state.layout.find(other) == nullptr) before = before.without(other);
        }
    }
    if (before.without(connector) == state.layout) return before;
    LogicalMonitor part = *all.find(connector);
    part.modes = {{connector, part.modes.at(connector)}};
    part.isPrimary = false;
    return state.layout.with(part);
}

std::vector<Layout> layoutsWith(const DisplayState& state, const std::string& connector,
                                const std::optional<Layout>& before) {
    const Monitor* const monitor = state.monitor(connector);
    if (monitor == nullptr) return {};
    if (state.layout.find(connector) != nullptr) return {state.layout};
    std::vector<Layout> layouts;
    const LogicalMonitor* const part = before ? before->find(connector) : nullptr;
    // Another monitor may be there now.
    if (part != nullptr && monitor->mode(part->modes.at(connector)) != nullptr) {
        Layout layout = restored(*before, state, connector);
        if (layout.isAcceptable()) layouts.push_back(std::move(layout));
    }
    const Monitor::Mode* mode = monitor->modes.empty() ? nullptr : &monitor->modes.front();
    for (const Monitor::Mode& offered : monitor->modes) {
        if (offered.isPreferred) mode = &offered;
    }
    if (mode != nullptr) layouts.push_back(state.layout.withNewcomer(state.part(*monitor, *mode)));
    return layouts;
}

}  // namespace

std::unique_ptr<MutterDesktop> MutterDesktop::open(linux::Descriptors& descriptors,
                                                   runtime::MainLoop& mainLoop) {
    std::unique_ptr<MutterDesktop> desktop(new MutterDesktop(descriptors, mainLoop));
    return desktop->config_.state() ? std::move(desktop) : nullptr;
}

MutterDesktop::MutterDesktop(linux::Descriptors& descriptors, runtime::MainLoop& mainLoop)
    : mainLoop_(mainLoop),
      bus_(linux::Bus::Kind::session, descriptors, mainLoop),
      config_(bus_),
      identity_("mutter-" + busName(bus_)),
      notice_(std::make_unique<linux::ChangeNotice>(descriptors, current())) {
    config_.onChange([this] { notice_->compare(current()); });
}

MutterDesktop::~MutterDesktop() {
    if (again_) mainLoop_.cancel(*again_);
}

std::vector<linux::Desktop::Output> MutterDesktop::outputs() {
    auto outputs = current();
    notice_->compare(outputs);
    return outputs;
}

std::optional<platform::TransferTable> MutterDesktop::table(const std::string& output) {
    const auto state = config_.state();
    if (!state) return std::nullopt;
    const auto crtc = config_.drivers()[output].crtc;
    return crtc ? config_.table(state->serial, *crtc) : std::nullopt;
}

bool MutterDesktop::setTable(const std::string& output, const platform::TransferTable& table) {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto state = config_.state();
        if (!state) return false;
        const auto crtc = config_.drivers()[output].crtc;
        const std::size_t capacity = crtc ? tableCapacity(state->serial, *crtc) : 0;
        if (capacity == 0 || table.red.size() != capacity || table.green.size() != capacity ||
            table.blue.size() != capacity) {
            return false;
        }
        if (config_.setTable(state->serial, *crtc, table)) return true;
        const auto after = config_.state();
        if (!after || after->serial == state->serial) return false;
    }
    return false;
}

bool MutterDesktop::canSwitch() const { return config_.state() && config_.isApplyAllowed(); }

std::optional<linux::Desktop::Arrangement> MutterDesktop::arrangement(const std::string& output) {
    const auto state = config_.state();
    if (!state || state->layout.find(output) == nullptr) return std::nullopt;
    return state->layout.line();
}

bool MutterDesktop::darken(const std::string& output) {
    return change([&output](const DisplayState& state) -> std::vector<Layout> {
        if (state.monitor(output) == nullptr) return {};
        return {state.layout.without(output)};
    });
}

bool MutterDesktop::light(const std::string& output, const std::optional<Arrangement>& arrangement) {
    const auto before = arrangement ? Layout::read(*arrangement) : std::nullopt;
    return change([&](const DisplayState& state) { return layoutsWith(state, output, before); });
}

bool MutterDesktop::change(const NextLayout& next) {
    bool isTaken = false;
    for (int attempt = 0; attempt < attempts && !isTaken; ++attempt) {
        const auto state = this->state();
        if (!state) return false;
        for (const Layout& layout : next(*state)) {
            isTaken = layout == state->layout || config_.apply(*state, layout);
            if (isTaken) break;
        }
        if (isTaken) break;
        // A refusal is for good unless the monitors were others by then.
        const auto after = this->state();
        if (!after) return false;
        if (after->serial == state->serial) break;
    }
    notice_->compare(current());
    return isTaken;
}

// Nobody announces that it can answer again, and what it has done until then.
std::optional<DisplayState> MutterDesktop::state() {
    auto state = config_.state();
    if (!state && !again_ && isThere()) {
        again_ = mainLoop_.after(pause, [this] {
            again_.reset();
            notice_->compare(current());
        });
    }
    return state;
}

std::vector<linux::Desktop::Output> MutterDesktop::current() {
    std::vector<Output> outputs;
    const auto state = this->state();
    if (!state) return outputs;
    auto drivers = config_.drivers();
    for (const Monitor& monitor : state->monitors) {
        Output& output = outputs.emplace_back();
        const DisplayConfig::Driver& driver = drivers[monitor.connector];
        output.name = monitor.connector;
        output.edid = driver.edid;
        output.monitor = monitor.name;
        output.isConnected = true;
        const LogicalMonitor* const part = state->layout.find(monitor.connector);
        if (part == nullptr) continue;
        output.isLit = true;
        output.place = written(*part);
        if (driver.crtc) output.tableCapacity = tableCapacity(state->serial, *driver.crtc);
    }
    return outputs;
}

std::uint32_t MutterDesktop::tableCapacity(std::uint32_t serial, std::uint32_t crtc) {
    if (std::exchange(capacitiesSerial_, serial) != serial) capacities_.clear();
    const auto known = capacities_.find(crtc);
    if (known != capacities_.end()) return known->second;
    const auto table = config_.table(serial, crtc);
    return capacities_[crtc] = table ? static_cast<std::uint32_t>(table->red.size()) : 0;
}

}  // namespace vantrel::mutter
