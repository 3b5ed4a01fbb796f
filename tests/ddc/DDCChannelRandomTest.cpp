// Whatever the bus does, the channel keeps to the protocol's pauses and bounds.

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "Replies.h"
#include "ddc/DDCChannel.h"
#include "support/RandomSeeds.h"
#include "support/RecordingLogSink.h"
#include "support/ScriptedBus.h"
#include "support/SteppingClock.h"

namespace vantrel::ddc {
namespace {

using namespace std::chrono_literals;

using test::BusEvent;
using test::Bytes;
using Duration = runtime::MonotonicClock::duration;
using Result = DDCChannel::ReadResult;

constexpr std::uint8_t code = 0x10;

// A monitor that answers at random, often what was asked for.
class RandomDesk {
  public:
    explicit RandomDesk(std::uint64_t seed) : random_(seed) {
        const int writeFailures = below(101);
        const int readFailures = below(60);
        monitor.everyOtherWrite(
            [this, writeFailures] { return below(100) < writeFailures ? 1 + below(9) : 0; });
        monitor.everyOtherReply([this, readFailures] {
            if (below(100) < readFailures) return test::ScriptedService::Reply{0x2ED, {}};
            return test::ScriptedService::Reply{0, damaged(reply())};
        });
        if (below(4) == 0) monitor.takesPerTransfer(std::chrono::milliseconds(below(1500)));
        const int links = below(3);
        for (int link = 0; link < links; ++link)
            bus.connect(monitor, "10AC", static_cast<std::uint32_t>(below(2)));
        if (below(20) == 0) bus.missingSymbols.insert("IOAVServiceWriteI2C");
        if (below(20) == 0) bus.missingSymbols.insert("IOAVServiceReadI2C");
    }

    int below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }

    test::SteppingClock clock;
    test::RecordingLogSink sink;
    test::ScriptedService monitor;
    test::ScriptedBus bus{clock};
    DDCChannel channel{Transport(bus, bus, bus.functions(), platform::Log(sink)),
                       {bus.open(monitor), "10AC", 1U, std::nullopt},
                       "Left"};

  private:
    Bytes randomBytes(int count) {
        Bytes bytes(static_cast<std::size_t>(count));
        for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(below(256));
        return bytes;
    }

    Bytes reply() {
        const Bytes request = bus.journal.last(BusEvent::Kind::write).bytes;
        if (request.at(1) == 0x01) {
            if (below(8) == 0) return test::unsupportedReply(code);
            return test::readingReply(code, static_cast<unsigned>(below(65536)),
                                      static_cast<unsigned>(below(65536)));
        }
        const Bytes text = randomBytes(below(20) == 0 ? 0 : 1 + below(32));
        return test::fragmentReply(request.at(2) * 256U + request.at(3),
                                   std::string(text.begin(), text.end()));
    }

    Bytes damaged(Bytes reply) {
        if (below(4) != 0) return reply;
        if (below(4) == 0) return randomBytes(38);
        const auto index = static_cast<std::size_t>(below(static_cast<int>(reply.size())));
        reply[index] = static_cast<std::uint8_t>(below(256));
        return reply;
    }

    std::mt19937_64 random_;
};

struct Totals {
    int writes = 0;
    int reads = 0;
    int walks = 0;
    Duration pauses{};
};

Totals totalsOf(const std::vector<BusEvent>& journal) {
    Totals totals;
    for (const BusEvent& event : journal) {
        totals.writes += event.kind == BusEvent::Kind::write;
        totals.reads += event.kind == BusEvent::Kind::read;
        totals.walks += event.kind == BusEvent::Kind::walk;
        totals.pauses += event.length;
    }
    return totals;
}

// Every reply gets its 50 ms, every repeated request its pause, and reconnects
// are more than two seconds apart.
void expectOrder(const std::vector<BusEvent>& journal) {
    std::optional<runtime::MonotonicTime> lastWalk;
    for (std::size_t index = 0; index < journal.size(); ++index) {
        const BusEvent& event = journal[index];
        const BusEvent* const before = index > 0 ? &journal[index - 1] : nullptr;
        if (event.kind == BusEvent::Kind::read) {
            ASSERT_NE(before, nullptr);
            EXPECT_EQ(before->text(), "pause 50 ms");
        }
        if (event.kind == BusEvent::Kind::write && before != nullptr) {
            EXPECT_NE(before->kind, BusEvent::Kind::write) << "no pause before write " << index;
        }
        if (event.kind == BusEvent::Kind::walk) {
            if (lastWalk) {
                EXPECT_GT(event.at - *lastWalk, 2s);
            }
            lastWalk = event.at;
        }
    }
}

TEST(DDCChannelRandom, ReadKeepsItsBounds) {
    test::forRandomSeeds(3000, [](std::uint64_t seed) {
        RandomDesk desk(seed);
        const int attempts = desk.below(6);
        const Result result = desk.channel.read(code, attempts);
        const std::vector<BusEvent> journal = desk.bus.journal.events();
        const Totals totals = totalsOf(journal);
        expectOrder(journal);
        EXPECT_LE(totals.writes, 2 * (attempts + totals.walks));
        EXPECT_LE(totals.reads, attempts);
        EXPECT_LE(totals.walks, attempts);
        EXPECT_LE(totals.pauses, attempts * 60ms + std::max(attempts - 1, 0) * 30ms + totals.walks * 10ms);
        EXPECT_EQ(desk.sink.lines().back().level == platform::LogLevel::error,
                  result.kind == Result::Kind::failed);
    });
}

TEST(DDCChannelRandom, ReadingIsThatOfTheLastReply) {
    test::forRandomSeeds(3000, [](std::uint64_t seed) {
        RandomDesk desk(seed);
        const Result result = desk.channel.read(code, 1 + desk.below(6));
        if (result.kind != Result::Kind::value) return;
        const Bytes reply = desk.bus.journal.last(BusEvent::Kind::read).bytes;
        EXPECT_EQ(result.reading.maximum, reply.at(6) * 256 + reply.at(7));
        EXPECT_EQ(result.reading.current, reply.at(8) * 256 + reply.at(9));
    });
}

TEST(DDCChannelRandom, WriteKeepsItsBounds) {
    test::forRandomSeeds(3000, [](std::uint64_t seed) {
        RandomDesk desk(seed);
        const bool succeeded = desk.channel.write(code, static_cast<std::uint16_t>(desk.below(65536)));
        const std::vector<BusEvent> journal = desk.bus.journal.events();
        const Totals totals = totalsOf(journal);
        expectOrder(journal);
        EXPECT_LE(totals.walks, 1);
        const int passes = totals.pauses == 70ms ? 4 : 2;
        EXPECT_EQ(totals.pauses, (passes == 4 ? 20ms : 10ms) + 50ms);
        EXPECT_EQ(totals.writes, desk.bus.missingSymbols.contains("IOAVServiceWriteI2C") ? 0 : passes);
        EXPECT_TRUE(passes == 2 || totals.walks == 1);
        EXPECT_EQ(desk.sink.lines().back().level == platform::LogLevel::error, !succeeded);
    });
}

TEST(DDCChannelRandom, CapabilitiesKeepTheirBounds) {
    test::forRandomSeeds(300, [](std::uint64_t seed) {
        RandomDesk desk(seed);
        const std::optional<std::string> text = desk.channel.capabilities();
        const std::vector<BusEvent> journal = desk.bus.journal.events();
        const Totals totals = totalsOf(journal);
        expectOrder(journal);
        constexpr int mostFragments = 8192;
        EXPECT_LE(totals.reads, 5 * mostFragments);
        EXPECT_LE(totals.pauses, totals.reads * 90ms + 5 * 50ms + totals.writes * 40ms);
        EXPECT_NE(text, "");
        // Each byte is at most one replacement of three.
        EXPECT_LE(text.value_or("").size(), 3U * (8192 + 31));
        for (const BusEvent& write : desk.bus.journal.events(BusEvent::Kind::write)) {
            EXPECT_LT(write.bytes.at(2) * 256 + write.bytes.at(3), 8192);
        }
        EXPECT_EQ(desk.sink.lines().back().level == platform::LogLevel::error, !text);
    });
}

}  // namespace
}  // namespace vantrel::ddc
