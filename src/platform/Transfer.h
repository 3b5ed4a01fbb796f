// One transfer over a video link, as it went: what recordings are made of.
#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

namespace vantrel::platform {

struct Transfer {
    using Duration = std::chrono::microseconds;
    enum class Direction { write, read };

    // When it began, counted from the start of the recording.
    Duration at{0};
    // How long it kept its caller waiting.
    Duration took{0};
    Direction direction = Direction::write;
    std::uint32_t chip = 0;
    // The data address of a write, the offset of a read.
    std::uint32_t address = 0;
    // What was written, or what a successful read gave.
    std::vector<std::uint8_t> bytes;
    // How many bytes were written or asked for.
    std::uint32_t length = 0;
    // As the system's functions give it: 0 is success.
    std::int32_t status = 0;
    bool operator==(const Transfer&) const = default;
};

}  // namespace vantrel::platform
