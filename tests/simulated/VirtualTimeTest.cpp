#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/VirtualTime.h"
#include "support/DeathTest.h"
#include "support/OnDestruction.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using runtime::Gate;
using runtime::MonotonicTime;
using runtime::QualityOfService;
using runtime::Wake;
using Trace = std::vector<std::string>;

// Only the thread with the baton runs, so the trace needs no lock.
class VirtualTimeTest : public testing::Test {
  protected:
    MonotonicTime at(std::chrono::nanoseconds sinceStart) const { return MonotonicTime(sinceStart); }
    void note(const std::string& what) {
        const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(time.now().time_since_epoch());
        trace.push_back(std::to_string(now.count()) + " " + what);
    }
    void start(std::function<void()> body) {
        time.startThread("thread", QualityOfService::userInitiated, std::move(body));
    }
    // A thread that sleeps once for each of `naps` and notes when it wakes.
    void startSleeper(const std::string& name, std::vector<std::chrono::milliseconds> naps) {
        start([this, name, naps = std::move(naps)] {
            for (const auto nap : naps) {
                time.sleepFor(nap);
                note(name);
            }
        });
    }

    Trace trace;
    VirtualTime time;
};

TEST_F(VirtualTimeTest, StandsStillWhileSomebodyWorks) {
    const MonotonicTime before = time.now();
    for (int i = 0; i < 1000; ++i) note("working");
    EXPECT_EQ(time.now(), before);
}

TEST_F(VirtualTimeTest, ASleepTakesExactlyItsDuration) {
    time.sleepFor(1234567ns);
    EXPECT_EQ(time.now(), at(1234567ns));
}

TEST_F(VirtualTimeTest, SleepsOfSeveralThreadsInterleaveByDueTime) {
    startSleeper("a", {30ms, 30ms});
    startSleeper("b", {20ms, 20ms});
    time.sleepFor(25ms);
    note("main");
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"20 b", "25 main", "30 a", "40 b", "60 a"}));
}

TEST_F(VirtualTimeTest, EqualTimesRunInTheOrderOfRegistration) {
    startSleeper("from 5", {5ms, 5ms});
    startSleeper("first from 0", {10ms});
    startSleeper("second from 0", {10ms});
    startSleeper("from 7", {7ms, 3ms});
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"5 from 5", "7 from 7", "10 first from 0", "10 second from 0", "10 from 5",
                            "10 from 7"}));
}

TEST_F(VirtualTimeTest, AStartedThreadWaitsUntilItsStarterDoes) {
    start([this] { note("thread"); });
    note("main");
    time.sleepFor(0ms);
    note("main again");
    EXPECT_EQ(trace, (Trace{"0 main", "0 thread", "0 main again"}));
}

TEST_F(VirtualTimeTest, ThreadsStartInTheOrderInWhichTheyWereStarted) {
    for (const char* name : {"a", "b", "c"}) start([this, name] { note(name); });
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"0 a", "0 b", "0 c"}));
}

TEST_F(VirtualTimeTest, ASleepOfNothingLetsTheOthersGoFirst) {
    start([this] {
        time.sleepFor(0ms);
        note("a");
    });
    start([this] { note("b"); });
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"0 b", "0 a"}));
}

TEST_F(VirtualTimeTest, ASleepOfLessThanNothingTakesNoTime) {
    time.sleepFor(1s);
    time.sleepFor(-1h);
    EXPECT_EQ(time.now(), at(1s));
}

TEST_F(VirtualTimeTest, HoursPassAtOnce) {
    int minutes = 0;
    start([&] {
        for (; minutes < 1000 * 60; ++minutes) time.sleepFor(1min);
    });
    time.finishThreads();
    EXPECT_EQ(minutes, 1000 * 60);
    EXPECT_EQ(time.now(), at(1000h));
}

TEST_F(VirtualTimeTest, AGateThatIsOpenAlreadyTakesNoTime) {
    const auto gate = time.makeGate();
    start([this] { note("thread"); });
    gate->open();
    EXPECT_EQ(gate->wait(at(1s)), Wake::opened);
    EXPECT_EQ(time.now(), at(0s));
    EXPECT_EQ(trace, Trace{}) << "nobody else runs while nobody waits";
}

TEST_F(VirtualTimeTest, AnUnattendedGateRemembersToBeOpenOnce) {
    const auto gate = time.makeGate();
    gate->open();
    gate->open();
    EXPECT_EQ(gate->wait(at(1s)), Wake::opened);
    EXPECT_EQ(gate->wait(at(1s)), Wake::deadline);
}

TEST_F(VirtualTimeTest, AGateOpenedWhileSomebodyWaitsEndsTheWaitThere) {
    const auto gate = time.makeGate();
    start([&] {
        time.sleepFor(3ms);
        gate->open();
    });
    EXPECT_EQ(gate->wait(std::nullopt), Wake::opened);
    EXPECT_EQ(time.now(), at(3ms));
}

TEST_F(VirtualTimeTest, OpeningAGateDoesNotInterruptTheOpener) {
    const auto gate = time.makeGate();
    start([&] {
        gate->wait(std::nullopt);
        note("waiter");
    });
    time.sleepFor(1ms);
    gate->open();
    note("opener");
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"1 opener", "1 waiter"}));
}

TEST_F(VirtualTimeTest, AGateOpenedAfterTheDeadlineIsRememberedForTheNextWait) {
    const auto gate = time.makeGate();
    start([&] {
        time.sleepFor(7ms);
        gate->open();
    });
    EXPECT_EQ(gate->wait(at(5ms)), Wake::deadline);
    EXPECT_EQ(time.now(), at(5ms));
    time.sleepFor(5ms);
    EXPECT_EQ(gate->wait(std::nullopt), Wake::opened);
    EXPECT_EQ(time.now(), at(10ms));
}

TEST_F(VirtualTimeTest, AGateOpenedAtTheDeadlineByWhoeverWasRegisteredFirstEndsTheWait) {
    const auto gate = time.makeGate();
    start([&] {
        time.sleepFor(5ms);
        gate->open();
    });
    time.sleepFor(1ms);
    EXPECT_EQ(gate->wait(at(5ms)), Wake::opened);
}

TEST_F(VirtualTimeTest, AGateOpenedAtTheDeadlineByWhoeverWasRegisteredLaterComesTooLate) {
    const auto gate = time.makeGate();
    start([&] {
        time.sleepFor(1ms);
        time.sleepFor(4ms);
        gate->open();
    });
    EXPECT_EQ(gate->wait(at(5ms)), Wake::deadline);
    EXPECT_EQ(gate->wait(std::nullopt), Wake::opened);
}

TEST_F(VirtualTimeTest, ADeadlineInThePastLetsThoseGoFirstWhoAreDueAlready) {
    const auto gate = time.makeGate();
    time.sleepFor(10ms);
    start([this] { note("thread"); });
    EXPECT_EQ(gate->wait(at(5ms)), Wake::deadline);
    note("main");
    EXPECT_EQ(trace, (Trace{"10 thread", "10 main"}));
}

TEST_F(VirtualTimeTest, TheMainThreadIsIdleOnceNothingCanHappen) {
    const auto gate = time.makeGate();
    startSleeper("thread", {2ms});
    EXPECT_EQ(gate->wait(std::nullopt), Wake::idle);
    EXPECT_EQ(trace, Trace{"2 thread"});
    EXPECT_EQ(time.now(), at(2ms));
}

TEST_F(VirtualTimeTest, AnIdleMainThreadHasNotOpenedTheGate) {
    const auto gate = time.makeGate();
    ASSERT_EQ(gate->wait(std::nullopt), Wake::idle);
    gate->open();
    EXPECT_EQ(gate->wait(std::nullopt), Wake::opened);
}

TEST_F(VirtualTimeTest, OnlyTheMainThreadIsEverIdle) {
    const auto threads = time.makeGate();
    const auto mains = time.makeGate();
    Wake woken = Wake::idle;
    start([&] {
        woken = threads->wait(std::nullopt);
        note("thread");
    });
    EXPECT_EQ(mains->wait(std::nullopt), Wake::idle);
    EXPECT_EQ(mains->wait(std::nullopt), Wake::idle);
    EXPECT_EQ(trace, Trace{});
    threads->open();
    time.finishThreads();
    EXPECT_EQ(woken, Wake::opened);
}

TEST_F(VirtualTimeTest, AMainThreadWithADeadlineIsNotIdle) {
    const auto gate = time.makeGate();
    EXPECT_EQ(gate->wait(at(1h)), Wake::deadline);
    EXPECT_EQ(time.now(), at(1h));
}

TEST_F(VirtualTimeTest, FinishingThreadsLetsEveryOneRunToItsEnd) {
    startSleeper("long", {1h});
    startSleeper("short", {1ms});
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"1 short", "3600000 long"}));
}

TEST_F(VirtualTimeTest, FinishingNoThreadsTakesNoTime) {
    time.finishThreads();
    time.finishThreads();
    EXPECT_EQ(time.now(), at(0s));
}

TEST_F(VirtualTimeTest, ThreadsCanBeStartedAfterOthersWereFinished) {
    startSleeper("a", {1ms});
    time.finishThreads();
    startSleeper("b", {1ms});
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"1 a", "2 b"}));
}

TEST_F(VirtualTimeTest, ThreadsCanBeStartedWhileOthersHaveEnded) {
    for (int i = 0; i < 300; ++i) {
        startSleeper("brief", {1ms});
        time.sleepFor(2ms);
    }
    startSleeper("last", {1ms});
    time.finishThreads();
    EXPECT_EQ(trace.size(), 301U);
    EXPECT_EQ(trace.back(), "601 last");
}

TEST_F(VirtualTimeTest, WhatABodyHoldsIsDestroyedBeforeAnybodyElseRuns) {
    start([this, held = test::onDestruction([this] { note("destroyed"); })] { note("ran"); });
    start([this] { note("next"); });
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"0 ran", "0 destroyed", "0 next"}));
}

TEST_F(VirtualTimeTest, DestroyingItFinishesItsThreads) {
    bool ended = false;
    {
        VirtualTime brief;
        brief.startThread("thread", QualityOfService::userInitiated, [&] {
            brief.sleepFor(1h);
            ended = true;
        });
    }
    EXPECT_TRUE(ended);
}

TEST_F(VirtualTimeTest, TheWallClockBeginsOnItsDayUnlessToldOtherwise) {
    EXPECT_EQ(time.wallNow(), VirtualTime::defaultStart);
}

TEST_F(VirtualTimeTest, TheWallClockFollowsFromWhereItWasStarted) {
    const runtime::WallTime start = VirtualTime::defaultStart - 24h;
    VirtualTime earlier(start);
    earlier.sleepFor(90min);
    EXPECT_EQ(earlier.wallNow(), start + 90min);
}

TEST_F(VirtualTimeTest, TheWallClockCountsFullMicroseconds) {
    time.sleepFor(1999ns);
    EXPECT_EQ(time.wallNow(), VirtualTime::defaultStart + 1us);
}

TEST_F(VirtualTimeTest, SeveralTimesInOneProcessDoNotMeet) {
    VirtualTime other;
    other.sleepFor(1h);
    EXPECT_EQ(time.now(), at(0s));
}

// Threads that sleep, wait for each other and open gates, in a pattern that is
// easy to get wrong; who runs when must not depend on the computer.
Trace traceOfABusyDesk() {
    VirtualTime time;
    Trace trace;
    std::array<std::unique_ptr<Gate>, 5> gates;
    for (auto& gate : gates) gate = time.makeGate();
    for (std::size_t self = 0; self < gates.size(); ++self) {
        time.startThread("thread", QualityOfService::userInitiated, [&, self] {
            for (std::size_t round = 0; round < 20; ++round) {
                time.sleepFor(std::chrono::milliseconds((self * 7 + round * 3) % 5));
                gates[(self + round) % gates.size()]->open();
                const Wake wake = gates[self]->wait(time.now() + std::chrono::milliseconds(round % 4));
                trace.push_back(std::to_string(self) + (wake == Wake::opened ? " opened " : " deadline ") +
                                std::to_string(time.now().time_since_epoch().count()));
            }
        });
    }
    time.finishThreads();
    return trace;
}

TEST(VirtualTime, RunsTheSameWayEveryTime) {
    const Trace first = traceOfABusyDesk();
    ASSERT_EQ(first.size(), 100U);
    for (int i = 0; i < 100; ++i) ASSERT_EQ(traceOfABusyDesk(), first);
}

TEST_F(VirtualTimeTest, FinishingTellsTheServantsToEndWhenTheOthersHaveEnded) {
    const auto gate = time.makeGate();
    bool shallEnd = false;
    time.startServant(
        "servant", QualityOfService::userInitiated,
        [&] {
            while (!shallEnd) {
                gate->wait(std::nullopt);
                note("serves");
                time.sleepFor(5ms);
            }
            note("servant ends");
        },
        [&] {
            note("told to end");
            shallEnd = true;
            gate->open();
        });
    start([&] {
        time.sleepFor(1ms);
        gate->open();
        time.sleepFor(10ms);
        note("thread ends");
    });
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"1 serves", "11 thread ends", "11 told to end", "11 serves", "16 servant ends"}));
}

TEST_F(VirtualTimeTest, AServantMayHaveEndedByItself) {
    time.startServant(
        "servant", QualityOfService::userInitiated, [&] { note("ends"); }, [&] { note("told"); });
    time.sleepFor(1ms);
    time.finishThreads();
    time.finishThreads();
    EXPECT_EQ(trace, (Trace{"0 ends", "1 told"}));
}

using VirtualTimeDeathTest = test::DeathTest;

TEST_F(VirtualTimeDeathTest, AServantThatDoesNotEndWhenItIsToldToStopsTheProgram) {
    EXPECT_DEATH(
        {
            VirtualTime time;
            const auto gate = time.makeGate();
            time.startServant(
                "deaf", QualityOfService::userInitiated, [&] { gate->wait(std::nullopt); }, [] {});
            time.finishThreads();
        },
        "thread \"deaf\" has nothing to do and does not end");
}

TEST_F(VirtualTimeDeathTest, AThreadThatWillNeverEndStopsTheProgram) {
    EXPECT_DEATH(
        {
            VirtualTime time;
            const auto gate = time.makeGate();
            time.startThread("stuck", QualityOfService::userInitiated, [&] { gate->wait(std::nullopt); });
            time.finishThreads();
        },
        "thread \"stuck\" has nothing to do and does not end");
}

TEST_F(VirtualTimeDeathTest, TwoThreadsAtOneGateStopTheProgram) {
    EXPECT_DEATH(
        {
            VirtualTime time;
            const auto gate = time.makeGate();
            time.startThread("first", QualityOfService::userInitiated, [&] { gate->wait(std::nullopt); });
            time.sleepFor(1ms);
            gate->wait(std::nullopt);
        },
        "two threads wait at one gate");
}

TEST_F(VirtualTimeDeathTest, AThreadFromOutsideMayNotSleep) {
    EXPECT_DEATH(
        {
            VirtualTime time;
            std::thread([&] { time.sleepFor(1ms); }).join();
        },
        "a thread that virtual time does not know");
}

}  // namespace
}  // namespace vantrel::simulated
