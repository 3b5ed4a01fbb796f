// What a monitor's recording has to say to a transfer.
//
// In order at first: as long as each transfer is the one that was recorded next, it is
// answered as it was then. From the first other one on, and at the end, a request that
// was recorded gets the last answer to it, unless it asks for a value that was changed
// since. Without an answer here the monitor gives its own.
//
// Threads: one at a time. Lifetime: answers live as long as the tape.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/Transfer.h"

namespace vantrel::simulated {

class Tape {
  public:
    explicit Tape(std::vector<platform::Transfer> recording);

    // Null: no answer.
    const platform::Transfer* write(std::uint32_t chip, std::uint32_t address,
                                    std::span<const std::uint8_t> bytes);
    // The offset means nothing to DDC/CI.
    const platform::Transfer* read(std::uint32_t chip, std::size_t length);

    // The value of this VCP code is not the recorded one any more.
    void changed(std::uint8_t code);
    // No answers from now on.
    void stop();

  private:
    const platform::Transfer* nextInOrder();
    const platform::Transfer* lastAnswer(std::uint32_t chip, std::uint32_t address,
                                         std::span<const std::uint8_t> bytes);

    const std::vector<platform::Transfer> recording_;
    // Nothing: no longer in order.
    std::optional<std::size_t> next_ = 0;
    // Where the answer to the last request would have been recorded, out of order.
    std::optional<std::size_t> reply_;
    std::bitset<256> changed_;
    bool isStopped_ = false;
};

}  // namespace vantrel::simulated
