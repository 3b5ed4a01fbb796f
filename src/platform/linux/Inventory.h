// The displays that are plugged in, each with its identity and the bus that leads to it:
// connectors, EDIDs and adapters put together, as they stood at the last look.
//
// A display has an identifier by its monitor and the connector that it is on, so the same
// monitor plugged in again, or after a restart, has the same one.
// Threads: look() on the main thread, the rest on any.
// Time: a look reads the kernel's files; a connector that nothing says the bus of costs a
// transfer to each candidate, until its monitor is found, each time that it is plugged in.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/linux/Adapters.h"
#include "platform/linux/BoundedI2C.h"
#include "platform/linux/Connector.h"
#include "platform/linux/EDID.h"

namespace vantrel::linux {

class Inventory {
  public:
    struct Display {
        platform::DisplayID id = 0;
        Connector connector;
        // Nothing when it can't be read.
        std::optional<EDID> edid;
        // Nothing for a built-in panel, whatever its bus.
        std::optional<Adapter> adapter;
        // Of a monitor without an adapter: the buses that may still lead to it, asked in vain.
        std::vector<I2CDevices::Bus> askedInVain;
        bool operator==(const Display&) const = default;
    };
    using Displays = std::vector<Display>;

    // Both outlive it.
    Inventory(const Sysfs& sysfs, BoundedI2C& buses) : sysfs_(sysfs), buses_(buses) {}
    Inventory(const Inventory&) = delete;
    Inventory& operator=(const Inventory&) = delete;

    void look();

    // In the order of graphics devices and connectors.
    std::shared_ptr<const Displays> displays() const;
    std::optional<Display> display(platform::DisplayID id) const;
    // Whether the adapter that was found for the display is there, and hasn't been found for
    // another one since.
    bool leadsTo(platform::DisplayID display, const Adapter& adapter) const;

  private:
    // Main thread. What was found out by asking the monitor.
    struct Asked {
        std::vector<std::uint8_t> edid;
        Adapter adapter;
    };

    void findAdapters(Displays& displays);
    static void note(std::map<std::string, Asked>& asked, const Display& display);
    // What was found out at an earlier look, if it still holds and isn't another's now.
    std::optional<Adapter> askedBefore(const Connector& connector,
                                       const std::set<I2CDevices::Bus>& others) const;
    // Asks every bus of the graphics device but `others`, which lead to other monitors.
    void ask(Display& display, const std::set<I2CDevices::Bus>& others);

    const Sysfs& sysfs_;
    BoundedI2C& buses_;
    std::map<std::string, Asked> asked_;

    mutable std::mutex mutex_;
    std::shared_ptr<const Displays> displays_ = std::make_shared<const Displays>();
};

}  // namespace vantrel::linux
