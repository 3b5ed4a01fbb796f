#include "platform/linux/EDID.h"

#include <algorithm>
#include <array>

namespace vantrel::linux {
namespace {

using Bytes = std::span<const std::uint8_t>;

// Section 3.3.
constexpr std::array<std::uint8_t, 8> header{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
// Cables lose bits; the kernel's drivers repair a header of which as many bytes are right.
constexpr std::ptrdiff_t rightHeaderBytes = 6;
// Section 3.4.
constexpr std::size_t vendorAt = 8;
constexpr std::size_t productAt = 10;
constexpr std::size_t serialAt = 12;
constexpr std::size_t identityEnd = 16;
// Section 3.10.3: four descriptors of 18 bytes, of which the last 13 are the text.
constexpr std::array<std::size_t, 4> descriptors{54, 72, 90, 108};
constexpr std::size_t descriptorSize = 18;
constexpr std::size_t textAt = 5;
constexpr std::uint8_t productName = 0xFC;
constexpr std::uint8_t textEnd = 0x0A;

bool hasHeader(Bytes bytes) {
    std::ptrdiff_t right = 0;
    for (std::size_t at = 0; at < header.size(); ++at) right += bytes[at] == header.at(at) ? 1 : 0;
    return right >= rightHeaderBytes;
}

std::uint32_t littleEndian(Bytes bytes) {
    std::uint32_t value = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) value = value << 8 | *byte;
    return value;
}

bool isNameDescriptor(Bytes descriptor) {
    return descriptor[0] == 0 && descriptor[1] == 0 && descriptor[2] == 0 && descriptor[3] == productName;
}

// Nothing but spaces is no name.
std::optional<std::string> text(Bytes bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (byte == textEnd) break;
        if (byte >= 0x20 && byte < 0x7F) text += static_cast<char>(byte);
    }
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return std::nullopt;
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<std::string> name(Bytes bytes) {
    for (const std::size_t at : descriptors) {
        if (bytes.size() < at + descriptorSize) break;
        const Bytes descriptor = bytes.subspan(at, descriptorSize);
        if (!isNameDescriptor(descriptor)) continue;
        if (auto found = text(descriptor.subspan(textAt))) return found;
    }
    return std::nullopt;
}

}  // namespace

std::optional<EDID> EDID::read(Bytes bytes) {
    if (bytes.size() < identityEnd || !hasHeader(bytes)) return std::nullopt;
    EDID edid;
    edid.vendor = static_cast<std::uint32_t>(bytes[vendorAt]) << 8 | bytes[vendorAt + 1];
    edid.product = littleEndian(bytes.subspan(productAt, 2));
    edid.serial = littleEndian(bytes.subspan(serialAt, 4));
    edid.name = linux::name(bytes);
    return edid;
}

}  // namespace vantrel::linux
