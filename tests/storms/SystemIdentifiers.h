// Display services that give identifiers anew: a display that is plugged in again
// may get a new one, or the one that another display had.
//
// The simulated world has one fixed identifier per display (its place on the
// desk); the program under the storm only sees those given here. In the beginning
// both are the same.
//
// Threads: those of one virtual time, which run one at a time.
#pragma once

#include <map>
#include <optional>
#include <utility>

#include "platform/DisplayServices.h"

namespace vantrel::storms {

class SystemIdentifiers : public platform::DisplayServices {
  public:
    using DisplayID = platform::DisplayID;
    using TransferTable = platform::TransferTable;

    explicit SystemIdentifiers(platform::DisplayServices& world) : world_(world) {}

    void give(DisplayID worldID, DisplayID systemID) {
        std::erase_if(worldIDs_, [worldID](const auto& given) { return given.second == worldID; });
        worldIDs_[systemID] = worldID;
    }
    // Nothing when no display has it now.
    std::optional<DisplayID> worldID(DisplayID systemID) const {
        const auto found = worldIDs_.find(systemID);
        if (found == worldIDs_.end()) return std::nullopt;
        return found->second;
    }
    std::optional<DisplayID> systemID(DisplayID worldID) const {
        for (const auto& [system, world] : worldIDs_) {
            if (world == worldID) return system;
        }
        return std::nullopt;
    }

    std::vector<DisplayID> onlineDisplays() override {
        std::vector<DisplayID> online;
        for (const DisplayID world : world_.onlineDisplays()) {
            if (const auto system = systemID(world)) online.push_back(*system);
        }
        return online;
    }
    bool isBuiltIn(DisplayID id) override { return world_.isBuiltIn(known(id)); }
    std::uint32_t vendorNumber(DisplayID id) override { return world_.vendorNumber(known(id)); }
    std::uint32_t modelNumber(DisplayID id) override { return world_.modelNumber(known(id)); }
    std::uint32_t serialNumber(DisplayID id) override { return world_.serialNumber(known(id)); }
    std::optional<std::string> screenName(DisplayID id) override {
        // The world takes no questions about displays that it does not have.
        return worldID(id) ? world_.screenName(known(id)) : std::nullopt;
    }
    std::uint32_t transferTableCapacity(DisplayID id) override {
        return world_.transferTableCapacity(known(id));
    }
    std::optional<TransferTable> transferTable(DisplayID id, std::uint32_t capacity) override {
        return world_.transferTable(known(id), capacity);
    }
    void setTransferTable(DisplayID id, const TransferTable& table) override {
        world_.setTransferTable(known(id), table);
    }
    void restoreColorSyncSettings() override { world_.restoreColorSyncSettings(); }
    std::optional<Configuration> beginConfiguration() override { return world_.beginConfiguration(); }
    bool completeConfiguration(Configuration configuration, std::uint32_t option) override {
        return world_.completeConfiguration(configuration, option);
    }
    void cancelConfiguration(Configuration configuration) override {
        world_.cancelConfiguration(configuration);
    }
    void onReconfiguration(ReconfigurationCallback callback) override {
        world_.onReconfiguration(
            [this, callback = std::move(callback)](DisplayID world, std::uint32_t flags) {
                callback(systemID(world).value_or(0), flags);
            });
    }

  private:
    // 0 is no display's identifier in the world either.
    DisplayID known(DisplayID id) const { return worldID(id).value_or(0); }

    platform::DisplayServices& world_;
    // By the identifier that the system shows.
    std::map<DisplayID, DisplayID> worldIDs_;
};

}  // namespace vantrel::storms
