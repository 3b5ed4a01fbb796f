// What is known of one VCP code: its name, how it is operated and where it is
// shown. A plain value; MCCS::info makes it.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>

#include "text/Text.h"

namespace vantrel::mccs {

struct VCPInfo {
    enum class Kind {
        continuous,  // a current value and a maximum, on a slider
        choice,      // one of several discrete values
        action,      // a button that writes actionValue once
        readOnly,    // shown, never written
    };

    // The section that a code is shown in, in the order of the sections.
    enum class Group : int { main = 0, picture, color, audio, system, info, vendor };

    static constexpr std::array allGroups{Group::main,   Group::picture, Group::color, Group::audio,
                                          Group::system, Group::info,    Group::vendor};

    // Nothing for a number that is no group's.
    static std::optional<Group> groupFromRawValue(int rawValue);
    static text::Text title(Group group);

    text::Text name;
    Kind kind;
    Group group;
    // Names of discrete values; empty for a code without named values.
    std::map<std::uint16_t, text::Text> valueNames = {};
    // What an action writes.
    std::uint16_t actionValue = 1;

    bool operator==(const VCPInfo&) const = default;
};

}  // namespace vantrel::mccs
