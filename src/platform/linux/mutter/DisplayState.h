// What Mutter tells of its monitors, at one time.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/Bus.h"
#include "platform/linux/mutter/Layout.h"
#include "platform/linux/mutter/Monitor.h"

namespace vantrel::mutter {

struct DisplayState {
    // Whether lengths of a layout are pixels divided by the scale, or pixels.
    enum class LayoutMode : std::uint32_t { logical = 1, physical = 2 };

    // From the answer to GetCurrentState; nothing when it isn't one.
    static std::optional<DisplayState> read(const linux::Bus::Message& answer);

    // Nothing when there is none at that connector.
    const Monitor* monitor(const std::string& connector) const;
    // A monitor in that mode as a part of this layout, at no place yet.
    LogicalMonitor part(const Monitor& monitor, const Monitor::Mode& mode) const;

    // Another one for every change.
    std::uint32_t serial = 0;
    std::vector<Monitor> monitors;
    Layout layout;
    LayoutMode layoutMode = LayoutMode::logical;
    bool canChangeLayoutMode = false;
    bool needsOneScale = false;
};

}  // namespace vantrel::mutter
