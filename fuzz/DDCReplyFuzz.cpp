// Whatever a monitor and its bus answer: nothing crashes or runs away, and what
// comes out was in an answer.

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ddc/DDCChannel.h"
#include "runtime/Fatal.h"
#include "support/RecordingLogSink.h"
#include "support/ScriptedBus.h"
#include "support/SteppingClock.h"

namespace {

using namespace std::chrono_literals;

using vantrel::ddc::DDCChannel;
using vantrel::runtime::require;
using vantrel::test::BusEvent;
using Bytes = std::vector<std::uint8_t>;
using Duration = vantrel::runtime::MonotonicClock::duration;
using Kind = DDCChannel::ReadResult::Kind;
using Reply = vantrel::test::ScriptedService::Reply;

constexpr std::size_t longestReply = 38;
constexpr int lastOffset = 8191;

// The bus's answers, taken from the input one after the other. When it is used
// up, everything fails.
class Input {
  public:
    explicit Input(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    std::uint8_t byte(std::uint8_t atTheEnd) {
        if (rest_.empty()) return atTheEnd;
        const std::uint8_t first = rest_.front();
        rest_ = rest_.subspan(1);
        return first;
    }
    std::int32_t writeStatus() { return byte(1) & 1; }

    Reply reply(const Bytes& request) {
        enum Form : std::uint8_t { asItIs, sealed, answering, failure };
        const auto form = static_cast<Form>(byte(failure) & 3);
        if (form == failure) return {1, {}};
        Bytes bytes = take(form == answering ? byte(0) & 0x1F : longestReply);
        if (form == answering) bytes = answer(request, bytes);
        if (form == sealed) seal(bytes);
        return {0, bytes};
    }

  private:
    Bytes take(std::size_t count) {
        const auto taken = rest_.first(std::min(count, rest_.size()));
        rest_ = rest_.subspan(taken.size());
        return {taken.begin(), taken.end()};
    }

    // Puts the checksum where the length says that it is.
    static void seal(Bytes& bytes) {
        bytes.resize(longestReply);
        const std::size_t end = std::min<std::size_t>((bytes[1] & 0x7FU) + 2U, longestReply - 1);
        bytes[end] = 0x50;
        for (std::size_t index = 0; index < end; ++index) bytes[end] ^= bytes[index];
    }

    // A valid reply of this content, so that the input needs no luck.
    static Bytes answer(const Bytes& request, Bytes content) {
        Bytes bytes{0x6E, 0x88, 0x02};
        if (request.at(1) == 0x01) {
            content.resize(7);
            content[1] = request.at(2);
        } else {
            bytes = {0x6E, static_cast<std::uint8_t>(0x80 | (content.size() + 3)), 0xE3, request.at(2),
                     request.at(3)};
        }
        bytes.insert(bytes.end(), content.begin(), content.end());
        seal(bytes);
        return bytes;
    }

    std::span<const std::uint8_t> rest_;
};

struct Totals {
    int writes = 0;
    int reads = 0;
    int walks = 0;
    Duration pauses{};
    Bytes lastReply{};
};

Totals totalsOf(const std::vector<BusEvent>& journal) {
    Totals totals;
    for (const BusEvent& event : journal) {
        if (event.kind == BusEvent::Kind::write) ++totals.writes;
        if (event.kind == BusEvent::Kind::read) ++totals.reads;
        if (event.kind == BusEvent::Kind::walk) ++totals.walks;
        if (event.kind == BusEvent::Kind::read) totals.lastReply = event.bytes;
        totals.pauses += event.length;
    }
    return totals;
}

void checkReading(const DDCChannel::ReadResult& result, std::uint8_t code, int attempts,
                  const Totals& totals) {
    require(totals.writes <= 2 * (attempts + totals.walks), "too many requests");
    require(totals.reads <= attempts, "too many replies");
    require(totals.pauses <= attempts * 90ms + totals.walks * 10ms, "too long pauses");
    if (result.kind == Kind::failed) return;
    const Bytes& reply = totals.lastReply;
    require(reply.at(2) == 0x02 && reply.at(4) == code, "another answer was taken");
    require((reply.at(3) != 0) == (result.kind == Kind::unsupported), "the result code is not heeded");
    std::uint8_t checksum = 0;
    for (const std::uint8_t byte : reply) checksum ^= byte;
    require(checksum == 0x50, "a wrong checksum was taken");
    if (result.kind == Kind::unsupported) return;
    require(result.reading.maximum == reply.at(6) * 256 + reply.at(7), "the maximum is not the reply's");
    require(result.reading.current == reply.at(8) * 256 + reply.at(9), "the value is not the reply's");
}

void checkCapabilities(const std::optional<std::string>& text, const std::vector<BusEvent>& journal,
                       const Totals& totals) {
    int offset = 0;
    for (const BusEvent& event : journal) {
        if (event.kind != BusEvent::Kind::write) continue;
        const int next = event.bytes.at(2) * 256 + event.bytes.at(3);
        require(next >= offset && next - offset <= 32, "a fragment was left out");
        require(next <= lastOffset, "more than the longest string is asked for");
        offset = next;
    }
    // Five attempts at one offset fail at the most; each fragment advances.
    require(totals.reads <= 5 * (offset + 1), "too many replies");
    require(totals.pauses <= totals.writes * 90ms + 5 * 40ms, "too long pauses");
    require(text != "", "an empty string was taken");
    // A byte becomes one replacement of three bytes at the most.
    if (text) require(text->size() <= 3U * static_cast<unsigned>(offset + 32), "bytes out of nowhere");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input({data, size});
    vantrel::test::SteppingClock clock;
    vantrel::test::RecordingLogSink sink;
    vantrel::test::ScriptedService monitor;
    vantrel::test::ScriptedBus bus(clock);
    monitor.everyOtherWrite([&] { return input.writeStatus(); });
    monitor.everyOtherReply([&] { return input.reply(bus.journal.last(BusEvent::Kind::write).bytes); });

    const std::uint8_t setup = input.byte(0);
    const std::uint8_t code = input.byte(0x10);
    const int attempts = setup & 7;
    if (setup & 0x08) monitor.takesPerTransfer(700ms);
    for (int link = 0; link < (setup >> 4 & 3); ++link) bus.connect(monitor, "10AC", setup >> 6);
    DDCChannel channel({bus, bus, bus.functions(), vantrel::platform::Log(sink)},
                       {bus.open(monitor), "10AC", 1U, std::nullopt}, "Left");

    const auto reading = channel.read(code, attempts);
    checkReading(reading, code, attempts, totalsOf(bus.journal.events()));

    bus.journal.clear();
    const bool written = channel.write(code, 50);
    const Totals totals = totalsOf(bus.journal.events());
    require(totals.writes == 2 || (totals.writes == 4 && totals.walks == 1), "a wrong number of writes");
    require(!written == (sink.lines().back().level == vantrel::platform::LogLevel::error), "a wrong line");

    bus.journal.clear();
    const auto text = channel.capabilities();
    const std::vector<BusEvent> journal = bus.journal.events();
    checkCapabilities(text, journal, totalsOf(journal));
    require(bus.liveHandles() == 1, "handles are lost");
    return 0;
}
