// The files of desks/ as the build put them into the program.
#pragma once

#include <span>
#include <string_view>

namespace vantrel::simulated {

struct ShippedDeskText {
    // The file's name without ".json".
    std::string_view name;
    std::string_view text;
};

// In the order of the names.
std::span<const ShippedDeskText> shippedDeskTexts();

}  // namespace vantrel::simulated
