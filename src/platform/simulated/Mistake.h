// What is wrong in a text, and where; without the file's name.
#pragma once

#include <string>

namespace vantrel::simulated {

struct Mistake {
    std::string place;
    std::string reason;
};

}  // namespace vantrel::simulated
