// Hexadecimal as logs and labels show it.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace vantrel::text {

// At least two uppercase digits ("%02X"): VCP codes, input values, bytes.
std::string upperHex(std::uint32_t value);

// Lowercase without leading zeros ("%x"): status codes and change flags.
std::string lowerHex(std::uint32_t value);

// Every byte as two uppercase digits, separated by single spaces.
std::string hexBytes(std::span<const std::uint8_t> bytes);

}  // namespace vantrel::text
