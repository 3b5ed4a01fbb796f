#include <array>
#include <chrono>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "Replies.h"
#include "ddc/DDCWorker.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/TaskScope.h"
#include "support/RecordingLogSink.h"
#include "support/ScriptedBus.h"

namespace vantrel::ddc {
namespace {

using namespace std::chrono_literals;

using test::BusEvent;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Result = DDCChannel::ReadResult;

constexpr std::uint8_t brightness = 0x10;
constexpr std::uint8_t contrast = 0x12;
constexpr std::uint8_t volume = 0x62;

// Virtual time that remembers which threads were asked for.
class NotedTime : public simulated::VirtualTime {
  public:
    std::vector<std::string> threads;
    void startThread(std::string name, runtime::QualityOfService quality,
                     std::function<void()> body) override {
        threads.push_back(name);
        VirtualTime::startThread(std::move(name), quality, std::move(body));
    }
};

class DDCWorkerTest : public testing::Test {
  protected:
    ~DDCWorkerTest() override {
        worker.reset();
        time.finishThreads();
    }

    DDCChannel channelTo(test::ScriptedService& service) {
        return {Transport(bus, bus, bus.functions(), platform::Log(sink)),
                {bus.open(service), std::nullopt, std::nullopt, std::nullopt},
                "Left"};
    }
    std::optional<DDCWorker> makeWorker(test::ScriptedService& service, const std::string& label = "724") {
        return std::optional<DDCWorker>(std::in_place, time, loop, channelTo(service), label);
    }

    // What went over the bus: "10=50" for a write, "10?" for a reading request,
    // each once though it is sent twice.
    std::vector<std::string> traffic() const {
        std::vector<std::string> requests;
        int sent = 0;
        for (const BusEvent& event : bus.journal.events(BusEvent::Kind::write)) {
            if (++sent % 2 == 0) continue;
            const std::string code = text::upperHex(event.bytes.at(2));
            const bool isWrite = event.bytes.at(1) == 0x03;
            requests.push_back(isWrite
                                   ? code + "=" + std::to_string(event.bytes.at(3) * 256 + event.bytes.at(4))
                                   : code + "?");
        }
        return requests;
    }

    // Starts a task that reads `code` through the worker.
    runtime::TaskHandle startReading(std::uint8_t code, int attempts, std::optional<Result>& result) {
        return scope->start(reading(*worker, code, attempts, result));
    }
    static runtime::Task<void> reading(DDCWorker& worker, std::uint8_t code, int attempts,
                                       std::optional<Result>& result) {
        auto call =
            worker.run([code, attempts](DDCChannel& channel) { return channel.read(code, attempts); });
        result = co_await call;
    }

    std::chrono::milliseconds elapsed() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(time.now().time_since_epoch());
    }

    NotedTime time;
    runtime::MainLoop loop{time};
    test::RecordingLogSink sink;
    test::ScriptedService monitor;
    test::ScriptedBus bus{time};
    std::optional<DDCWorker> worker = makeWorker(monitor);
    std::optional<runtime::TaskScope> scope{std::in_place, loop};
};

TEST_F(DDCWorkerTest, QueueIsNamedByTheDisplay) {
    EXPECT_EQ(worker->queueLabel(), "org.vantrel.Vantrel.ddc.724");
    EXPECT_THAT(time.threads, ElementsAre("org.vantrel.Vantrel.ddc.724"));
}

TEST_F(DDCWorkerTest, NothingIsSentUnasked) {
    loop.runFor(1h);
    EXPECT_THAT(bus.journal.events(), IsEmpty());
}

TEST_F(DDCWorkerTest, WriteIsTransferredOnTheQueue) {
    worker->write(brightness, 50);
    EXPECT_THAT(traffic(), IsEmpty());
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=50"));
    EXPECT_EQ(elapsed(), 60ms);
}

TEST_F(DDCWorkerTest, WriteReturnsAtOnceWhileATransferHangs) {
    monitor.takesPerTransfer(24h);
    worker->write(brightness, 10);
    loop.runFor(1s);
    const runtime::MonotonicTime before = time.now();
    worker->write(brightness, 20);
    worker->write(contrast, 30);
    EXPECT_EQ(time.now(), before);
    EXPECT_THAT(traffic(), ElementsAre("10=10"));
}

TEST_F(DDCWorkerTest, WritesInQuickSuccessionCollapseIntoTheLast) {
    worker->write(contrast, 70);
    loop.runFor(5ms);
    worker->write(brightness, 10);
    worker->write(brightness, 20);
    worker->write(brightness, 30);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("12=70", "10=30"));
}

TEST_F(DDCWorkerTest, WritesBeforeTheDrainStartsCollapseToo) {
    worker->write(brightness, 10);
    worker->write(brightness, 20);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=20"));
}

TEST_F(DDCWorkerTest, CodeWrittenAgainKeepsItsPlace) {
    worker->write(brightness, 10);
    worker->write(contrast, 70);
    worker->write(brightness, 20);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=20", "12=70"));
}

TEST_F(DDCWorkerTest, CodesAreWrittenInTheOrderOfTheirFirstRequest) {
    worker->write(volume, 1);
    worker->write(brightness, 2);
    worker->write(contrast, 3);
    worker->write(brightness, 4);
    worker->write(volume, 5);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("62=5", "10=4", "12=3"));
}

TEST_F(DDCWorkerTest, WriteDuringTheTransferOfItsCodeIsTransferredAgain) {
    worker->write(brightness, 10);
    loop.runFor(5ms);
    worker->write(brightness, 20);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "10=20"));
}

TEST_F(DDCWorkerTest, SameValueDuringItsTransferIsTransferredAgain) {
    worker->write(brightness, 10);
    loop.runFor(5ms);
    worker->write(brightness, 10);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "10=10"));
}

TEST_F(DDCWorkerTest, CodeBeingTransferredQueuesUpAtTheEnd) {
    worker->write(brightness, 10);
    worker->write(contrast, 70);
    worker->write(volume, 5);
    loop.runFor(5ms);
    worker->write(brightness, 20);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "12=70", "62=5", "10=20"));
}

TEST_F(DDCWorkerTest, TenThousandWritesOfThreeCodesDuringATransferAreThreeTransfers) {
    worker->write(0x60, 17);
    loop.runFor(5ms);
    for (std::uint16_t value = 1; value <= 10'000; ++value) {
        worker->write(std::array{brightness, contrast, volume}[value % 3], value);
    }
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("60=17", "12=10000", "62=9998", "10=9999"));
    EXPECT_EQ(elapsed(), 4 * 60ms);
}

TEST_F(DDCWorkerTest, WriteAfterADrainStartsAnother) {
    worker->write(brightness, 10);
    loop.run();
    worker->write(brightness, 20);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "10=20"));
}

TEST_F(DDCWorkerTest, FailedWriteIsNotRepeatedAndDoesNotStopTheOthers) {
    monitor.nextWrites({1, 1});
    worker->write(brightness, 10);
    worker->write(contrast, 70);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "12=70"));
}

TEST_F(DDCWorkerTest, ReadGivesItsTaskTheResult) {
    monitor.nextReply(test::readingReply(brightness, 50, 100));
    std::optional<Result> result;
    startReading(brightness, 1, result);
    loop.run();
    EXPECT_EQ(result, Result::value({50, 100}));
    EXPECT_EQ(elapsed(), 60ms);
}

TEST_F(DDCWorkerTest, CapabilitiesGiveTheirTaskAString) {
    monitor.nextReply(test::fragmentReply(0, "(vcp(10))"));
    monitor.nextReply(test::fragmentReply(9, ""));
    std::optional<std::string> result;
    const auto task = [](DDCWorker& worker, std::optional<std::string>& result) -> runtime::Task<void> {
        auto call = worker.run([](DDCChannel& channel) { return channel.capabilities(); });
        result = co_await call;
    };
    scope->start(task(*worker, result));
    loop.run();
    EXPECT_EQ(result, "(vcp(10))");
}

TEST_F(DDCWorkerTest, CapabilitiesGiveTheirTaskNothingToo) {
    std::optional<std::string> result = "unchanged";
    const auto task = [](DDCWorker& worker, std::optional<std::string>& result) -> runtime::Task<void> {
        auto call = worker.run([](DDCChannel& channel) { return channel.capabilities(); });
        result = co_await call;
    };
    scope->start(task(*worker, result));
    loop.run();
    EXPECT_EQ(result, std::nullopt);
}

TEST_F(DDCWorkerTest, ReadDoesNotHoldUpTheMainThread) {
    std::optional<Result> result;
    startReading(brightness, 4, result);
    loop.runFor(100ms);
    EXPECT_EQ(elapsed(), 100ms);
    EXPECT_EQ(result, std::nullopt);
    loop.run();
    EXPECT_EQ(result, Result::failed());
}

TEST_F(DDCWorkerTest, ReadWaitsForTheDrainThatIsQueued) {
    worker->write(brightness, 10);
    std::optional<Result> result;
    startReading(volume, 1, result);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "62?"));
}

TEST_F(DDCWorkerTest, WriteThatTheQueuedDrainStillTakesGoesBeforeTheRead) {
    worker->write(brightness, 10);
    std::optional<Result> result;
    startReading(volume, 1, result);
    loop.runFor(5ms);
    worker->write(contrast, 70);
    worker->write(brightness, 20);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "12=70", "10=20", "62?"));
}

TEST_F(DDCWorkerTest, WriteAfterAQueuedReadRunsAfterIt) {
    std::optional<Result> result;
    startReading(volume, 1, result);
    loop.runFor(5ms);
    worker->write(brightness, 10);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("62?", "10=10"));
}

TEST_F(DDCWorkerTest, ReadsRunInTheirOrder) {
    std::optional<Result> first;
    std::optional<Result> second;
    startReading(volume, 1, first);
    startReading(brightness, 1, second);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("62?", "10?"));
}

TEST_F(DDCWorkerTest, ReadBetweenTwoWritesStaysBetweenThem) {
    worker->write(brightness, 10);
    loop.runFor(5ms);
    std::optional<Result> result;
    startReading(volume, 1, result);
    loop.runFor(65ms);  // the drain is over, the read is running
    worker->write(contrast, 70);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "62?", "12=70"));
}

// A drain left over on the queue would send the last write before the last read.
TEST_F(DDCWorkerTest, WritesDuringADrainStartNoOther) {
    std::optional<Result> first;
    std::optional<Result> second;
    worker->write(brightness, 10);
    loop.runFor(5ms);
    startReading(volume, 1, first);
    loop.runFor(5ms);
    worker->write(contrast, 70);
    loop.runFor(130ms);  // both writes are over, the first read is running
    startReading(0xDF, 1, second);
    loop.runFor(5ms);
    worker->write(0x60, 17);
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "12=70", "62?", "DF?", "60=17"));
}

TEST_F(DDCWorkerTest, TwoMonitorsAreAddressedInParallel) {
    test::ScriptedService right;
    std::optional<DDCWorker> other = makeWorker(right, "725");
    worker->write(brightness, 10);
    other->write(brightness, 20);
    loop.run();
    EXPECT_THAT(bus.journal.events(BusEvent::Kind::write), SizeIs(4));
    EXPECT_EQ(elapsed(), 60ms);
    other.reset();
    worker.reset();
    time.finishThreads();
}

TEST_F(DDCWorkerTest, WritesAreStillSentAfterItsDestruction) {
    worker->write(brightness, 10);
    worker->write(contrast, 70);
    worker.reset();
    EXPECT_EQ(elapsed(), 0ms);
    time.finishThreads();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "12=70"));
}

TEST_F(DDCWorkerTest, DestructionDuringATransferDoesNotWait) {
    monitor.takesPerTransfer(1h);
    worker->write(brightness, 10);
    loop.runFor(1s);
    worker->write(contrast, 70);
    worker.reset();
    EXPECT_EQ(elapsed(), 1s);
    time.finishThreads();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "12=70"));
}

TEST_F(DDCWorkerTest, HandleIsReleasedOnceEverythingIsSent) {
    worker->write(brightness, 10);
    worker.reset();
    EXPECT_EQ(bus.liveHandles(), 1);
    time.finishThreads();
    EXPECT_EQ(bus.liveHandles(), 0);
}

TEST_F(DDCWorkerTest, ReadOfADestroyedTaskStillRunsAndItsResultIsDropped) {
    std::optional<Result> result;
    startReading(brightness, 1, result);
    loop.runFor(5ms);
    scope.reset();
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10?"));
    EXPECT_EQ(bus.journal.events(BusEvent::Kind::read).size(), 1U);
    EXPECT_EQ(result, std::nullopt);
}

TEST_F(DDCWorkerTest, QueuedReadOfADestroyedTaskStillRuns) {
    worker->write(brightness, 10);
    std::optional<Result> result;
    startReading(volume, 1, result);
    loop.runFor(5ms);
    scope.reset();
    loop.run();
    EXPECT_THAT(traffic(), ElementsAre("10=10", "62?"));
}

TEST_F(DDCWorkerTest, ReadThatIsNotAwaitedDoesNotRun) {
    {
        auto call = worker->run([](DDCChannel& channel) { return channel.read(brightness, 1); });
    }
    loop.run();
    EXPECT_THAT(bus.journal.events(), IsEmpty());
}

TEST_F(DDCWorkerTest, ResultOfAReadSurvivesTheWorker) {
    monitor.nextReply(test::readingReply(brightness, 50, 100));
    std::optional<Result> result;
    startReading(brightness, 1, result);
    loop.runFor(5ms);
    worker.reset();
    loop.run();
    EXPECT_EQ(result, Result::value({50, 100}));
}

}  // namespace
}  // namespace vantrel::ddc
