// The words that a file may use in one kind of object or value.
#pragma once

#include <string_view>
#include <vector>

namespace vantrel::simulated {

struct Words {
    // The heading that the format's document describes them under.
    std::string_view heading;
    std::vector<std::string_view> words;
};

}  // namespace vantrel::simulated
