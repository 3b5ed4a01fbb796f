#include "platform/simulated/SimulatedDisplayServices.h"

#include <algorithm>
#include <utility>

#include "platform/simulated/Status.h"
#include "runtime/Fatal.h"

namespace vantrel::simulated {

using platform::DisplayID;
using platform::TransferTable;

const DisplayPlan* SimulatedDisplayServices::pluggedIn(DisplayID display) const {
    return world_.isPluggedIn(display) ? world_.plan(display) : nullptr;
}

bool SimulatedDisplayServices::isBuiltIn(DisplayID display) {
    const DisplayPlan* plan = pluggedIn(display);
    return plan != nullptr && plan->isBuiltIn;
}

std::uint32_t SimulatedDisplayServices::vendorNumber(DisplayID display) {
    const DisplayPlan* plan = pluggedIn(display);
    return plan == nullptr ? 0 : plan->vendor;
}

std::uint32_t SimulatedDisplayServices::modelNumber(DisplayID display) {
    const DisplayPlan* plan = pluggedIn(display);
    return plan == nullptr ? 0 : plan->product;
}

std::uint32_t SimulatedDisplayServices::serialNumber(DisplayID display) {
    const DisplayPlan* plan = pluggedIn(display);
    return plan == nullptr ? 0 : plan->serial;
}

std::optional<std::string> SimulatedDisplayServices::screenName(DisplayID display) {
    if (!world_.isOnline(display)) return std::nullopt;
    const std::string& name = world_.plan(display)->name;
    if (name.empty()) return std::nullopt;
    return name;
}

std::uint32_t SimulatedDisplayServices::transferTableCapacity(DisplayID display) {
    return world_.isOnline(display) ? world_.plan(display)->transferTableCapacity : 0;
}

std::optional<TransferTable> SimulatedDisplayServices::transferTable(DisplayID display,
                                                                     std::uint32_t capacity) {
    if (!world_.isOnline(display)) return std::nullopt;
    return world_.tables().table(display, capacity);
}

void SimulatedDisplayServices::setTransferTable(DisplayID display, const TransferTable& table) {
    if (world_.isOnline(display)) world_.tables().set(display, table);
}

std::optional<SimulatedDisplayServices::Configuration> SimulatedDisplayServices::beginConfiguration() {
    if (refusal_ == Refusal::begin) return std::nullopt;
    return &configurations_.emplace_back();
}

std::int32_t SimulatedDisplayServices::configureEnabled(Configuration configuration, DisplayID display,
                                                        World::Output output) {
    Changes& changes = *find(configuration);
    if (refusal_ == Refusal::enable) return Status::displayFailure;
    if (world_.plan(display) == nullptr) return Status::illegalDisplayArgument;
    if (output == World::Output::on && !world_.isPluggedIn(display)) return Status::illegalDisplayArgument;
    changes.push_back({display, output});
    return Status::success;
}

bool SimulatedDisplayServices::completeConfiguration(Configuration configuration, std::uint32_t) {
    const auto found = find(configuration);
    const Changes changes = std::move(*found);
    configurations_.erase(found);
    if (refusal_ == Refusal::complete) return false;
    for (const Change& change : changes) world_.setOutput(change.display, change.output);
    return true;
}

void SimulatedDisplayServices::cancelConfiguration(Configuration configuration) {
    configurations_.erase(find(configuration));
}

void SimulatedDisplayServices::onReconfiguration(ReconfigurationCallback callback) {
    world_.announcements().onReconfiguration(std::move(callback));
}

std::list<SimulatedDisplayServices::Changes>::iterator SimulatedDisplayServices::find(
    Configuration configuration) {
    const auto is = [configuration](const Changes& changes) { return &changes == configuration; };
    const auto found = std::find_if(configurations_.begin(), configurations_.end(), is);
    runtime::require(found != configurations_.end(), "a display configuration that is not in progress");
    return found;
}

}  // namespace vantrel::simulated
