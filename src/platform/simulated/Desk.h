// The monitors on a simulated desk and how the operating system shows them: what
// a desk file says. Plain data; DeskFile reads it, SimulatedPlatform runs it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/Registry.h"
#include "platform/Transfer.h"
#include "platform/simulated/Personality.h"

namespace vantrel::simulated {

struct FeaturePlan {
    // VCP type byte of the reply (MCCS): 0 set parameter, 1 momentary.
    std::uint8_t type = 0;
    std::uint16_t current = 0;
    std::uint16_t maximum = 0;
    // Listed nowhere and answered with the personality's unsupported reply.
    bool unsupported = false;
    bool operator==(const FeaturePlan&) const = default;
};

struct InputPlan {
    // The input that the computer's cable is plugged into.
    std::uint16_t computer = 0x0F;
    // The input shown when the desk starts.
    std::uint16_t shown = 0x0F;
    // The inputs that the monitor has; requests for others are ignored.
    std::vector<std::uint16_t> available{0x0F};
    bool operator==(const InputPlan&) const = default;
};

struct MonitorPlan {
    // What a recording holds at most: far more than a monitor's answers to a probe.
    static constexpr std::size_t mostTransfers = 10'000;
    static constexpr std::uint32_t longestTransfer = 1024;

    // Without VCP 60, which comes from `inputs` when there are any.
    std::map<std::uint8_t, FeaturePlan> features;
    // The capabilities string as bytes; nothing: the request is never answered.
    std::optional<std::string> capabilities;
    std::optional<InputPlan> inputs;
    Personality personality;
    // What a monitor was seen to answer once, in order; see Tape.
    std::vector<platform::Transfer> recording;
    bool operator==(const MonitorPlan&) const = default;
};

struct DisplayPlan {
    platform::DisplayID id = 0;
    bool isBuiltIn = false;
    std::uint32_t vendor = 0;
    std::uint32_t product = 0;
    std::uint32_t serial = 0;
    // The screen's name, and the registry's product name unless it says otherwise.
    std::string name;
    // Nothing: made from vendor and product, as edidUUID() does it.
    std::optional<std::string> edidUUID;
    // Pixels.
    unsigned width = 1920;
    unsigned height = 1080;
    std::uint32_t transferTableCapacity = 256;
    // Level of a built-in panel, 0 to 1; nothing: it has none to set.
    std::optional<float> brightness;
    // Whether the display is plugged in when the desk starts.
    bool isConnected = true;
    // Whether the computer's output to it is on when the desk starts.
    bool isOn = true;
    // Nothing: the cable passes no DDC/CI, or there is no monitor to speak it.
    std::optional<MonitorPlan> monitor;
    bool operator==(const DisplayPlan&) const = default;
};

// One entry of the registry's walk.
struct RegistryEntryPlan {
    enum class Kind { framebuffer, proxy, other };
    Kind kind = Kind::other;
    // Entry name as the walk reads it; any bytes.
    std::string name;
    // The display behind a framebuffer or proxy.
    platform::DisplayID display = 0;
    // Exactly what the entry shows; for a disconnected display it shows nothing.
    platform::PropertyDictionary properties;
    bool operator==(const RegistryEntryPlan&) const = default;
};

struct Desk {
    std::string title;
    std::string description;
    std::uint64_t seed = 1;
    // In the system's order.
    std::vector<DisplayPlan> displays;
    // In the order of the walk.
    std::vector<RegistryEntryPlan> registry;
    // Private functions that this system does not have.
    std::vector<std::string> missingSymbols;
    // What the user is told to be in the way of the monitors.
    std::vector<std::string> obstacles;
    bool operator==(const Desk&) const = default;
};

}  // namespace vantrel::simulated
