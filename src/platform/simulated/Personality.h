// How one simulated monitor behaves. Every member's default is a well-behaved
// monitor; docs/simulation.md describes the same knobs as a desk file has them.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace vantrel::simulated {

using Duration = std::chrono::microseconds;

// Which of the occasions for a fault have it. With several rules set, any of
// them is enough.
struct Occurrence {
    // By chance, each time, from the desk's seed.
    double probability = 0;
    // The 1st occasion and every `every`-th after it: 1 is always, 2 alternates. 0 is never.
    unsigned every = 0;
    // The first so many occasions.
    unsigned first = 0;

    bool operator==(const Occurrence&) const = default;
};

// A span of time counted from the desk's start.
struct Span {
    Duration from{0};
    Duration length{0};
    bool operator==(const Span&) const = default;
};

// One way to spoil the reply to a Get VCP request.
struct ReplyFault {
    enum class Kind {
        wrongChecksum,   // the checksum byte is off
        previousCode,    // answers the question before this one
        lostFirstBytes,  // the first `bytes` bytes are missing, null messages behind
        doubledSource,   // 6E 6E ...: the first byte comes twice
        doubledLength,   // 6E 88 88 ...: the length byte comes twice
        lengthNine,      // says 9 bytes (89) where 8 follow; checksum to match
        cut,             // ends after `bytes` bytes, the rest of a null message behind
        echo,            // the host's own request, zeros behind
        nullMessage,     // 6E 80 BE
        rotatedNulls,    // null messages, shifted
        constantBytes,   // every byte is `value`
        lastValue,       // the previous reply's maximum and current under this code
    };
    Kind kind = Kind::wrongChecksum;
    Occurrence when;
    // Only requests for these codes; empty means all.
    std::set<std::uint8_t> codes;
    unsigned bytes = 4;
    std::uint8_t value = 0x6E;

    bool operator==(const ReplyFault&) const = default;
};

// One way to spoil a fragment of the capabilities string.
struct FragmentFault {
    enum class Kind { wrongChecksum, damagedHeader, wrongOffset, nullMessage };
    Kind kind = Kind::wrongChecksum;
    Occurrence when;
    bool operator==(const FragmentFault&) const = default;
};

// How the monitor answers a Get VCP request for a code that it does not have.
enum class UnsupportedReply {
    resultCode,   // result code 01, as the standard asks
    nullMessage,  // 6E 80 BE
    lastValue,    // the last valid reply's values, as if supported
    zeros,        // 0 of 0, as if supported
    nak,          // does not acknowledge on the bus
};

struct InputSwitch {
    // From the request until the new input is shown and read back.
    Duration time{0};
    // Whether the monitor answers nothing meanwhile.
    bool silent = false;
    // The monitor leaves the bus and the online list for `pulse`, `pulseAfter`
    // the request. 0 is no pulse.
    Duration pulse{0};
    Duration pulseAfter{0};
    // Blinks and returns to the old input when the time is over.
    Occurrence returns;
    // Does not take the request at all.
    Occurrence ignored;

    bool operator==(const InputSwitch&) const = default;
};

struct Personality {
    // From the end of a request until its reply can be read; a read before that
    // gets null messages. DDC/CI gives a monitor 40 ms.
    Duration replyLatency{std::chrono::milliseconds(40)};
    Duration capabilitiesLatency{std::chrono::milliseconds(40)};
    // Up to so much more, by chance.
    Duration latencyJitter{0};
    // How long the bus is busy per byte, both ways (90 us at 100 kHz).
    Duration byteTime{0};

    // Never answers anything and acknowledges nothing.
    bool dead = false;
    // Does not acknowledge a transfer.
    Occurrence nak;
    std::vector<Span> nakDuring;
    bool ignoresWrongChecksums = true;

    std::vector<ReplyFault> replyFaults;
    UnsupportedReply unsupported = UnsupportedReply::resultCode;

    // How many equal Set VCP requests in a row it takes until one has an effect.
    unsigned writesNeeded = 1;
    // A Set VCP request counts only if a Get VCP request came since the last one.
    bool writesNeedARead = false;
    Occurrence writesLost;
    // A written value goes back to the old one after so long. 0 is never.
    Duration writesRevertAfter{0};

    // The fragments stop (null messages) once so many bytes were sent.
    std::optional<std::size_t> capabilitiesCutAfter;
    std::size_t fragmentSize = 32;
    std::vector<FragmentFault> fragmentFaults;

    // What VCP 60 reads, by input value; others read as they are written.
    std::map<std::uint16_t, std::uint16_t> inputReadings;
    InputSwitch inputSwitch;
    // Answers only while it shows the input that the computer is on.
    bool silentOnOtherInputs = false;

    Duration deafAfterWake{0};
    // An AV service handle stops working at the next display reconfiguration.
    bool staleAfterReconfiguration = false;

    bool operator==(const Personality&) const = default;
};

}  // namespace vantrel::simulated
