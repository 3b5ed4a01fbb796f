// Hands out the capabilities string in fragments. Faults are counted per
// fragment that a host reads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/Frame.h"
#include "platform/simulated/Occasions.h"
#include "platform/simulated/Personality.h"

namespace vantrel::simulated {

class CapabilitiesServer {
  public:
    // Without a string, requests are never answered.
    CapabilitiesServer(std::optional<std::string> capabilities, const Personality& personality);

    // The fragment at `offset`; at the end of the string and behind it an empty one.
    Reply reply(std::uint16_t offset, Random& random);
    void becomeHealthy();

  private:
    const FragmentFault* nextFault(Random& random);

    std::optional<std::string> capabilities_;
    std::optional<std::size_t> cutAfter_;
    std::size_t fragmentSize_;
    std::vector<std::pair<FragmentFault, Occasions>> faults_;
};

}  // namespace vantrel::simulated
