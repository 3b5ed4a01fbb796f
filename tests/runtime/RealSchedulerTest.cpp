#include <atomic>
#include <gtest/gtest.h>
#include <vector>

#include "runtime/RealScheduler.h"

namespace vantrel::runtime {
namespace {

using namespace std::chrono_literals;

// Nothing here may depend on how long something takes at the most.
class RealSchedulerTest : public testing::Test {
  protected:
    void start(std::function<void()> body) {
        scheduler.startThread("thread", QualityOfService::userInitiated, std::move(body));
    }

    RealScheduler scheduler;
};

TEST_F(RealSchedulerTest, SleepsAtLeastTheDuration) {
    const MonotonicTime before = scheduler.now();
    scheduler.sleepFor(50us);
    EXPECT_GE(scheduler.now() - before, 50us);
}

TEST_F(RealSchedulerTest, DoesNotSleepForLessThanNothing) { scheduler.sleepFor(-1h); }

TEST_F(RealSchedulerTest, TheMonotonicClockNeverGoesBack) {
    MonotonicTime last = scheduler.now();
    for (int i = 0; i < 1000; ++i) {
        const MonotonicTime now = scheduler.now();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST_F(RealSchedulerTest, TheWallClockIsTheSystems) {
    const auto before = std::chrono::system_clock::now();
    const WallTime now = scheduler.wallNow();
    const auto after = std::chrono::system_clock::now();
    EXPECT_GE(now + 1us, before);
    EXPECT_LE(now, after);
}

TEST_F(RealSchedulerTest, AnUnattendedGateRemembersToBeOpenOnce) {
    const auto gate = scheduler.makeGate();
    gate->open();
    gate->open();
    EXPECT_EQ(gate->wait(std::nullopt), Wake::opened);
    EXPECT_EQ(gate->wait(scheduler.now()), Wake::deadline);
}

TEST_F(RealSchedulerTest, AnOpenGateWinsOverADeadlineInThePast) {
    const auto gate = scheduler.makeGate();
    gate->open();
    EXPECT_EQ(gate->wait(scheduler.now() - 1s), Wake::opened);
}

TEST_F(RealSchedulerTest, AClosedGateHoldsUntilTheDeadline) {
    const auto gate = scheduler.makeGate();
    const MonotonicTime deadline = scheduler.now() + 50us;
    EXPECT_EQ(gate->wait(deadline), Wake::deadline);
    EXPECT_GE(scheduler.now(), deadline);
}

TEST_F(RealSchedulerTest, AnotherThreadOpensAGate) {
    const auto gate = scheduler.makeGate();
    bool opened = false;
    start([&] {
        opened = true;
        gate->open();
    });
    EXPECT_EQ(gate->wait(std::nullopt), Wake::opened);
    EXPECT_TRUE(opened);
}

TEST_F(RealSchedulerTest, AGateMayBeDestroyedAsSoonAsItWasOpened) {
    for (int i = 0; i < 200; ++i) {
        auto gate = scheduler.makeGate();
        start([&opened = *gate] { opened.open(); });
        gate->wait(std::nullopt);
    }
}

TEST_F(RealSchedulerTest, AnotherThreadOpensAGateLongBeforeItsDeadline) {
    const auto gate = scheduler.makeGate();
    start([&] { gate->open(); });
    EXPECT_EQ(gate->wait(scheduler.now() + 24h), Wake::opened);
}

TEST_F(RealSchedulerTest, TwoThreadsHandOverThroughGates) {
    constexpr int rounds = 500;
    const auto ping = scheduler.makeGate();
    const auto pong = scheduler.makeGate();
    int turns = 0;
    start([&] {
        for (int i = 0; i < rounds; ++i) {
            ping->wait(std::nullopt);
            ++turns;
            pong->open();
        }
    });
    for (int i = 0; i < rounds; ++i) {
        ping->open();
        pong->wait(std::nullopt);
        ASSERT_EQ(turns, i + 1);
    }
}

TEST_F(RealSchedulerTest, FinishingThreadsWaitsForEveryOne) {
    std::atomic<int> ended = 0;
    for (int i = 0; i < 8; ++i) {
        start([&] {
            scheduler.sleepFor(20us);
            ++ended;
        });
    }
    scheduler.finishThreads();
    EXPECT_EQ(ended, 8);
}

TEST_F(RealSchedulerTest, FinishingNoThreadsReturns) {
    scheduler.finishThreads();
    scheduler.finishThreads();
}

TEST_F(RealSchedulerTest, ThreadsCanBeStartedWhileOthersHaveEnded) {
    std::atomic<int> ended = 0;
    for (int i = 0; i < 200; ++i) start([&] { ++ended; });
    scheduler.finishThreads();
    start([&] { ++ended; });
    scheduler.finishThreads();
    EXPECT_EQ(ended, 201);
}

TEST_F(RealSchedulerTest, FinishesItsServantsWhenTheOthersHaveEnded) {
    const auto asked = scheduler.makeGate();
    const auto answered = scheduler.makeGate();
    std::atomic<int> ended = 0;
    std::atomic<bool> shallEnd = false;
    int endedBefore = -1;
    scheduler.startServant(
        "servant", QualityOfService::userInitiated,
        [&] {
            while (!shallEnd) {
                asked->wait(std::nullopt);
                answered->open();
            }
        },
        [&] {
            endedBefore = ended;
            shallEnd = true;
            asked->open();
        });
    start([&] {
        asked->open();
        answered->wait(std::nullopt);
        ++ended;
    });
    scheduler.finishThreads();
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(endedBefore, 1);
}

TEST_F(RealSchedulerTest, FinishesServantsThatHaveEndedAlready) {
    int ends = 0;
    const auto end = [&ends] { ++ends; };
    for (int i = 0; i < 200; ++i)
        scheduler.startServant(
            "servant", QualityOfService::userInitiated, [] {}, end);
    scheduler.finishThreads();
    scheduler.finishThreads();
    EXPECT_LE(ends, 200);
}

TEST_F(RealSchedulerTest, DestroyingItFinishesItsThreads) {
    std::atomic<bool> ended = false;
    {
        RealScheduler brief;
        brief.startThread("thread", QualityOfService::userInitiated, [&] {
            scheduler.sleepFor(20us);
            ended = true;
        });
    }
    EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace vantrel::runtime
