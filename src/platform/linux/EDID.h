// Who a monitor says it is: the little of its EDID that the program needs (VESA E-EDID 1.4,
// base block). Monitors and cables deliver blocks that are short, damaged or of a wrong
// checksum; what can be read of them counts.
// Threads: any.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace vantrel::linux {

struct EDID {
    static constexpr std::size_t blockSize = 128;

    // The manufacturer's three letters as the number that they are packed into.
    std::uint32_t vendor = 0;
    std::uint32_t product = 0;
    // 0 for none.
    std::uint32_t serial = 0;
    // Printable ASCII; nothing when no descriptor holds one.
    std::optional<std::string> name;

    bool operator==(const EDID&) const = default;

    // Nothing when the bytes are no EDID, or end before its identity does.
    static std::optional<EDID> read(std::span<const std::uint8_t> bytes);
};

}  // namespace vantrel::linux
