// What inputs one monitor model really has, for a model that misreports them.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

namespace vantrel::mccs {

struct InputProfile {
    // MCCS values of Input Select, in the order in which they are offered.
    std::vector<std::uint16_t> inputs;
    // The MCCS value for each number that the monitor answers with instead.
    std::map<std::uint16_t, std::uint16_t> readMap;

    bool operator==(const InputProfile&) const = default;
};

}  // namespace vantrel::mccs
