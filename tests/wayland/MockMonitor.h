// A monitor of the mock compositor, and what the compositor does with it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::wayland {

struct MockMonitor {
    struct Mode {
        int width = 0;
        int height = 0;
        int refresh = 0;
        bool isPreferred = false;
    };
    // What a client may change; as Wayland's numbers.
    struct State {
        bool isEnabled = true;
        std::size_t mode = 0;
        int x = 0;
        int y = 0;
        int transform = 0;
        int scale = 256;
        std::uint32_t variableRefresh = 0;
        bool operator==(const State&) const = default;
    };

    explicit MockMonitor(std::string monitorName, int x = 0) : name(std::move(monitorName)) { state.x = x; }

    bool isLit() const { return isPlugged && state.isEnabled; }

    std::string name;
    std::string make = "Mock";
    std::string model = "M1";
    std::string description = "A mock monitor";
    // In base64.
    std::string edid;
    std::vector<Mode> modes{{1920, 1080, 60000, true}, {1280, 1024, 75025, false}};
    bool isPlugged = true;
    State state;
    std::uint32_t tableSize = 256;
    bool refusesControl = false;
    // Red, green and blue; empty while it is the compositor's own.
    std::vector<std::uint16_t> table;
    // How many clients have asked for its control.
    int controlRequests = 0;
};

}  // namespace vantrel::wayland
