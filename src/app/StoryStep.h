// One thing that happens in a story, and when.
#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "model/ControlMode.h"
#include "platform/DisplayServices.h"
#include "platform/simulated/Personality.h"
#include "platform/simulated/SimulatedDisplayServices.h"

namespace vantrel::app {

// What a person does in the program's interface.
enum class UserAction {
    openPopover,
    setBuiltInBrightness,
    selectInput,
    returnToMac,
    disableOutput,
    enableOutput,
    forget,
    set,
    trigger,
    dimmer,
    controlMode,
    setMacInput,
    setFocusInput,
    reload,
};

// What a person does to a monitor itself, or it to itself.
enum class MonitorAction { pressInputButton, adjust, switchOff, switchOn, becomeHealthy };

// What happens to the computer and its cables.
enum class WorldAction { plug, unplug, sleep, wake, openLid, closeLid, reconfigure, refuse };

// What happens to the program as a whole. It runs when a story begins.
enum class ProgramAction { quit, start };

using StoryAction = std::variant<UserAction, MonitorAction, WorldAction, ProgramAction>;

// Which of the fields below `action` stand for something depends on the action.
struct StoryStep {
    simulated::Duration at{0};
    StoryAction action;
    platform::DisplayID display = 0;
    std::optional<std::uint16_t> input;
    std::uint8_t code = 0;
    std::uint16_t value = 0;
    std::optional<double> brightness;
    std::optional<double> contrast;
    model::ControlMode mode = model::ControlMode::automatic;
    std::uint32_t flags = 0;
    simulated::Refusal refusal = simulated::Refusal::nothing;
};

}  // namespace vantrel::app
