// Real threads at one worker, for ThreadSanitizer above all: nothing here waits
// for a time or depends on who comes first.

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>

#include "Replies.h"
#include "ddc/DDCWorker.h"
#include "runtime/RealScheduler.h"
#include "runtime/TaskScope.h"
#include "support/RecordingLogSink.h"
#include "support/ScriptedBus.h"
#include "support/SteppingClock.h"

namespace vantrel::ddc {
namespace {

using test::BusEvent;

constexpr std::uint16_t lastValue = 5000;
constexpr std::array<std::uint8_t, 6> codes{0x10, 0x12, 0x16, 0x18, 0x1A, 0x62};

class DDCWorkerThreads : public testing::Test {
  protected:
    // The channel pauses on `clock`.
    void makeWorker(runtime::Clock& clock) {
        DDCChannel channel(Transport(clock, bus, bus.functions(), platform::Log(sink)),
                           {bus.open(monitor), std::nullopt, std::nullopt, std::nullopt}, "Left");
        worker.emplace(scheduler, loop, std::move(channel), "1");
    }
    // Counts up to the last value on a thread of its own.
    void startWriter(std::uint8_t code) {
        ++running;
        scheduler.startThread("writer", runtime::QualityOfService::userInitiated,
                              [this, code, poster = loop.poster()] {
                                  for (std::uint16_t value = 1; value <= lastValue; ++value)
                                      worker->write(code, value);
                                  poster.post([this] { finished(); });
                              });
    }
    // Makes runUntilWritersFinish wait for a task, too.
    runtime::Task<void> finishing(runtime::Task<void> task) {
        ++running;
        return andThenFinish(std::move(task));
    }
    // Takes the worker down and waits until everything is sent.
    void runUntilWritersFinish() {
        loop.run();
        worker.reset();
        scheduler.finishThreads();
    }

    struct Transferred {
        std::map<std::uint8_t, std::uint16_t> newest;
        std::size_t transfers = 0;
    };
    // Checks that the transfers did not interleave: each is two equal packets.
    Transferred transferred() const {
        Transferred all;
        const std::vector<BusEvent> packets = bus.journal.events(BusEvent::Kind::write);
        EXPECT_EQ(packets.size() % 2, 0U);
        for (std::size_t index = 0; index + 1 < packets.size(); index += 2) {
            const test::Bytes& packet = packets[index].bytes;
            EXPECT_EQ(packet, packets[index + 1].bytes) << "packet " << index;
            if (packet.at(1) != 0x03) continue;
            all.newest[packet.at(2)] = static_cast<std::uint16_t>(packet.at(3) * 256 + packet.at(4));
            ++all.transfers;
        }
        return all;
    }

    runtime::Task<void> andThenFinish(runtime::Task<void> task) {
        co_await task;
        finished();
    }
    void finished() {
        if (--running == 0) loop.quit();
    }

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    test::RecordingLogSink sink;
    test::ScriptedService monitor;
    test::SteppingClock quick;
    test::ScriptedBus bus{quick};
    std::optional<DDCWorker> worker;
    // Writers and tasks that have not finished. Main thread.
    int running = 0;
};

TEST_F(DDCWorkerThreads, LastValueOfEveryWriterArrives) {
    makeWorker(bus);
    for (const std::uint8_t code : codes) startWriter(code);
    runUntilWritersFinish();
    EXPECT_LE(transferred().transfers, codes.size() * lastValue);
    for (const std::uint8_t code : codes) EXPECT_EQ(transferred().newest.at(code), lastValue);
}

TEST_F(DDCWorkerThreads, LastValueOfAllWritersOfOneCodeArrives) {
    makeWorker(bus);
    for (int writer = 0; writer < 4; ++writer) startWriter(0x10);
    runUntilWritersFinish();
    EXPECT_EQ(transferred().newest.at(0x10), lastValue);
}

TEST_F(DDCWorkerThreads, ReadsAmongTheWritesGetTheirReplies) {
    monitor.everyOtherReply(test::readingReply(0x14, 5, 11));
    makeWorker(bus);
    runtime::TaskScope scope(loop);
    int replies = 0;
    const auto reader = [](DDCWorker& worker, int& replies) -> runtime::Task<void> {
        for (int reading = 0; reading < 100; ++reading) {
            auto call = worker.run([](DDCChannel& channel) { return channel.read(0x14, 1); });
            const DDCChannel::ReadResult result = co_await call;
            if (result == DDCChannel::ReadResult::value({.current = 5, .maximum = 11})) ++replies;
        }
    };
    scope.start(finishing(reader(*worker, replies)));
    for (const std::uint8_t code : codes) startWriter(code);
    runUntilWritersFinish();
    EXPECT_EQ(replies, 100);
    for (const std::uint8_t code : codes) EXPECT_EQ(transferred().newest.at(code), lastValue);
}

TEST_F(DDCWorkerThreads, FewTransfersWithTheirRealPauses) {
    makeWorker(scheduler);
    worker->write(0x10, 1);
    worker->write(0x12, 2);
    worker->write(0x10, 3);
    worker.reset();
    scheduler.finishThreads();
    EXPECT_EQ(transferred().newest.at(0x12), 2);
    EXPECT_EQ(transferred().newest.at(0x10), 3);
}

}  // namespace
}  // namespace vantrel::ddc
