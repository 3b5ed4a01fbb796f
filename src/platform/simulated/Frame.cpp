#include "platform/simulated/Frame.h"

namespace vantrel::simulated {
namespace {

// 8-bit addresses as the checksums see them: the display when it is written to
// and as a source, and the virtual host address that stands in for a reply's
// destination.
constexpr std::uint8_t displayAddress = 0x6E;
constexpr std::uint8_t replyChecksumStart = 0x50;
constexpr std::uint8_t lengthFlag = 0x80;
constexpr std::uint8_t lengthMask = 0x7F;

std::uint8_t exclusiveOr(std::uint8_t start, std::span<const std::uint8_t> bytes) {
    for (const std::uint8_t byte : bytes) start = static_cast<std::uint8_t>(start ^ byte);
    return start;
}

}  // namespace

std::optional<Request> parseRequest(std::uint32_t source, std::span<const std::uint8_t> written) {
    if (source != hostAddress || written.empty()) return std::nullopt;
    if ((written[0] & lengthFlag) == 0) return std::nullopt;
    const std::size_t length = written[0] & lengthMask;
    if (length == 0 || written.size() < length + 2) return std::nullopt;
    const auto payload = written.subspan(1, length);
    const auto start = static_cast<std::uint8_t>(displayAddress ^ source);
    const std::uint8_t checksum = exclusiveOr(start, written.first(length + 1));
    return Request{Bytes(payload.begin(), payload.end()), written[length + 1] == checksum};
}

Bytes replyFrame(std::span<const std::uint8_t> payload) {
    Bytes frame;
    frame.reserve(payload.size() + 3);
    frame.push_back(displayAddress);
    frame.push_back(static_cast<std::uint8_t>(lengthFlag | payload.size()));
    frame.insert(frame.end(), payload.begin(), payload.end());
    frame.push_back(exclusiveOr(replyChecksumStart, frame));
    return frame;
}

Bytes nullFrame() { return replyFrame({}); }

void Reply::copyTo(std::span<std::uint8_t> read) const {
    for (std::size_t index = 0; index < read.size(); ++index) {
        read[index] = index < head.size() ? head[index] : tail[(index - head.size()) % tail.size()];
    }
}

}  // namespace vantrel::simulated
