// The monitor's end of DDC/CI framing (VESA DDC/CI 1.1, sections 1.5 to 1.7 and 4),
// written from the standard and sharing nothing with the program's own framing, so
// that a mistake in one can't cancel itself out in the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vantrel::simulated {

using Bytes = std::vector<std::uint8_t>;

// The display's I2C address in its 7-bit form, and the address that the host
// names as the source of its messages.
inline constexpr std::uint32_t displayChip = 0x37;
inline constexpr std::uint32_t hostAddress = 0x51;

// Largest payload that the seven bits of the length byte can tell.
inline constexpr std::size_t longestPayload = 0x7F;

// Command bytes.
inline constexpr std::uint8_t getVCP = 0x01;
inline constexpr std::uint8_t getVCPReply = 0x02;
inline constexpr std::uint8_t setVCP = 0x03;
inline constexpr std::uint8_t capabilitiesRequest = 0xF3;
inline constexpr std::uint8_t capabilitiesReply = 0xE3;

struct Request {
    Bytes payload;
    bool hasRightChecksum = false;
};

// What a host wrote behind the display's address; nothing when it is no message
// of a host to a display. Bytes behind the checksum are nobody's.
std::optional<Request> parseRequest(std::uint32_t source, std::span<const std::uint8_t> written);

// Source, length, payload, checksum, as a host reads them.
Bytes replyFrame(std::span<const std::uint8_t> payload);
// "Nothing to say": a reply of length 0.
Bytes nullFrame();

// What the bus delivers when the host reads: the head once, then the tail again
// and again for as long as the host reads on.
struct Reply {
    Bytes head;
    Bytes tail = nullFrame();

    void copyTo(std::span<std::uint8_t> read) const;
};

}  // namespace vantrel::simulated
