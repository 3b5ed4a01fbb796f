// A monitor whose picture from the computer the user turned off.
#pragma once

#include <string>

#include "platform/DisplayServices.h"

namespace vantrel::persistence {

struct DisabledDisplay {
    // The display identifier that it had when it was turned off.
    platform::DisplayID id = 0;
    std::string key;
    // For the card shown while it is off.
    std::string name;
    bool operator==(const DisabledDisplay&) const = default;
};

}  // namespace vantrel::persistence
