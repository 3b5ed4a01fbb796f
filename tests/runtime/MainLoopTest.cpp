#include <array>
#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

#include "runtime/MainLoop.h"
#include "runtime/RealScheduler.h"
#include "support/OnDestruction.h"
#include "support/VirtualLoop.h"

namespace vantrel::runtime {
namespace {

using namespace std::chrono_literals;
using test::onDestruction;
using Trace = std::vector<std::string>;

class MainLoopTest : public testing::Test, protected test::VirtualLoop {
  protected:
    MainLoop::Work noting(const std::string& what) {
        return [this, what] { note(what); };
    }
    void note(const std::string& what) { trace.push_back(std::to_string(elapsed().count()) + " " + what); }
    void startThread(std::function<void()> body) {
        time.startThread("thread", QualityOfService::userInitiated, std::move(body));
    }

    void TearDown() override { time.finishThreads(); }

    Trace trace;
};

TEST_F(MainLoopTest, RunsPostedWorkInTheOrderOfPosting) {
    for (const char* name : {"a", "b", "c"}) loop.post(noting(name));
    loop.run();
    EXPECT_EQ(trace, (Trace{"0 a", "0 b", "0 c"}));
}

TEST_F(MainLoopTest, DoesNotRunPostedWorkAtOnce) {
    loop.post(noting("a"));
    EXPECT_EQ(trace, Trace{});
}

TEST_F(MainLoopTest, RunsTimersByDueTime) {
    loop.after(20ms, noting("b"));
    loop.after(30ms, noting("c"));
    loop.after(10ms, noting("a"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"10 a", "20 b", "30 c"}));
}

TEST_F(MainLoopTest, RunsTimersOfEqualTimesInTheOrderOfRegistration) {
    loop.after(10ms, noting("first"));
    loop.after(4ms, [this] { loop.after(6ms, noting("third")); });
    loop.after(10ms, noting("second"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"10 first", "10 second", "10 third"}));
}

TEST_F(MainLoopTest, RunsATimerThatIsDueBeforeWorkThatWasPostedLater) {
    loop.after(5ms, noting("timer"));
    time.sleepFor(10ms);
    loop.post(noting("work"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"10 timer", "10 work"}));
}

TEST_F(MainLoopTest, RunsATimerOfNoDelayInTurnWithPostedWork) {
    loop.post(noting("a"));
    loop.after(0ms, noting("b"));
    loop.post(noting("c"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"0 a", "0 b", "0 c"}));
}

TEST_F(MainLoopTest, RunsWorkPostedFromInsideWorkInTheNextPass) {
    loop.post([this] {
        note("outer");
        loop.post(noting("inner"));
    });
    loop.post(noting("other"));
    loop.runDue();
    EXPECT_EQ(trace, (Trace{"0 outer", "0 other"}));
    loop.runDue();
    EXPECT_EQ(trace.back(), "0 inner");
}

TEST_F(MainLoopTest, RunsAPosterUsedFromInsideWorkInTheNextPass) {
    loop.post([this] { loop.poster().post(noting("inner")); });
    loop.runDue();
    EXPECT_EQ(trace, Trace{});
    loop.runDue();
    EXPECT_EQ(trace, Trace{"0 inner"});
}

TEST_F(MainLoopTest, LeavesATimerThatBecomesDueDuringAPassToTheNext) {
    loop.after(5ms, noting("timer"));
    loop.post([this] { time.sleepFor(10ms); });
    loop.runDue();
    EXPECT_EQ(trace, Trace{});
    loop.runDue();
    EXPECT_EQ(trace, Trace{"10 timer"});
}

TEST_F(MainLoopTest, DoesNotRunATimerThatWasCancelled) {
    const auto timer = loop.after(10ms, noting("cancelled"));
    loop.after(20ms, noting("kept"));
    loop.cancel(timer);
    loop.run();
    EXPECT_EQ(trace, Trace{"20 kept"});
}

TEST_F(MainLoopTest, DoesNotRunPostedWorkThatWasCancelled) {
    loop.cancel(loop.post(noting("cancelled")));
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(MainLoopTest, WorkMayCancelWhatIsDueInTheSamePass) {
    MainLoop::TimerID next = 0;
    loop.post([&] { loop.cancel(next); });
    next = loop.post(noting("cancelled"));
    loop.post(noting("kept"));
    loop.run();
    EXPECT_EQ(trace, Trace{"0 kept"});
}

TEST_F(MainLoopTest, WorkMayCancelItself) {
    MainLoop::TimerID self = 0;
    self = loop.after(1ms, [&] {
        loop.cancel(self);
        note("ran");
    });
    loop.run();
    EXPECT_EQ(trace, Trace{"1 ran"});
}

TEST_F(MainLoopTest, CancellingATimerThatFiredTouchesNoOther) {
    const auto fired = loop.post([] {});
    loop.run();
    loop.after(1ms, noting("kept"));
    loop.cancel(fired);
    loop.run();
    EXPECT_EQ(trace, Trace{"1 kept"});
}

TEST_F(MainLoopTest, CancellingTwiceDoesNothing) {
    const auto timer = loop.after(1ms, noting("cancelled"));
    loop.cancel(timer);
    loop.cancel(timer);
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(MainLoopTest, DestroysWorkAsSoonAsItHasRun) {
    loop.post([held = onDestruction([this] { note("destroyed"); })] {});
    loop.post(noting("next"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"0 destroyed", "0 next"}));
}

TEST_F(MainLoopTest, WorkMayCancelTheNextTimerWhileItIsDestroyed) {
    MainLoop::TimerID next = 0;
    loop.post([held = onDestruction([&] { loop.cancel(next); })] {});
    next = loop.post(noting("cancelled"));
    loop.post(noting("kept"));
    loop.run();
    EXPECT_EQ(trace, Trace{"0 kept"});
}

TEST_F(MainLoopTest, CancelledWorkMayPostWhileItIsDestroyed) {
    const auto only = loop.after(1ms, [held = onDestruction([this] { loop.post(noting("posted")); })] {});
    loop.cancel(only);
    loop.run();
    EXPECT_EQ(trace, Trace{"0 posted"});
}

TEST_F(MainLoopTest, CancelledWorkMayCancelItselfAgainWhileItIsDestroyed) {
    MainLoop::TimerID timer = 0;
    timer = loop.after(1ms, [held = onDestruction([&] {
                                 note("destroyed");
                                 loop.cancel(timer);
                             })] {});
    loop.cancel(timer);
    EXPECT_EQ(trace, Trace{"0 destroyed"});
    EXPECT_EQ(loop.nextDue(), std::nullopt);
}

TEST_F(MainLoopTest, WorkThatNeverRanMayUseTheLoopWhileBothAreDestroyed) {
    {
        MainLoop brief(time);
        const auto other = brief.after(2ms, noting("other"));
        brief.after(1ms, [held = onDestruction([&, other] {
                              brief.cancel(other);
                              brief.post(noting("posted"));
                              note("destroyed");
                          })] {});
    }
    EXPECT_EQ(trace, Trace{"0 destroyed"});
}

TEST_F(MainLoopTest, WorkFromAnotherThreadWakesTheLoop) {
    startThread([this] {
        time.sleepFor(3ms);
        loop.poster().post(noting("posted"));
    });
    loop.after(10ms, noting("timer"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"3 posted", "10 timer"}));
}

TEST_F(MainLoopTest, WorkFromOtherThreadsRunsInTheOrderOfPosting) {
    for (const char* name : {"a", "b", "c"}) {
        startThread([this, name, poster = loop.poster()] {
            poster.post(noting(name));
            poster.post(noting(name));
        });
    }
    loop.run();
    EXPECT_EQ(trace, (Trace{"0 a", "0 a", "0 b", "0 b", "0 c", "0 c"}));
}

TEST_F(MainLoopTest, APosterKeepsItsPlaceBeforeWorkThatIsPostedAfterIt) {
    loop.poster().post(noting("poster"));
    loop.post(noting("loop"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"0 poster", "0 loop"}));
}

TEST_F(MainLoopTest, DropsWhatIsPostedAfterTheLoopsEnd) {
    std::optional<MainLoop> brief(time);
    const MainLoop::Poster poster = brief->poster();
    brief.reset();
    poster.post([held = onDestruction([this] { note("destroyed"); }), this] { note("ran"); });
    EXPECT_EQ(trace, Trace{"0 destroyed"});
}

TEST_F(MainLoopTest, DestroysWhatNeverRanAtItsEnd) {
    {
        MainLoop brief(time);
        brief.poster().post([held = onDestruction([this] { note("from a poster"); })] {});
        brief.after(1h, [held = onDestruction([this] { note("timer"); })] {});
    }
    EXPECT_THAT(trace, testing::UnorderedElementsAre("0 from a poster", "0 timer"));
}

TEST_F(MainLoopTest, QuittingLeavesTheRestToTheNextRun) {
    loop.post([this] { loop.quit(); });
    loop.post(noting("rest"));
    loop.run();
    EXPECT_EQ(trace, Trace{});
    loop.run();
    EXPECT_EQ(trace, Trace{"0 rest"});
}

TEST_F(MainLoopTest, APassAfterAQuitRunsWhatIsDue) {
    loop.post([this] { loop.quit(); });
    loop.post(noting("rest"));
    loop.run();
    loop.runDue();
    EXPECT_EQ(trace, Trace{"0 rest"});
}

TEST_F(MainLoopTest, APassAfterAPassThatWasQuitRunsWhatIsDue) {
    loop.post([this] { loop.quit(); });
    loop.post(noting("rest"));
    loop.runDue();
    loop.runDue();
    EXPECT_EQ(trace, Trace{"0 rest"});
}

TEST_F(MainLoopTest, ARunThatIsQuitEndsNoOuterRun) {
    loop.post([this] {
        loop.runFor(5ms);
        note("inner");
    });
    loop.after(10ms, noting("outer"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"5 inner", "10 outer"}));
}

TEST_F(MainLoopTest, QuittingFromAnotherThreadsWorkEndsAWait) {
    startThread([this] {
        time.sleepFor(3ms);
        loop.poster().post([this] { loop.quit(); });
    });
    loop.after(1h, noting("timer"));
    loop.run();
    EXPECT_EQ(elapsed(), 3ms);
}

TEST_F(MainLoopTest, RunsForADurationEvenWithNothingToDo) {
    loop.runFor(7ms);
    EXPECT_EQ(elapsed(), 7ms);
}

TEST_F(MainLoopTest, RunsForADurationWhatIsDueUpToItsEnd) {
    loop.after(7ms, noting("at the end"));
    loop.after(8ms, noting("too late"));
    loop.runFor(7ms);
    EXPECT_EQ(trace, Trace{"7 at the end"});
}

TEST_F(MainLoopTest, RunsForNoTimeWhatIsDueAlready) {
    loop.post(noting("due"));
    loop.runFor(0ms);
    EXPECT_EQ(trace, Trace{"0 due"});
}

TEST_F(MainLoopTest, ARunForADurationThatWasQuitLeavesNoTimer) {
    loop.after(3ms, [this] { loop.quit(); });
    loop.runFor(1h);
    EXPECT_EQ(elapsed(), 3ms);
    EXPECT_EQ(loop.nextDue(), std::nullopt);
}

TEST_F(MainLoopTest, NeedsNoPassWithNothingToDo) { EXPECT_EQ(loop.nextDue(), std::nullopt); }

TEST_F(MainLoopTest, NeedsAPassWhenItsFirstTimerIsDue) {
    loop.after(9ms, [] {});
    loop.after(5ms, [] {});
    EXPECT_EQ(loop.nextDue(), time.now() + 5ms);
}

TEST_F(MainLoopTest, NeedsAPassAtOnceForPostedWork) {
    loop.after(5ms, [] {});
    loop.post([] {});
    EXPECT_EQ(loop.nextDue(), time.now());
}

TEST_F(MainLoopTest, NeedsAPassAtOnceForWorkFromAPoster) {
    loop.after(5ms, [] {});
    loop.poster().post([] {});
    EXPECT_EQ(loop.nextDue(), time.now());
}

TEST_F(MainLoopTest, NeedsNoPassForACancelledTimer) {
    loop.cancel(loop.after(5ms, [] {}));
    EXPECT_EQ(loop.nextDue(), std::nullopt);
}

TEST_F(MainLoopTest, ARunEndsOnceNothingIsLeftToHappen) {
    loop.after(5ms, noting("last"));
    loop.run();
    EXPECT_EQ(trace, Trace{"5 last"});
    EXPECT_EQ(elapsed(), 5ms);
}

TEST_F(MainLoopTest, ARunWaitsForAThreadThatMayStillPost) {
    startThread([this] {
        time.sleepFor(1h);
        loop.poster().post(noting("posted"));
    });
    loop.run();
    EXPECT_EQ(trace, Trace{"3600000 posted"});
}

TEST_F(MainLoopTest, WorkMayStartAThread) {
    loop.after(1ms, [this] {
        startThread([this] {
            time.sleepFor(1ms);
            loop.poster().post(noting("from the thread"));
        });
    });
    loop.run();
    EXPECT_EQ(trace, Trace{"2 from the thread"});
}

constexpr int threadCount = 4;
constexpr int postsPerThread = 250;

TEST(MainLoopInRealTime, KeepsTheOrderOfEachThreadsWork) {
    RealScheduler scheduler;
    MainLoop loop(scheduler);
    std::array<std::vector<int>, threadCount> seen;
    int left = threadCount * postsPerThread;
    for (std::vector<int>& mine : seen) {
        scheduler.startThread("poster", QualityOfService::userInitiated, [&, poster = loop.poster()] {
            for (int i = 0; i < postsPerThread; ++i) {
                poster.post([&, i] {
                    mine.push_back(i);
                    if (--left == 0) loop.quit();
                });
            }
        });
    }
    loop.run();
    std::vector<int> expected(postsPerThread);
    std::iota(expected.begin(), expected.end(), 0);
    for (const std::vector<int>& each : seen) EXPECT_EQ(each, expected);
}

TEST(MainLoopInRealTime, WorkIsDestroyedOnceHoweverLateItIsPosted) {
    RealScheduler scheduler;
    std::atomic<int> destroyed = 0;
    {
        MainLoop loop(scheduler);
        for (int thread = 0; thread < threadCount; ++thread) {
            scheduler.startThread("poster", QualityOfService::userInitiated, [&, poster = loop.poster()] {
                for (int i = 0; i < postsPerThread; ++i) {
                    poster.post([held = onDestruction([&] { ++destroyed; })] {});
                }
            });
        }
        loop.runDue();
    }
    scheduler.finishThreads();
    EXPECT_EQ(destroyed, threadCount * postsPerThread);
}

TEST(MainLoopInRealTime, ATimerNeverRunsTooEarly) {
    RealScheduler scheduler;
    MainLoop loop(scheduler);
    const MonotonicTime due = scheduler.now() + 50us;
    loop.after(50us, [&] {
        EXPECT_GE(scheduler.now(), due);
        loop.quit();
    });
    loop.run();
}

}  // namespace
}  // namespace vantrel::runtime
