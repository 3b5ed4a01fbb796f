// The display services of a computer without displays, which refuse every
// change. A test overrides what it is about.
#pragma once

#include "platform/DisplayServices.h"

namespace vantrel::test {

class NoDisplays : public platform::DisplayServices {
  public:
    std::vector<platform::DisplayID> onlineDisplays() override { return {}; }
    bool isBuiltIn(platform::DisplayID) override { return false; }
    std::uint32_t vendorNumber(platform::DisplayID) override { return 0; }
    std::uint32_t modelNumber(platform::DisplayID) override { return 0; }
    std::uint32_t serialNumber(platform::DisplayID) override { return 0; }
    std::optional<std::string> screenName(platform::DisplayID) override { return std::nullopt; }
    std::uint32_t transferTableCapacity(platform::DisplayID) override { return 0; }
    std::optional<platform::TransferTable> transferTable(platform::DisplayID, std::uint32_t) override {
        return std::nullopt;
    }
    void setTransferTable(platform::DisplayID, const platform::TransferTable&) override {}
    void restoreColorSyncSettings() override {}
    std::optional<Configuration> beginConfiguration() override { return std::nullopt; }
    bool completeConfiguration(Configuration, std::uint32_t) override { return false; }
    void cancelConfiguration(Configuration) override {}
    void onReconfiguration(ReconfigurationCallback) override {}
};

}  // namespace vantrel::test
