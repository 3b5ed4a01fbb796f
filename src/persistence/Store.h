// Everything that the program remembers between runs, as typed values in the
// user's defaults. `key` is a monitor's displayKey().
//
// Threads: main thread. Time: each change is written at once. Errors: none are
// reported; what can't be read counts as missing and stays as it is until the
// next change.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "mccs/MonitorCapabilities.h"
#include "persistence/DisabledDisplay.h"
#include "platform/Defaults.h"
#include "platform/DisplayServices.h"

namespace vantrel::persistence::Store {

using Input = std::uint16_t;
using InputAliases = std::map<Input, std::string>;

struct SoftwareLevels {
    double brightness = 1.0;
    double contrast = 0.5;
    bool operator==(const SoftwareLevels&) const = default;
};

// Vendor, model and serial number in decimal, joined by "-": the same monitor has
// the same key across reconnections and changes of its display identifier. Two
// monitors of one model without serial numbers share a key and its settings.
std::string displayKey(platform::DisplayServices& displays, platform::DisplayID display);
// Whether the key tells two monitors of one model apart.
bool hasSerialNumber(const std::string& key);

std::optional<mccs::MonitorCapabilities> capabilities(platform::Defaults& defaults, const std::string& key);
void setCapabilities(platform::Defaults& defaults,
                     const std::optional<mccs::MonitorCapabilities>& capabilities, const std::string& key);

std::optional<std::vector<Input>> customInputs(platform::Defaults& defaults, const std::string& key);
void setCustomInputs(platform::Defaults& defaults, const std::optional<std::vector<Input>>& inputs,
                     const std::string& key);

InputAliases inputAliases(platform::Defaults& defaults, const std::string& key);
void setInputAliases(platform::Defaults& defaults, const InputAliases& aliases, const std::string& key);

std::set<Input> hiddenInputs(platform::Defaults& defaults, const std::string& key);
void setHiddenInputs(platform::Defaults& defaults, const std::set<Input>& inputs, const std::string& key);

// 0 is none, so an input of value 0 can't be remembered. A stored number outside
// 16 bits stops the program: only tampering can have put it there.
std::optional<Input> focusInput(platform::Defaults& defaults, const std::string& key);
void setFocusInput(platform::Defaults& defaults, std::optional<Input> input, const std::string& key);
std::optional<Input> macInput(platform::Defaults& defaults, const std::string& key);
void setMacInput(platform::Defaults& defaults, std::optional<Input> input, const std::string& key);

// The raw text, whatever it says.
std::optional<std::string> controlMode(platform::Defaults& defaults, const std::string& key);
void setControlMode(platform::Defaults& defaults, const std::string& mode, const std::string& key);

SoftwareLevels softwareLevels(platform::Defaults& defaults, const std::string& key);
void setSoftwareLevels(platform::Defaults& defaults, const SoftwareLevels& levels, const std::string& key);

std::vector<DisabledDisplay> disabledDisplays(platform::Defaults& defaults);
void setDisabledDisplays(platform::Defaults& defaults, const std::vector<DisabledDisplay>& displays);

}  // namespace vantrel::persistence::Store
