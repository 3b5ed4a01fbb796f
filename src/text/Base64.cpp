#include "text/Base64.h"

#include <cstdint>

namespace vantrel::text::Base64 {
namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t groupBytes = 3;
constexpr std::size_t groupCharacters = 4;

}  // namespace

std::string encode(std::string_view bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += groupBytes) {
        const std::string_view group = bytes.substr(i, groupBytes);
        std::uint32_t bits = 0;
        for (std::size_t n = 0; n < groupBytes; ++n) {
            bits = bits << 8 | (n < group.size() ? static_cast<std::uint8_t>(group[n]) : 0U);
        }
        for (std::size_t n = 0; n < groupCharacters; ++n) {
            text += n <= group.size() ? alphabet[bits >> (18 - 6 * n) & 0x3F] : '=';
        }
    }
    return text;
}

std::optional<std::string> decode(std::string_view text) {
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char character : text.substr(0, text.find('='))) {
        const std::size_t digit = alphabet.find(character);
        if (digit == std::string_view::npos) return std::nullopt;
        bits = (bits << 6 | static_cast<std::uint32_t>(digit)) & 0xFFFF;
        count += 6;
        if (count < 8) continue;
        count -= 8;
        bytes += static_cast<char>(static_cast<std::uint8_t>(bits >> count));
    }
    // Leftover bits, or padding that doesn't belong.
    if (encode(bytes) != text) return std::nullopt;
    return bytes;
}

}  // namespace vantrel::text::Base64
