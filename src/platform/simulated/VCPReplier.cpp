#include "platform/simulated/VCPReplier.h"

#include "platform/simulated/ReplySpoiler.h"

namespace vantrel::simulated {
namespace {

// Result codes of a Get VCP reply.
constexpr std::uint8_t noError = 0x00;
constexpr std::uint8_t unsupportedCode = 0x01;

Bytes payload(std::uint8_t result, std::uint8_t code, const VCPReading& reading) {
    const auto high = [](std::uint16_t value) { return static_cast<std::uint8_t>(value >> 8); };
    const auto low = [](std::uint16_t value) { return static_cast<std::uint8_t>(value); };
    return {getVCPReply,
            result,
            code,
            reading.type,
            high(reading.maximum),
            low(reading.maximum),
            high(reading.current),
            low(reading.current)};
}

}  // namespace

VCPReplier::VCPReplier(const Personality& personality) : unsupported_(personality.unsupported) {
    for (const ReplyFault& fault : personality.replyFaults)
        faults_.emplace_back(fault, Occasions(fault.when));
}

Reply VCPReplier::reply(const Question& question, std::span<const std::uint8_t> request, Random& random) {
    const ReplyFault* fault = nextFault(question.code, random);
    std::optional<Bytes> answered = answer(question);
    std::optional<Bytes> said = answered;
    if (fault != nullptr && fault->kind == ReplyFault::Kind::previousCode) said = previous_;
    if (fault != nullptr && fault->kind == ReplyFault::Kind::lastValue) {
        said = payload(noError, question.code, last_);
    }
    previous_ = std::move(answered);
    if (question.reading) last_ = *question.reading;

    Bytes frame = said ? replyFrame(*said) : nullFrame();
    if (fault == nullptr) return {std::move(frame)};
    return ReplySpoiler::spoil(*fault, std::move(frame), request);
}

const ReplyFault* VCPReplier::nextFault(std::uint8_t code, Random& random) {
    const ReplyFault* chosen = nullptr;
    for (auto& [fault, occasions] : faults_) {
        if (!fault.codes.empty() && !fault.codes.contains(code)) continue;
        if (occasions.next(random) && chosen == nullptr) chosen = &fault;
    }
    return chosen;
}

std::optional<Bytes> VCPReplier::answer(const Question& question) const {
    if (question.reading) return payload(noError, question.code, *question.reading);
    switch (unsupported_) {
        case UnsupportedReply::resultCode:
            return payload(unsupportedCode, question.code, VCPReading{});
        case UnsupportedReply::lastValue:
            return payload(noError, question.code, last_);
        case UnsupportedReply::zeros:
            return payload(noError, question.code, VCPReading{});
        case UnsupportedReply::nullMessage:
        case UnsupportedReply::nak:
            break;
    }
    return std::nullopt;
}

}  // namespace vantrel::simulated
