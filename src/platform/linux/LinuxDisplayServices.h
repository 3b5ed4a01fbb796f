// The window server of a Linux desktop: which monitors are online, who they are, their
// transfer tables, and turning them off and on.
//
// A display is online while it is plugged in and given a picture: by the word of the
// desktop, or of the kernel where the desktop doesn't know it. A built-in panel under a
// closed lid isn't.
// Threads: as DisplayServices asks. Lifetime: everything given to it outlives it.
#pragma once

#include <list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/DeviceEvents.h"
#include "platform/linux/Inventory.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/OutputSwitch.h"
#include "platform/linux/Session.h"
#include "platform/linux/TransferTables.h"
#include "runtime/MainLoop.h"

namespace vantrel::linux {

class LinuxDisplayServices : public platform::DisplayServices {
  public:
    struct Parts {
        Inventory& inventory;
        Desktop& desktop;
        DeviceEvents& events;
        Session& session;
        OutputSwitch& outputs;
        TransferTables& tables;
        LinuxRegistry& registry;
    };
    enum class Output { off, on };

    LinuxDisplayServices(Parts parts, runtime::MainLoop& mainLoop);
    LinuxDisplayServices(const LinuxDisplayServices&) = delete;
    LinuxDisplayServices& operator=(const LinuxDisplayServices&) = delete;
    ~LinuxDisplayServices() override;

    // Looks at the desk anew.
    std::vector<platform::DisplayID> onlineDisplays() override;
    bool isBuiltIn(platform::DisplayID display) override;
    std::uint32_t vendorNumber(platform::DisplayID display) override;
    std::uint32_t modelNumber(platform::DisplayID display) override;
    std::uint32_t serialNumber(platform::DisplayID display) override;
    std::optional<std::string> screenName(platform::DisplayID display) override;

    std::uint32_t transferTableCapacity(platform::DisplayID display) override;
    std::optional<platform::TransferTable> transferTable(platform::DisplayID display,
                                                         std::uint32_t capacity) override;
    void setTransferTable(platform::DisplayID display, const platform::TransferTable& table) override;
    void restoreColorSyncSettings() override { parts_.tables.restore(); }

    std::optional<Configuration> beginConfiguration() override;
    // A status, 0 for success. For the private function of that purpose.
    std::int32_t configureEnabled(Configuration configuration, platform::DisplayID display, Output output);
    bool completeConfiguration(Configuration configuration, std::uint32_t option) override;
    void cancelConfiguration(Configuration configuration) override;

    void onReconfiguration(ReconfigurationCallback callback) override;

    // By the last look.
    bool isOnline(platform::DisplayID display) const;

  private:
    struct Change {
        platform::DisplayID display = 0;
        Output output = Output::on;
    };
    using Changes = std::vector<Change>;

    // What the desk looks like: by display, what about it the program may have to know anew.
    struct Look {
        std::vector<platform::DisplayID> online;
        std::map<platform::DisplayID, std::pair<Inventory::Display, Desktop::Output>> displays;
        bool operator==(const Look&) const = default;
    };

    const Look& look();
    // Null when the desktop doesn't know it.
    const Desktop::Output* outputOf(platform::DisplayID display) const;
    std::list<Changes>::iterator find(Configuration configuration);
    bool apply(const Change& change);

    // Something may have changed: looks once for many words of it, and tells what has.
    void expectChanges();
    void announce();
    void call(platform::DisplayID display, std::uint32_t flags);

    Parts parts_;
    runtime::MainLoop& mainLoop_;
    Look look_;
    // What the callbacks were told last.
    Look told_;
    std::optional<runtime::MainLoop::TimerID> expected_;
    std::list<Changes> configurations_;
    std::vector<ReconfigurationCallback> callbacks_;
};

}  // namespace vantrel::linux
