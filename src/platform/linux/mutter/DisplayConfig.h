// Mutter's D-Bus interface for displays: org.gnome.Mutter.DisplayConfig.
//
// Threads: main thread. Lifetime: the bus outlives it. Errors: without the service there
// is nothing to read, and everything is refused.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/linux/Bus.h"
#include "platform/linux/mutter/DisplayState.h"

namespace vantrel::mutter {

class DisplayConfig {
  public:
    // What drives a connector, which only the older half of the interface tells.
    struct Driver {
        std::vector<std::uint8_t> edid;
        // Of a lit one.
        std::optional<std::uint32_t> crtc;
    };
    using Drivers = std::map<std::string, Driver>;

    explicit DisplayConfig(linux::Bus& session) : bus_(session) {}

    // Whether somebody offers the service, even if he is too busy to answer.
    bool isThere();
    std::optional<DisplayState> state();
    // By connector.
    Drivers drivers();
    // Whether configurations are taken at all.
    bool isApplyAllowed();
    // Until the next plug or configuration, and not for longer than the session.
    bool apply(const DisplayState& before, const Layout& layout);

    // An older serial than the current one is refused.
    std::optional<platform::TransferTable> table(std::uint32_t serial, std::uint32_t crtc);
    bool setTable(std::uint32_t serial, std::uint32_t crtc, const platform::TransferTable& table);

    // The monitors are others, or the service has come or gone. For the life of the bus.
    void onChange(std::function<void()> changed);

  private:
    linux::Bus& bus_;
};

}  // namespace vantrel::mutter
