#include "platform/macos/CFText.h"

#include <cstddef>
#include <vector>

#include "text/CodePoint.h"
#include "text/UTF8.h"

namespace vantrel::macos::CFText {
namespace {

// Unicode Standard, chapter 3.9, table 3-6.
void appendUTF8(std::string& text, char32_t character) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto continuation = [character](unsigned shift) { return 0x80 | (character >> shift & 0x3F); };
    if (character < 0x80) return append(character);
    if (character < 0x800) {
        append(0xC0 | character >> 6);
    } else if (character < 0x10000) {
        append(0xE0 | character >> 12);
        append(continuation(6));
    } else {
        append(0xF0 | character >> 18);
        append(continuation(12));
        append(continuation(6));
    }
    append(continuation(0));
}

bool isHighSurrogate(UniChar unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(UniChar unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

CFHandle<CFStringRef> make(std::string_view text) {
    const std::string repaired = text::repairedUTF8(text);
    constexpr Boolean hasByteOrderMark = false;
    return CFHandle(CFStringCreateWithBytes(
        kCFAllocatorDefault, reinterpret_cast<const UInt8*>(repaired.data()),
        static_cast<CFIndex>(repaired.size()), kCFStringEncodingUTF8, hasByteOrderMark));
}

std::string read(CFStringRef string) {
    const CFIndex length = CFStringGetLength(string);
    std::vector<UniChar> units(static_cast<std::size_t>(length));
    CFStringGetCharacters(string, CFRangeMake(0, length), units.data());
    std::string text;
    for (std::size_t place = 0; place < units.size(); ++place) {
        const UniChar unit = units[place];
        if (isHighSurrogate(unit) && place + 1 < units.size() && isLowSurrogate(units[place + 1])) {
            const char32_t high = unit & 0x3FFU;
            const char32_t low = units[++place] & 0x3FFU;
            appendUTF8(text, 0x10000 + (high << 10 | low));
        } else if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
            appendUTF8(text, text::CodePoint::replacementCharacter);
        } else {
            appendUTF8(text, unit);
        }
    }
    return text;
}

}  // namespace vantrel::macos::CFText
