// Answers Get VCP requests, as well or as badly as the monitor does.
//
// Faults are counted per reply that a host reads, so that "one bad, one good"
// holds however often the host repeats its request. Of several faults that meet
// on one reply, the first of the list spoils it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "platform/simulated/Frame.h"
#include "platform/simulated/Occasions.h"
#include "platform/simulated/VCPTable.h"

namespace vantrel::simulated {

class VCPReplier {
  public:
    struct Question {
        std::uint8_t code = 0;
        // Nothing for a code that the monitor does not have.
        std::optional<VCPReading> reading;
    };

    explicit VCPReplier(const Personality& personality);

    Reply reply(const Question& question, std::span<const std::uint8_t> request, Random& random);

  private:
    const ReplyFault* nextFault(std::uint8_t code, Random& random);
    // Nothing stands for a null message.
    std::optional<Bytes> answer(const Question& question) const;

    UnsupportedReply unsupported_;
    std::vector<std::pair<ReplyFault, Occasions>> faults_;
    // The answer before this one, and the values that were last read.
    std::optional<Bytes> previous_;
    VCPReading last_;
};

}  // namespace vantrel::simulated
