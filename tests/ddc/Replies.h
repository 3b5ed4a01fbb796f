// What monitors answer, built independently of the code that checks it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace vantrel::test {

using Bytes = std::vector<std::uint8_t>;

// Appends the byte that makes the XOR of all of them 0x50, the virtual host
// address that a monitor's checksum begins with (VESA DDC/CI 1.1).
inline Bytes sealed(Bytes reply) {
    std::uint8_t checksum = 0x50;
    for (const std::uint8_t byte : reply) checksum ^= byte;
    reply.push_back(checksum);
    return reply;
}

inline std::uint8_t highByte(unsigned value) { return static_cast<std::uint8_t>(value >> 8); }
inline std::uint8_t lowByte(unsigned value) { return static_cast<std::uint8_t>(value); }

// A Get VCP Feature reply.
inline Bytes readingReply(std::uint8_t code, unsigned current, unsigned maximum) {
    return sealed({0x6E, 0x88, 0x02, 0x00, code, 0x00, highByte(maximum), lowByte(maximum), highByte(current),
                   lowByte(current)});
}

inline Bytes unsupportedReply(std::uint8_t code) {
    return sealed({0x6E, 0x88, 0x02, 0x01, code, 0x00, 0x00, 0x00, 0x00, 0x00});
}

// A Capabilities Reply with these bytes of the string.
inline Bytes fragmentReply(unsigned offset, std::string_view text) {
    Bytes reply{0x6E, static_cast<std::uint8_t>(0x80 | (text.size() + 3)), 0xE3, highByte(offset),
                lowByte(offset)};
    reply.insert(reply.end(), text.begin(), text.end());
    return sealed(reply);
}

}  // namespace vantrel::test
