// What a monitor says of itself in its capabilities string (ACCESS.bus and MCCS
// grammar): "(prot(monitor)model(X1)vcp(10 12 60(0F 11))mccs_ver(2.1))".
//
// Forgiving: odd characters, missing parentheses and unreadable pieces are passed
// over without a report. Only a text without any VCP code is refused.
// Time: linear in the length of the text, without recursion.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::mccs {

struct MonitorCapabilities {
    // The text as it came.
    std::string raw;
    // The contents of the model section as written; nothing without that section.
    std::optional<std::string> model;
    // Supported VCP codes in order of first appearance, each once. Never empty
    // when parsed.
    std::vector<std::uint8_t> codes;
    // The discrete values declared for a code, in the order written; a code
    // without any has no entry.
    std::map<std::uint8_t, std::vector<std::uint16_t>> values;

    // `text` is UTF-8. Nothing when it has no vcp section or no code in it.
    static std::optional<MonitorCapabilities> parse(std::string_view text);

    bool operator==(const MonitorCapabilities&) const = default;
};

}  // namespace vantrel::mccs
