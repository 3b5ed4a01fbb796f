#include "text/Hex.h"

#include <string_view>

namespace vantrel::text {
namespace {

std::string hex(std::uint32_t value, std::string_view digits, std::size_t width) {
    std::string result;
    while (value != 0 || result.size() < width) {
        result.insert(result.begin(), digits[value & 0xF]);
        value >>= 4;
    }
    return result;
}

}  // namespace

std::string upperHex(std::uint32_t value) { return hex(value, "0123456789ABCDEF", 2); }

std::string lowerHex(std::uint32_t value) { return hex(value, "0123456789abcdef", 1); }

std::string hexBytes(std::span<const std::uint8_t> bytes) {
    std::string result;
    for (const std::uint8_t byte : bytes) {
        if (!result.empty()) result += ' ';
        result += upperHex(byte);
    }
    return result;
}

}  // namespace vantrel::text
