// Which of a host's Set VCP requests a monitor takes. Every copy of a request
// that a host writes more than once counts by itself.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "platform/simulated/Occasions.h"
#include "platform/simulated/Personality.h"
#include "platform/simulated/Random.h"

namespace vantrel::simulated {

class WriteFilter {
  public:
    explicit WriteFilter(const Personality& personality)
        : needed_(personality.writesNeeded),
          needsARead_(personality.writesNeedARead),
          lost_(personality.writesLost) {}

    void sawGet() { hasRead_ = true; }

    // Whether this Set has its effect. A Get between equal Sets does not break
    // their row, another Set does; one that has its effect ends the row.
    bool takes(std::uint8_t code, std::uint16_t value, Random& random) {
        const bool hadRead = std::exchange(hasRead_, false);
        if (needsARead_ && !hadRead) return false;
        if (lost_.next(random)) return false;
        const std::pair request(code, value);
        inARow_ = last_ == request ? inARow_ + 1 : 1;
        last_ = request;
        if (inARow_ < needed_) return false;
        last_.reset();
        return true;
    }

  private:
    unsigned needed_;
    bool needsARead_;
    Occasions lost_;
    bool hasRead_ = false;
    std::optional<std::pair<std::uint8_t, std::uint16_t>> last_;
    unsigned inARow_ = 0;
};

}  // namespace vantrel::simulated
