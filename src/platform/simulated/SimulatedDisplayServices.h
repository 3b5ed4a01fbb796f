// The window server of the simulated computer.
// Threads: as DisplayServices asks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/simulated/World.h"

namespace vantrel::simulated {

// The step of a display configuration that the system refuses.
enum class Refusal { nothing, begin, enable, complete };

class SimulatedDisplayServices : public platform::DisplayServices {
  public:
    explicit SimulatedDisplayServices(World& world) : world_(world) {}

    // Main thread, until told otherwise.
    void refuse(Refusal refusal) { refusal_ = refusal; }
    // Transactions that were begun and not ended.
    std::size_t openConfigurations() const { return configurations_.size(); }
    // What CGSConfigureDisplayEnabled does. Turning on a display that is not
    // plugged in is an error.
    std::int32_t configureEnabled(Configuration configuration, platform::DisplayID display,
                                  World::Output output);

    std::vector<platform::DisplayID> onlineDisplays() override { return world_.online(); }
    bool isBuiltIn(platform::DisplayID display) override;
    // 0 for a display that is not plugged in.
    std::uint32_t vendorNumber(platform::DisplayID display) override;
    std::uint32_t modelNumber(platform::DisplayID display) override;
    std::uint32_t serialNumber(platform::DisplayID display) override;
    // Only an online display carries a screen; a nameless one has no name to tell.
    std::optional<std::string> screenName(platform::DisplayID display) override;

    // A display that is not online has no table.
    std::uint32_t transferTableCapacity(platform::DisplayID display) override;
    std::optional<platform::TransferTable> transferTable(platform::DisplayID display,
                                                         std::uint32_t capacity) override;
    void setTransferTable(platform::DisplayID display, const platform::TransferTable& table) override;
    void restoreColorSyncSettings() override { world_.tables().reset(); }

    // Anything that is not an open transaction stops the program.
    std::optional<Configuration> beginConfiguration() override;
    bool completeConfiguration(Configuration configuration, std::uint32_t option) override;
    void cancelConfiguration(Configuration configuration) override;

    void onReconfiguration(ReconfigurationCallback callback) override;

  private:
    struct Change {
        platform::DisplayID display = 0;
        World::Output output = World::Output::on;
    };
    using Changes = std::vector<Change>;

    const DisplayPlan* pluggedIn(platform::DisplayID display) const;
    std::list<Changes>::iterator find(Configuration configuration);

    World& world_;
    Refusal refusal_ = Refusal::nothing;
    std::list<Changes> configurations_;
};

}  // namespace vantrel::simulated
