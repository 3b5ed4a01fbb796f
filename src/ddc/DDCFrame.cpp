#include "ddc/DDCFrame.h"

#include "runtime/Fatal.h"

namespace vantrel::ddc {
namespace {

// A length byte always has its top bit set.
constexpr std::uint8_t lengthFlag = 0x80;
// Checksums start from the addresses that the frame itself does not carry: the
// destination 6E and the source 51 of a request, and 50, the host's address as a
// destination, of a reply (whose source address is its first byte).
constexpr std::uint8_t requestChecksumStart = 0x6E ^ 0x51;
constexpr std::uint8_t replyChecksumStart = 0x50;

std::uint8_t checksum(std::uint8_t start, std::span<const std::uint8_t> bytes) {
    for (const std::uint8_t byte : bytes) start = static_cast<std::uint8_t>(start ^ byte);
    return start;
}

std::uint16_t bigEndian(std::uint8_t high, std::uint8_t low) {
    return static_cast<std::uint16_t>(high << 8 | low);
}

// Places in a Get VCP Feature reply: source, length, operation code, result code,
// VCP code, VCP type, maximum, current value, checksum.
enum ReadingByte : std::size_t {
    readingOperation = 2,
    readingResult = 3,
    readingCode = 4,
    readingMaximum = 6,
    readingCurrent = 8,
};

// Places in a capabilities reply: source, length, operation code, offset, string
// bytes, checksum.
enum FragmentByte : std::size_t {
    fragmentLength = 1,
    fragmentOperation = 2,
    fragmentOffset = 3,
    fragmentString = 5,
};
constexpr std::size_t smallestFragmentLength = 3;

}  // namespace

std::vector<std::uint8_t> requestPacket(std::span<const std::uint8_t> payload) {
    runtime::require(payload.size() <= 255, "a DDC/CI payload of more than 255 bytes");
    std::vector<std::uint8_t> packet;
    packet.reserve(payload.size() + 2);
    packet.push_back(static_cast<std::uint8_t>(lengthFlag | payload.size()));
    packet.insert(packet.end(), payload.begin(), payload.end());
    packet.push_back(checksum(requestChecksumStart, packet));
    return packet;
}

bool isValidReading(std::span<const std::uint8_t> reply, std::uint8_t code) {
    return reply.size() == static_cast<std::size_t>(readingReplySize) &&
           reply[readingOperation] == getVCPFeatureReply && reply[readingCode] == code &&
           checksum(0, reply) == replyChecksumStart;
}

bool isUnsupported(std::span<const std::uint8_t> reply) { return reply[readingResult] != 0; }

VCPReading readingOf(std::span<const std::uint8_t> reply) {
    return {bigEndian(reply[readingCurrent], reply[readingCurrent + 1]),
            bigEndian(reply[readingMaximum], reply[readingMaximum + 1])};
}

std::optional<std::vector<std::uint8_t>> fragmentOf(std::span<const std::uint8_t> reply,
                                                    std::uint16_t offset) {
    if (reply.size() <= fragmentOperation || reply[fragmentOperation] != capabilitiesReply)
        return std::nullopt;
    const std::size_t length = reply[fragmentLength] & ~lengthFlag & 0xFF;
    if (length < smallestFragmentLength || reply.size() <= length + 2) return std::nullopt;
    if (reply[length + 2] != checksum(replyChecksumStart, reply.first(length + 2))) return std::nullopt;
    if (bigEndian(reply[fragmentOffset], reply[fragmentOffset + 1]) != offset) return std::nullopt;
    const auto string = reply.subspan(fragmentString, length - smallestFragmentLength);
    return std::vector<std::uint8_t>(string.begin(), string.end());
}

}  // namespace vantrel::ddc
