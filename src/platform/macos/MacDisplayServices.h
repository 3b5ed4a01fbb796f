// The window server of the Mac. Its news of reconfigurations, on whichever thread,
// become work of the main loop.
// Threads: as DisplayServices asks. Lifetime: the main loop outlives it.
#pragma once

#include <memory>

#include "platform/DisplayServices.h"
#include "runtime/MainLoop.h"

namespace vantrel::macos {

class MacDisplayServices : public platform::DisplayServices {
  public:
    explicit MacDisplayServices(runtime::MainLoop& mainLoop);
    MacDisplayServices(const MacDisplayServices&) = delete;
    MacDisplayServices& operator=(const MacDisplayServices&) = delete;
    ~MacDisplayServices() override;

    std::vector<platform::DisplayID> onlineDisplays() override;
    bool isBuiltIn(platform::DisplayID display) override;
    std::uint32_t vendorNumber(platform::DisplayID display) override;
    std::uint32_t modelNumber(platform::DisplayID display) override;
    std::uint32_t serialNumber(platform::DisplayID display) override;
    std::optional<std::string> screenName(platform::DisplayID display) override;

    std::uint32_t transferTableCapacity(platform::DisplayID display) override;
    std::optional<platform::TransferTable> transferTable(platform::DisplayID display,
                                                         std::uint32_t capacity) override;
    // Ignores a table whose channels differ in length.
    void setTransferTable(platform::DisplayID display, const platform::TransferTable& table) override;
    void restoreColorSyncSettings() override;

    std::optional<Configuration> beginConfiguration() override;
    bool completeConfiguration(Configuration configuration, std::uint32_t option) override;
    void cancelConfiguration(Configuration configuration) override;

    void onReconfiguration(ReconfigurationCallback callback) override;

  private:
    struct Listeners;
    std::shared_ptr<Listeners> listeners_;
    bool isRegistered_ = false;
};

}  // namespace vantrel::macos
