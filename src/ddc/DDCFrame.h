// The frames of DDC/CI (VESA DDC/CI 1.1, chapter 4) as the host builds and
// checks them. Pure functions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "ddc/VCPReading.h"

namespace vantrel::ddc {

// The monitor's address on the bus in 7-bit form (8-bit: 6E to write, 6F to read).
inline constexpr std::uint32_t displayChipAddress = 0x37;
// The host's source address, sent as the data address of every write.
inline constexpr std::uint32_t hostSourceAddress = 0x51;
// Where replies are read from.
inline constexpr std::uint32_t replyOffset = 0;

// Operation codes (MCCS).
inline constexpr std::uint8_t getVCPFeature = 0x01;
inline constexpr std::uint8_t getVCPFeatureReply = 0x02;
inline constexpr std::uint8_t setVCPFeature = 0x03;
inline constexpr std::uint8_t capabilitiesRequest = 0xF3;
inline constexpr std::uint8_t capabilitiesReply = 0xE3;

inline constexpr std::ptrdiff_t readingReplySize = 11;
// The longest fragment: 32 bytes of string and 6 of frame.
inline constexpr std::ptrdiff_t fragmentReplySize = 38;

// Length byte, payload, checksum. More than 255 bytes of payload stop the program.
std::vector<std::uint8_t> requestPacket(std::span<const std::uint8_t> payload);

// Whether these 11 bytes answer a Get VCP Feature request for `code`.
bool isValidReading(std::span<const std::uint8_t> reply, std::uint8_t code);
// Of a valid reading.
bool isUnsupported(std::span<const std::uint8_t> reply);
VCPReading readingOf(std::span<const std::uint8_t> reply);

// The string bytes of a valid capabilities reply for `offset`, maybe none.
std::optional<std::vector<std::uint8_t>> fragmentOf(std::span<const std::uint8_t> reply,
                                                    std::uint16_t offset);

}  // namespace vantrel::ddc
