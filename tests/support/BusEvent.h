// Something that happened at a ScriptedBus.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "runtime/Time.h"
#include "text/Hex.h"

namespace vantrel::test {

struct BusEvent {
    enum class Kind {
        write,
        read,
        pause,  // a sleep on the bus's clock
        walk,   // somebody began to walk the registry
    };
    Kind kind = Kind::pause;
    // When it began.
    runtime::MonotonicTime at{};
    // Of a transfer: the handle's number (from 1, in the order of opening), where
    // it went, its size, and what was written or handed out.
    int handle = 0;
    std::uint32_t chip = 0;
    std::uint32_t address = 0;
    std::uint32_t size = 0;
    std::vector<std::uint8_t> bytes{};
    // Of a pause.
    runtime::MonotonicClock::duration length{};

    // "write 82 01 10 AC", "read 11", "pause 50 ms" or "walk".
    std::string text() const {
        switch (kind) {
            case Kind::write:
                return "write " + text::hexBytes(bytes);
            case Kind::read:
                return "read " + std::to_string(size);
            case Kind::pause: {
                constexpr runtime::MonotonicClock::duration millisecond = std::chrono::milliseconds(1);
                const bool isWhole = length % millisecond == millisecond.zero();
                return isWhole ? "pause " + std::to_string(length / millisecond) + " ms"
                               : "pause " + std::to_string(length.count()) + " ns";
            }
            case Kind::walk:
                break;
        }
        return "walk";
    }
};

}  // namespace vantrel::test
