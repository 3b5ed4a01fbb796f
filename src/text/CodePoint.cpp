#include "text/CodePoint.h"

#include <cstdint>

namespace vantrel::text {
namespace {

// What may follow a lead byte: one row of "Well-Formed UTF-8 Byte Sequences"
// (The Unicode Standard, table 3-7).
struct Form {
    std::size_t trailing;
    std::uint8_t lowestSecond = 0x80;
    std::uint8_t highestSecond = 0xBF;
};

// No trailing bytes: no sequence starts with this byte.
Form formOf(std::uint8_t lead) {
    if (lead < 0xC2 || lead > 0xF4) return {.trailing = 0};
    if (lead < 0xE0) return {.trailing = 1};
    if (lead == 0xE0) return {.trailing = 2, .lowestSecond = 0xA0};
    if (lead == 0xED) return {.trailing = 2, .highestSecond = 0x9F};
    if (lead < 0xF0) return {.trailing = 2};
    if (lead == 0xF0) return {.trailing = 3, .lowestSecond = 0x90};
    if (lead == 0xF4) return {.trailing = 3, .highestSecond = 0x8F};
    return {.trailing = 3};
}

}  // namespace

CodePoint CodePoint::first(std::string_view bytes) {
    const auto lead = static_cast<std::uint8_t>(bytes.front());
    if (lead < 0x80) return {lead, 1, true};
    const Form form = formOf(lead);
    // A lead byte of a sequence of n bytes carries 7 - n bits.
    char32_t value = lead & (0x3FU >> form.trailing);
    for (std::size_t index = 1; index <= form.trailing; ++index) {
        if (index == bytes.size()) return {replacementCharacter, index, false};
        const auto byte = static_cast<std::uint8_t>(bytes[index]);
        const std::uint8_t lowest = index == 1 ? form.lowestSecond : 0x80;
        const std::uint8_t highest = index == 1 ? form.highestSecond : 0xBF;
        if (byte < lowest || byte > highest) return {replacementCharacter, index, false};
        value = value << 6 | (byte & 0x3FU);
    }
    if (form.trailing == 0) return {replacementCharacter, 1, false};
    return {value, form.trailing + 1, true};
}

}  // namespace vantrel::text
