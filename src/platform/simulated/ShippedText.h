// A file that comes with the program.
#pragma once

#include <string_view>

namespace vantrel::simulated {

struct ShippedText {
    // The file's name without ".json".
    std::string_view name;
    std::string_view text;
};

}  // namespace vantrel::simulated
