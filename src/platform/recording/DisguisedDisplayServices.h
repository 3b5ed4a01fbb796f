// The displays of another platform, with disguised serial numbers.
// Threads: as DisplayServices asks. Lifetime: what it stands on outlives it.
#pragma once

#include <utility>

#include "platform/DisplayServices.h"
#include "platform/recording/Disguise.h"

namespace vantrel::recording {

class DisguisedDisplayServices : public platform::DisplayServices {
  public:
    using DisplayID = platform::DisplayID;

    DisguisedDisplayServices(platform::DisplayServices& real, Disguise& disguise)
        : real_(real), disguise_(disguise) {}

    std::vector<DisplayID> onlineDisplays() override { return real_.onlineDisplays(); }
    bool isBuiltIn(DisplayID display) override { return real_.isBuiltIn(display); }
    std::uint32_t vendorNumber(DisplayID display) override { return real_.vendorNumber(display); }
    std::uint32_t modelNumber(DisplayID display) override { return real_.modelNumber(display); }
    std::uint32_t serialNumber(DisplayID display) override {
        return disguise_.serial(real_.serialNumber(display));
    }
    std::optional<std::string> screenName(DisplayID display) override { return real_.screenName(display); }

    std::uint32_t transferTableCapacity(DisplayID display) override {
        return real_.transferTableCapacity(display);
    }
    std::optional<platform::TransferTable> transferTable(DisplayID display, std::uint32_t capacity) override {
        return real_.transferTable(display, capacity);
    }
    void setTransferTable(DisplayID display, const platform::TransferTable& table) override {
        real_.setTransferTable(display, table);
    }
    void restoreColorSyncSettings() override { real_.restoreColorSyncSettings(); }

    std::optional<Configuration> beginConfiguration() override { return real_.beginConfiguration(); }
    bool completeConfiguration(Configuration configuration, std::uint32_t option) override {
        return real_.completeConfiguration(configuration, option);
    }
    void cancelConfiguration(Configuration configuration) override {
        real_.cancelConfiguration(configuration);
    }

    void onReconfiguration(ReconfigurationCallback callback) override {
        real_.onReconfiguration(std::move(callback));
    }

  private:
    platform::DisplayServices& real_;
    Disguise& disguise_;
};

}  // namespace vantrel::recording
