#include "app/RecordedDesk.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/RecordedMonitor.h"
#include "app/Version.h"
#include "ddc/AVServiceLocator.h"
#include "platform/simulated/DefaultRegistry.h"

namespace vantrel::app::RecordedDesk {
namespace {

namespace AVServiceLocator = ddc::AVServiceLocator;
using platform::DisplayID;
using recording::Recording;
using simulated::DisplayPlan;
using simulated::RegistryEntryPlan;

constexpr std::uint32_t largestTransferTable = 65536;

// The name of a screen is left out: some systems name screens after people and rooms.
DisplayPlan onlineDisplay(platform::DisplayServices& displays, DisplayID id) {
    DisplayPlan plan;
    plan.id = id;
    plan.isBuiltIn = displays.isBuiltIn(id);
    plan.vendor = displays.vendorNumber(id);
    plan.product = displays.modelNumber(id);
    plan.serial = displays.serialNumber(id);
    plan.name = plan.isBuiltIn ? "Built-in Display" : "Display";
    plan.transferTableCapacity = std::min(displays.transferTableCapacity(id), largestTransferTable);
    return plan;
}

std::vector<DisplayPlan> onlineDisplays(platform::DisplayServices& displays) {
    std::vector<DisplayPlan> plans;
    bool hasBuiltIn = false;
    for (const DisplayID id : displays.onlineDisplays()) {
        DisplayPlan plan = onlineDisplay(displays, id);
        // A desk has one panel, and 0 is no display.
        if (id == 0 || (plan.isBuiltIn && std::exchange(hasBuiltIn, true))) continue;
        plans.push_back(std::move(plan));
    }
    return plans;
}

DisplayID unusedID(const std::vector<DisplayPlan>& plans) {
    const auto isUsed = [&plans](DisplayID id) {
        return std::any_of(plans.begin(), plans.end(),
                           [id](const DisplayPlan& plan) { return plan.id == id; });
    };
    DisplayID id = 1;
    while (isUsed(id)) ++id;
    return id;
}

// The display of each link, by the link's index.
using Owners = std::map<std::size_t, DisplayID>;

Owners findOwners(platform::Platform& platform, const Recording& recording, std::vector<DisplayPlan>& plans) {
    const auto links = AVServiceLocator::externalServices(platform.registry, platform.functions);
    std::vector<DisplayID> external;
    for (const DisplayPlan& plan : plans) {
        if (!plan.isBuiltIn) external.push_back(plan.id);
    }
    std::map<const void*, DisplayID> matched;
    for (const auto& [id, link] : AVServiceLocator::match(platform.displays, external, links))
        matched.emplace(link.service.get(), id);

    Owners owners;
    for (const AVServiceLocator::Entry& link : links) {
        const auto index = recording.link(link.service.get());
        if (!index) continue;
        const auto match = matched.find(link.service.get());
        if (match == matched.end()) {
            DisplayPlan plan;
            plan.id = unusedID(plans);
            plan.name = "Display";
            plan.isOn = false;
            plans.push_back(std::move(plan));
        }
        const DisplayID owner = match == matched.end() ? plans.back().id : match->second;
        const auto isOwner = [owner](const DisplayPlan& plan) { return plan.id == owner; };
        DisplayPlan& plan = *std::find_if(plans.begin(), plans.end(), isOwner);
        plan.name = link.productName.value_or(plan.name);
        plan.monitor = RecordedMonitor::make(recording.transfers(*index));
        owners.emplace(*index, owner);
    }
    return owners;
}

std::vector<RegistryEntryPlan> registry(const std::vector<Recording::Entry>& entries, const Owners& owners) {
    std::vector<RegistryEntryPlan> plans;
    for (const Recording::Entry& entry : entries) {
        RegistryEntryPlan plan{RegistryEntryPlan::Kind::other, entry.name, 0, entry.properties};
        if (const auto owner = entry.link ? owners.find(*entry.link) : owners.end(); owner != owners.end()) {
            plan.kind = RegistryEntryPlan::Kind::proxy;
            plan.display = owner->second;
            // What the program looked into right before is where the link's identity is.
            const bool isBehindOther = !plans.empty() && plans.back().name != plan.name &&
                                       plans.back().kind == RegistryEntryPlan::Kind::other;
            if (isBehindOther) {
                plans.back().kind = RegistryEntryPlan::Kind::framebuffer;
                plans.back().display = plan.display;
            }
        }
        plans.push_back(std::move(plan));
    }
    return plans;
}

std::vector<std::string> missingSymbols(platform::PrivateFunctions& functions) {
    std::vector<std::string> missing;
    const auto check = [&missing](const char* name, bool isThere) {
        if (!isThere) missing.emplace_back(name);
    };
    check("IOAVServiceCreateWithService", functions.avCreate() != nullptr);
    check("IOAVServiceWriteI2C", functions.avWrite() != nullptr);
    check("IOAVServiceReadI2C", functions.avRead() != nullptr);
    check("CGSConfigureDisplayEnabled", functions.configureEnabled() != nullptr);
    check("DisplayServicesGetBrightness", functions.getBrightness() != nullptr);
    check("DisplayServicesSetBrightness", functions.setBrightness() != nullptr);
    return missing;
}

}  // namespace

simulated::Desk make(platform::Platform& platform, const Recording& recording) {
    simulated::Desk desk;
    desk.title = "Recorded desk";
    desk.description = std::string("What vantrel ") + version + " saw; serial numbers are replaced.";
    desk.displays = onlineDisplays(platform.displays);
    const std::vector<Recording::Entry> entries = recording.entries();
    const Owners owners = findOwners(platform, recording, desk.displays);
    desk.registry = registry(entries, owners);
    desk.missingSymbols = missingSymbols(platform.functions);
    for (const text::Text& obstacle : platform.obstacles.find()) desk.obstacles.push_back(obstacle.english());
    return desk;
}

}  // namespace vantrel::app::RecordedDesk
