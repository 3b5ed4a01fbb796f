// Other display services with a record of what was asked of them, which tell a
// lie where a test wants one.
#pragma once

#include <map>
#include <set>

#include "platform/DisplayServices.h"
#include "support/CallRecord.h"

namespace vantrel::test {

class WatchedDisplays : public platform::DisplayServices {
  public:
    WatchedDisplays(platform::DisplayServices& real, CallRecord& record) : real_(real), record_(record) {}

    std::optional<std::vector<platform::DisplayID>> onlineInstead;
    std::set<platform::DisplayID> alsoBuiltIn;
    std::map<platform::DisplayID, std::uint32_t> serialInstead;

    // The callbacks that were registered, as the system would call them.
    void reconfigure(platform::DisplayID display, std::uint32_t flags) const {
        for (const auto& callback : callbacks_) callback(display, flags);
    }

    std::vector<platform::DisplayID> onlineDisplays() override {
        record_.add("online displays");
        return onlineInstead ? *onlineInstead : real_.onlineDisplays();
    }
    bool isBuiltIn(platform::DisplayID display) override {
        return alsoBuiltIn.contains(display) || real_.isBuiltIn(display);
    }
    std::uint32_t vendorNumber(platform::DisplayID display) override { return real_.vendorNumber(display); }
    std::uint32_t modelNumber(platform::DisplayID display) override { return real_.modelNumber(display); }
    std::uint32_t serialNumber(platform::DisplayID display) override {
        const auto lie = serialInstead.find(display);
        return lie == serialInstead.end() ? real_.serialNumber(display) : lie->second;
    }
    std::optional<std::string> screenName(platform::DisplayID display) override {
        return real_.screenName(display);
    }
    std::uint32_t transferTableCapacity(platform::DisplayID display) override {
        return real_.transferTableCapacity(display);
    }
    std::optional<platform::TransferTable> transferTable(platform::DisplayID display,
                                                         std::uint32_t capacity) override {
        return real_.transferTable(display, capacity);
    }
    void setTransferTable(platform::DisplayID display, const platform::TransferTable& table) override {
        record_.add("set table of " + std::to_string(display));
        real_.setTransferTable(display, table);
    }
    void restoreColorSyncSettings() override {
        record_.add("restore ColorSync");
        real_.restoreColorSyncSettings();
    }
    std::optional<Configuration> beginConfiguration() override {
        record_.add("begin configuration");
        return real_.beginConfiguration();
    }
    bool completeConfiguration(Configuration configuration, std::uint32_t option) override {
        record_.add("complete configuration");
        return real_.completeConfiguration(configuration, option);
    }
    void cancelConfiguration(Configuration configuration) override {
        real_.cancelConfiguration(configuration);
    }
    void onReconfiguration(ReconfigurationCallback callback) override {
        record_.add("listen to reconfigurations");
        callbacks_.push_back(callback);
        real_.onReconfiguration(std::move(callback));
    }

  private:
    platform::DisplayServices& real_;
    CallRecord& record_;
    std::vector<ReconfigurationCallback> callbacks_;
};

}  // namespace vantrel::test
