#include "platform/simulated/ReplySpoiler.h"

#include <algorithm>
#include <utility>

namespace vantrel::simulated::ReplySpoiler {
namespace {

using Kind = ReplyFault::Kind;

// Positions in a reply frame.
constexpr std::ptrdiff_t lengthByte = 1;
constexpr std::ptrdiff_t payloadStart = 2;

// Null messages from their byte `shift` on.
Bytes shiftedNulls(std::size_t shift) {
    Bytes nulls = nullFrame();
    const auto start = static_cast<std::ptrdiff_t>(shift % nulls.size());
    std::rotate(nulls.begin(), nulls.begin() + start, nulls.end());
    return nulls;
}

void spoilChecksum(Bytes& frame) { frame.back() = static_cast<std::uint8_t>(frame.back() ^ 0xFF); }

Bytes withGreaterLength(Bytes frame) {
    const auto was = frame[lengthByte]++;
    frame.back() = static_cast<std::uint8_t>(frame.back() ^ was ^ frame[lengthByte]);
    return frame;
}

Bytes echo(std::uint8_t source, std::span<const std::uint8_t> request) {
    Bytes bytes(request.begin(), request.end());
    bytes.insert(bytes.begin(), source);
    return bytes;
}

}  // namespace

Reply spoil(const ReplyFault& fault, Bytes frame, std::span<const std::uint8_t> request) {
    const auto count = static_cast<std::ptrdiff_t>(std::min<std::size_t>(fault.bytes, frame.size()));
    switch (fault.kind) {
        case Kind::wrongChecksum:
            spoilChecksum(frame);
            break;
        case Kind::lostFirstBytes:
            frame.erase(frame.begin(), frame.begin() + count);
            break;
        case Kind::doubledSource:
            frame.insert(frame.begin(), frame.front());
            break;
        case Kind::doubledLength:
            frame.insert(frame.begin() + lengthByte, frame[lengthByte]);
            break;
        case Kind::lengthNine:
            return {withGreaterLength(std::move(frame))};
        case Kind::cut:
            frame.resize(static_cast<std::size_t>(count));
            return {std::move(frame), shiftedNulls(1)};
        case Kind::echo:
            return {echo(frame.front(), request), {0}};
        case Kind::nullMessage:
            return {};
        case Kind::rotatedNulls:
            return {{}, shiftedNulls(fault.bytes)};
        case Kind::constantBytes:
            return {{}, {fault.value}};
        case Kind::previousCode:
        case Kind::lastValue:
            break;
    }
    return {std::move(frame)};
}

Reply spoil(const FragmentFault& fault, Bytes frame, std::size_t size) {
    switch (fault.kind) {
        case FragmentFault::Kind::wrongChecksum:
            spoilChecksum(frame);
            break;
        case FragmentFault::Kind::damagedHeader:
            // The start of a null message has run into length and command.
            frame[lengthByte] = 0x80;
            frame[payloadStart] = frame.front();
            break;
        case FragmentFault::Kind::wrongOffset: {
            // The header of the next fragment, with a checksum to match.
            Bytes payload(frame.begin() + payloadStart, frame.end() - 1);
            const std::size_t offset = payload[1] * 256U + payload[2] + std::max<std::size_t>(size, 1);
            payload[1] = static_cast<std::uint8_t>(offset >> 8);
            payload[2] = static_cast<std::uint8_t>(offset);
            frame = replyFrame(payload);
            break;
        }
        case FragmentFault::Kind::nullMessage:
            return {};
    }
    return {std::move(frame)};
}

}  // namespace vantrel::simulated::ReplySpoiler
