#include "storms/StormPersonality.h"

#include <chrono>

namespace vantrel::storms {

using namespace std::chrono_literals;
using simulated::Duration;
using simulated::FragmentFault;
using simulated::Occurrence;
using simulated::Personality;
using simulated::Random;
using simulated::ReplyFault;

namespace {

Occurrence someOccurrence(Random& random) {
    switch (random.uniform(0, 2)) {
        case 0:
            return {static_cast<double>(random.uniform(1, 8)) / 10, 0, 0};
        case 1:
            return {0, static_cast<unsigned>(random.uniform(1, 4)), 0};
        default:
            return {0, 0, static_cast<unsigned>(random.uniform(1, 6))};
    }
}

void spoilReplies(Personality& personality, Random& random) {
    for (std::uint64_t fault = random.uniform(1, 3); fault > 0; --fault) {
        personality.replyFaults.push_back({static_cast<ReplyFault::Kind>(random.uniform(0, 11)),
                                           someOccurrence(random),
                                           {},
                                           static_cast<unsigned>(random.uniform(0, 11)),
                                           static_cast<std::uint8_t>(random.uniform(0, 255))});
    }
}

void spoilCapabilities(Personality& personality, Random& random) {
    if (random.chance(0.5)) personality.capabilitiesCutAfter = random.uniform(0, 80);
    if (random.chance(0.3)) personality.fragmentSize = random.uniform(1, 32);
    if (random.chance(0.5)) {
        personality.fragmentFaults.push_back(
            {static_cast<FragmentFault::Kind>(random.uniform(0, 3)), someOccurrence(random)});
    }
}

// One fault of the bus, of replies or of writes.
void addTransferFault(Personality& personality, Random& random, Counts& counts) {
    switch (random.uniform(0, 9)) {
        case 0:
            personality.replyLatency = random.duration(0ms, 70ms);
            personality.capabilitiesLatency = random.duration(0ms, 70ms);
            personality.latencyJitter = random.duration(0ms, 25ms);
            return counts.note(Seen::knobLatency);
        case 1:
            personality.byteTime = random.duration(50us, 500us);
            return counts.note(Seen::knobByteTime);
        case 2:
            // Dead monitors do little else.
            if (random.chance(0.6)) return;
            personality.dead = true;
            return counts.note(Seen::knobDead);
        case 3:
            personality.nak = someOccurrence(random);
            if (random.chance(0.4))
                personality.nakDuring.push_back({random.duration(0s, 600s), random.duration(1s, 300s)});
            return counts.note(Seen::knobNak);
        case 4:
            spoilReplies(personality, random);
            return counts.note(Seen::knobReplyFault);
        case 5:
            personality.unsupported = static_cast<simulated::UnsupportedReply>(random.uniform(1, 4));
            return counts.note(Seen::knobUnsupported);
        case 6:
            personality.writesNeeded = static_cast<unsigned>(random.uniform(2, 4));
            return counts.note(Seen::knobWritesNeeded);
        case 7:
            personality.writesNeedARead = true;
            return counts.note(Seen::knobWritesNeedARead);
        case 8:
            personality.writesLost = someOccurrence(random);
            return counts.note(Seen::knobWritesLost);
        default:
            personality.writesRevertAfter = random.duration(100ms, 60s);
            return counts.note(Seen::knobWritesRevert);
    }
}

// One oddity of input switches, of waking up, or of the capabilities string.
void addSwitchFault(Personality& personality, std::span<const std::uint16_t> inputs, Random& random,
                    Counts& counts) {
    switch (random.uniform(0, 9)) {
        case 0:
            for (const std::uint16_t input : inputs) {
                if (random.chance(0.5))
                    personality.inputReadings[input] = static_cast<std::uint16_t>(random.uniform(1, 0x1B));
            }
            return counts.note(Seen::knobInputReadings);
        case 1:
            personality.inputSwitch.time = random.duration(0s, 30s);
            return counts.note(Seen::knobSlowSwitch);
        case 2:
            personality.inputSwitch.time = random.duration(1s, 10s);
            personality.inputSwitch.silent = true;
            return counts.note(Seen::knobSilentSwitch);
        case 3:
        case 4:
            personality.inputSwitch.time = random.duration(1s, 25s);
            personality.inputSwitch.pulse = random.duration(500ms, 8s);
            personality.inputSwitch.pulseAfter = random.duration(0s, 6s);
            return counts.note(Seen::knobPulse);
        case 5:
            personality.inputSwitch.time = random.duration(1s, 10s);
            personality.inputSwitch.returns = someOccurrence(random);
            return counts.note(Seen::knobSwitchReturns);
        case 6:
            personality.inputSwitch.ignored = someOccurrence(random);
            return counts.note(Seen::knobSwitchIgnored);
        case 7:
            personality.silentOnOtherInputs = true;
            return counts.note(Seen::knobSilentElsewhere);
        case 8:
            spoilCapabilities(personality, random);
            return counts.note(Seen::knobCapabilities);
        default:
            personality.deafAfterWake = random.duration(500ms, 30s);
            return counts.note(Seen::knobDeaf);
    }
}

}  // namespace

Personality somePersonality(Random& random, std::span<const std::uint16_t> inputs, Counts& counts) {
    Personality personality;
    if (random.chance(0.3)) {
        counts.note(Seen::wellBehaved);
        return personality;
    }
    for (std::uint64_t fault = random.uniform(1, 4); fault > 0; --fault) {
        if (random.chance(0.45)) {
            addTransferFault(personality, random, counts);
        } else {
            addSwitchFault(personality, inputs, random, counts);
        }
    }
    if (random.chance(0.3)) {
        personality.staleAfterReconfiguration = true;
        counts.note(Seen::knobStale);
    }
    return personality;
}

}  // namespace vantrel::storms
