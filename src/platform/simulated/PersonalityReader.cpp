#include "platform/simulated/PersonalityReader.h"

#include <nlohmann/json.hpp>

#include "platform/simulated/ObjectShape.h"
#include "platform/simulated/ValueReaders.h"

namespace vantrel::simulated::PersonalityReader {
namespace {

using namespace ValueReaders;

// DDC/CI: a Get VCP reply has 11 bytes, and a fragment at most 32 of the string.
constexpr unsigned replySize = 11;
constexpr std::size_t largestFragment = 32;
// The offset of a capabilities request has 16 bits.
constexpr std::size_t longestCapabilities = 0xFFFF;

// A fault that is listed happens, unless it says when.
constexpr Occurrence always{.probability = 0, .every = 1, .first = 0};

const WordTable<ReplyFault::Kind>& replyFaultKinds() {
    using Kind = ReplyFault::Kind;
    static const WordTable<Kind> table{"Reply fault kinds",
                                       {
                                           {"wrongChecksum", Kind::wrongChecksum},
                                           {"previousCode", Kind::previousCode},
                                           {"lostFirstBytes", Kind::lostFirstBytes},
                                           {"doubledSource", Kind::doubledSource},
                                           {"doubledLength", Kind::doubledLength},
                                           {"lengthNine", Kind::lengthNine},
                                           {"cut", Kind::cut},
                                           {"echo", Kind::echo},
                                           {"nullMessage", Kind::nullMessage},
                                           {"rotatedNulls", Kind::rotatedNulls},
                                           {"constantBytes", Kind::constantBytes},
                                           {"lastValue", Kind::lastValue},
                                       }};
    return table;
}

const WordTable<FragmentFault::Kind>& fragmentFaultKinds() {
    using Kind = FragmentFault::Kind;
    static const WordTable<Kind> table{"Fragment fault kinds",
                                       {
                                           {"wrongChecksum", Kind::wrongChecksum},
                                           {"damagedHeader", Kind::damagedHeader},
                                           {"wrongOffset", Kind::wrongOffset},
                                           {"nullMessage", Kind::nullMessage},
                                       }};
    return table;
}

const WordTable<UnsupportedReply>& unsupportedReplies() {
    static const WordTable<UnsupportedReply> table{"Unsupported replies",
                                                   {
                                                       {"resultCode", UnsupportedReply::resultCode},
                                                       {"nullMessage", UnsupportedReply::nullMessage},
                                                       {"lastValue", UnsupportedReply::lastValue},
                                                       {"zeros", UnsupportedReply::zeros},
                                                       {"nak", UnsupportedReply::nak},
                                                   }};
    return table;
}

std::optional<std::set<std::uint8_t>> codes(const JSONPlace& place) {
    std::set<std::uint8_t> result;
    for (const JSONPlace& element : place.elements()) {
        const auto value = code<std::uint8_t>(element);
        if (value && !result.insert(*value).second) element.report("is there already");
    }
    return result;
}

std::optional<std::map<std::uint16_t, std::uint16_t>> inputReadings(const JSONPlace& place) {
    std::map<std::uint16_t, std::uint16_t> result;
    for (const auto& [key, member] : place.members()) {
        const auto input = parseHexadecimal(key, 4);
        if (!input) member.report("must be named by an input value like 0x0F");
        const auto reading = code<std::uint16_t>(member);
        if (!input || !reading) continue;
        if (!result.emplace(static_cast<std::uint16_t>(*input), *reading).second) {
            member.report("names the same input as another key");
        }
    }
    return result;
}

const ObjectShape<Span>& spanShape() {
    static const ObjectShape<Span> shape{
        "Span",
        {
            {"fromMs", into(&Span::from, milliseconds), Field<Span>::Need::required},
            {"lengthMs", into(&Span::length, milliseconds), Field<Span>::Need::required},
        },
        {}};
    return shape;
}

const ObjectShape<ReplyFault>& replyFaultShape() {
    static const ObjectShape<ReplyFault> shape{
        "Reply fault",
        {
            {"kind", into(&ReplyFault::kind, replyFaultKinds()), Field<ReplyFault>::Need::required},
            {"when", into(&ReplyFault::when, occurrence)},
            {"codes", into(&ReplyFault::codes, codes)},
            {"bytes", into(&ReplyFault::bytes, count(0U, replySize))},
            {"value", into(&ReplyFault::value, code<std::uint8_t>)},
        },
        [](const JSONPlace& place, ReplyFault& fault) {
            if (!place.has("when")) fault.when = always;
        }};
    return shape;
}

const ObjectShape<FragmentFault>& fragmentFaultShape() {
    static const ObjectShape<FragmentFault> shape{
        "Fragment fault",
        {
            {"kind", into(&FragmentFault::kind, fragmentFaultKinds()), Field<FragmentFault>::Need::required},
            {"when", into(&FragmentFault::when, occurrence)},
        },
        [](const JSONPlace& place, FragmentFault& fault) {
            if (!place.has("when")) fault.when = always;
        }};
    return shape;
}

const ObjectShape<InputSwitch>& inputSwitchShape() {
    static const ObjectShape<InputSwitch> shape{
        "Input switch",
        {
            {"timeMs", into(&InputSwitch::time, milliseconds)},
            {"silent", into(&InputSwitch::silent, flag)},
            {"pulseMs", into(&InputSwitch::pulse, milliseconds)},
            {"pulseAfterMs", into(&InputSwitch::pulseAfter, milliseconds)},
            {"returns", into(&InputSwitch::returns, occurrence)},
            {"ignored", into(&InputSwitch::ignored, occurrence)},
        },
        {}};
    return shape;
}

const ObjectShape<Personality>& personalityShape() {
    using P = Personality;
    static const ObjectShape<P> shape{
        "Personality",
        {
            {"replyLatencyMs", into(&P::replyLatency, milliseconds)},
            {"capabilitiesLatencyMs", into(&P::capabilitiesLatency, milliseconds)},
            {"latencyJitterMs", into(&P::latencyJitter, milliseconds)},
            {"byteTimeUs", into(&P::byteTime, microseconds)},
            {"dead", into(&P::dead, flag)},
            {"nak", into(&P::nak, occurrence)},
            {"nakDuring", into(&P::nakDuring, listOf(spanShape()))},
            {"ignoresWrongChecksums", into(&P::ignoresWrongChecksums, flag)},
            {"replyFaults", into(&P::replyFaults, listOf(replyFaultShape()))},
            {"unsupported", into(&P::unsupported, unsupportedReplies())},
            {"writesNeeded", into(&P::writesNeeded, count(1U, 1000U))},
            {"writesNeedARead", into(&P::writesNeedARead, flag)},
            {"writesLost", into(&P::writesLost, occurrence)},
            {"writesRevertAfterMs", into(&P::writesRevertAfter, milliseconds)},
            {"capabilitiesCutAfterBytes",
             into(&P::capabilitiesCutAfter, count(std::size_t{0}, longestCapabilities))},
            {"fragmentSizeBytes", into(&P::fragmentSize, count(std::size_t{1}, largestFragment))},
            {"fragmentFaults", into(&P::fragmentFaults, listOf(fragmentFaultShape()))},
            {"inputReadings", into(&P::inputReadings, inputReadings)},
            {"inputSwitch", into(&P::inputSwitch, inputSwitchShape())},
            {"silentOnOtherInputs", into(&P::silentOnOtherInputs, flag)},
            {"deafAfterWakeMs", into(&P::deafAfterWake, milliseconds)},
            {"staleAfterReconfiguration", into(&P::staleAfterReconfiguration, flag)},
        },
        {}};
    return shape;
}

}  // namespace

std::optional<Personality> read(const JSONPlace& place) { return personalityShape()(place); }

std::vector<DeskFile::Words> vocabulary() {
    return {personalityShape().words(), spanShape().words(),          replyFaultShape().words(),
            replyFaultKinds().words(),  fragmentFaultShape().words(), fragmentFaultKinds().words(),
            inputSwitchShape().words(), unsupportedReplies().words(), occurrenceShape().words()};
}

}  // namespace vantrel::simulated::PersonalityReader
