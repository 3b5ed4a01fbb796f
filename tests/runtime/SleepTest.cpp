#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "runtime/Sleep.h"
#include "runtime/Task.h"
#include "runtime/TaskScope.h"
#include "support/VirtualLoop.h"

namespace vantrel::runtime {
namespace {

using namespace std::chrono_literals;
using Trace = std::vector<std::string>;

class SleepTest : public testing::Test, protected test::VirtualLoop {
  protected:
    TaskScope scope{loop};
    Trace trace;
};

std::string name(Slept slept) { return slept == Slept::fully ? "fully" : "cancelled"; }

Task<> sleepTwice(test::VirtualLoop& desk, MonotonicClock::duration each, Trace& trace) {
    for (int i = 0; i < 2; ++i) {
        const Slept slept = co_await sleep(desk.loop, each);
        trace.push_back(std::to_string(desk.elapsed().count()) + " " + name(slept));
    }
}

TEST_F(SleepTest, TakesItsDurationOnTheMonotonicClock) {
    scope.start(sleepTwice(*this, 600ms, trace));
    loop.run();
    EXPECT_EQ(trace, (Trace{"600 fully", "1200 fully"}));
}

TEST_F(SleepTest, OfNothingResumesInALaterPass) {
    scope.start(sleepTwice(*this, 0ms, trace));
    loop.runDue();
    EXPECT_EQ(trace, Trace{});
    loop.runDue();
    EXPECT_EQ(trace, Trace{"0 fully"});
}

TEST_F(SleepTest, WhenCancelledEndsAtOnceAndLaterOnesDoNotSleep) {
    const TaskHandle handle = scope.start(sleepTwice(*this, 1h, trace));
    loop.after(5ms, [handle] { handle.cancel(); });
    loop.run();
    EXPECT_EQ(trace, (Trace{"5 cancelled", "5 cancelled"}));
}

TEST_F(SleepTest, WhenCancelledResumesOnTheLoopNotInsideTheCancelling) {
    const TaskHandle handle = scope.start(sleepTwice(*this, 1h, trace));
    loop.runDue();
    handle.cancel();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(SleepTest, WhenCancelledAtTheMomentItIsDueIsCancelled) {
    TaskHandle handle;
    loop.after(5ms, [&handle] { handle.cancel(); });
    handle = scope.start(sleepTwice(*this, 5ms, trace));
    loop.run();
    EXPECT_EQ(trace, (Trace{"5 cancelled", "5 cancelled"}));
}

TEST_F(SleepTest, ThatEndedIsNotCancelledAfterwards) {
    const TaskHandle handle = scope.start(sleepTwice(*this, 5ms, trace));
    loop.after(7ms, [handle] { handle.cancel(); });
    loop.run();
    EXPECT_EQ(trace, (Trace{"5 fully", "7 cancelled"}));
}

Task<> sleepInside(test::VirtualLoop& desk, Trace& trace) {
    trace.push_back("outer");
    co_await sleepTwice(desk, 1h, trace);
    const Slept slept = co_await sleep(desk.loop, 1h);
    trace.push_back("outer " + name(slept));
}

TEST_F(SleepTest, InANestedTaskIsCancelledWithTheOuterOne) {
    const TaskHandle handle = scope.start(sleepInside(*this, trace));
    loop.after(5ms, [handle] { handle.cancel(); });
    loop.run();
    EXPECT_EQ(trace, (Trace{"outer", "5 cancelled", "5 cancelled", "outer cancelled"}));
}

Task<> cancelSelf(test::VirtualLoop& desk, TaskHandle& self, Trace& trace) {
    self.cancel();
    trace.push_back("still running");
    co_await sleepTwice(desk, 1h, trace);
}

TEST_F(SleepTest, OfATaskThatCancelledItselfIsCancelled) {
    TaskHandle self;
    self = scope.start(cancelSelf(*this, self, trace));
    loop.run();
    EXPECT_EQ(trace, (Trace{"still running", "0 cancelled", "0 cancelled"}));
}

Task<> sleepNamed(test::VirtualLoop& desk, Trace& trace) {
    auto nap = sleep(desk.loop, 5ms);
    trace.push_back(name(co_await nap));
    co_await sleepTwice(desk, 1h, trace);
}

TEST_F(SleepTest, KeptUnderANameDoesNotShieldLaterOnes) {
    const TaskHandle handle = scope.start(sleepNamed(*this, trace));
    loop.after(7ms, [handle] { handle.cancel(); });
    loop.run();
    EXPECT_EQ(trace, (Trace{"fully", "7 cancelled", "7 cancelled"}));
}

Task<> lookTwice(test::VirtualLoop& desk, Trace& trace) {
    const bool before = co_await IsCancelled();
    trace.push_back(before ? "cancelled" : "not cancelled");
    (void)co_await sleep(desk.loop, 5ms);
    const bool after = co_await IsCancelled();
    trace.push_back(after ? "cancelled" : "not cancelled");
}

Task<> lookInside(test::VirtualLoop& desk, Trace& trace) { co_await lookTwice(desk, trace); }

TEST(IsCancelled, TellsATaskWhetherItWasAskedToStop) {
    test::VirtualLoop desk;
    Trace trace;
    TaskScope scope(desk.loop);
    const TaskHandle handle = scope.start(lookInside(desk, trace));
    desk.loop.runDue();
    handle.cancel();
    desk.loop.run();
    EXPECT_EQ(trace, (Trace{"not cancelled", "cancelled"}));
}

}  // namespace
}  // namespace vantrel::runtime
