#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/Sleep.h"
#include "runtime/TaskScope.h"
#include "support/OnDestruction.h"
#include "support/VirtualLoop.h"

namespace vantrel::runtime {
namespace {

using namespace std::chrono_literals;
using test::onDestruction;
using Trace = std::vector<std::string>;

class TaskScopeTest : public testing::Test, protected test::VirtualLoop {
  protected:
    std::optional<TaskScope> scope{loop};
    Trace trace;
};

Task<> note(Trace& trace, std::string what) {
    trace.push_back(what);
    co_return;
}

Task<> nap(MainLoop& loop, MonotonicClock::duration duration, Trace& trace, std::string what) {
    const Slept slept = co_await sleep(loop, duration);
    trace.push_back(what + (slept == Slept::fully ? " slept" : " was cancelled"));
}

Task<> keep(MainLoop& loop, [[maybe_unused]] std::shared_ptr<void> held) { (void)co_await sleep(loop, 1h); }

TEST_F(TaskScopeTest, BeginsATaskInALaterPass) {
    loop.post([this] { scope->start(note(trace, "began")); });
    loop.runDue();
    EXPECT_EQ(trace, Trace{});
    loop.runDue();
    EXPECT_EQ(trace, Trace{"began"});
}

TEST_F(TaskScopeTest, BeginsTasksInTheOrderInWhichTheyWereStarted) {
    for (const char* name : {"a", "b", "c"}) scope->start(note(trace, name));
    loop.run();
    EXPECT_EQ(trace, (Trace{"a", "b", "c"}));
}

TEST_F(TaskScopeTest, TasksSleepSideBySide) {
    scope->start(nap(loop, 20ms, trace, "b"));
    scope->start(nap(loop, 10ms, trace, "a"));
    loop.run();
    EXPECT_EQ(trace, (Trace{"a slept", "b slept"}));
    EXPECT_EQ(elapsed(), 20ms);
}

TEST_F(TaskScopeTest, CountsTheTasksThatHaveNotFinished) {
    EXPECT_EQ(scope->running(), 0U);
    scope->start(nap(loop, 10ms, trace, "a"));
    scope->start(nap(loop, 20ms, trace, "b"));
    EXPECT_EQ(scope->running(), 2U);
    loop.runFor(15ms);
    EXPECT_EQ(scope->running(), 1U);
    loop.run();
    EXPECT_EQ(scope->running(), 0U);
}

TEST_F(TaskScopeTest, AHandleTellsWhetherItsTaskIsRunning) {
    const TaskHandle handle = scope->start(nap(loop, 10ms, trace, "a"));
    EXPECT_TRUE(handle.isRunning()) << "before it begins";
    loop.runFor(5ms);
    EXPECT_TRUE(handle.isRunning());
    loop.run();
    EXPECT_FALSE(handle.isRunning());
}

TEST_F(TaskScopeTest, AHandleOfNoTaskDoesNothing) {
    const TaskHandle handle;
    EXPECT_FALSE(handle.isRunning());
    handle.cancel();
}

TEST_F(TaskScopeTest, AHandleDoesNothingOnceItsTaskHasFinished) {
    const TaskHandle handle = scope->start(note(trace, "a"));
    loop.run();
    handle.cancel();
    loop.run();
    EXPECT_EQ(trace, Trace{"a"});
}

TEST_F(TaskScopeTest, AHandleDoesNothingOnceItsScopeIsGone) {
    const TaskHandle handle = scope->start(nap(loop, 10ms, trace, "a"));
    loop.runDue();
    scope.reset();
    EXPECT_FALSE(handle.isRunning());
    handle.cancel();
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(TaskScopeTest, CancellingEndsASleepInProgressAtOnce) {
    const TaskHandle handle = scope->start(nap(loop, 1h, trace, "a"));
    loop.after(3ms, [handle] { handle.cancel(); });
    loop.run();
    EXPECT_EQ(trace, Trace{"a was cancelled"});
    EXPECT_EQ(elapsed(), 3ms);
}

TEST_F(TaskScopeTest, CancellingBeforeATaskBeginsEndsItsSleeps) {
    scope->start(nap(loop, 1h, trace, "a")).cancel();
    loop.run();
    EXPECT_EQ(trace, Trace{"a was cancelled"});
    EXPECT_EQ(elapsed(), 0ms);
}

TEST_F(TaskScopeTest, CancellingOneTaskLeavesTheOthersAlone) {
    const TaskHandle handle = scope->start(nap(loop, 10ms, trace, "a"));
    scope->start(nap(loop, 20ms, trace, "b"));
    loop.runDue();
    handle.cancel();
    loop.run();
    EXPECT_EQ(trace, (Trace{"a was cancelled", "b slept"}));
}

TEST_F(TaskScopeTest, CancellingTwiceEndsASleepOnce) {
    const TaskHandle handle = scope->start(nap(loop, 1h, trace, "a"));
    loop.runDue();
    handle.cancel();
    handle.cancel();
    loop.run();
    EXPECT_EQ(trace, Trace{"a was cancelled"});
}

TEST_F(TaskScopeTest, DestroyedBeforeATaskBeginsItNeverRuns) {
    scope->start(note(trace, "began"));
    scope.reset();
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(TaskScopeTest, DestroyedWhileTasksSleepItDestroysTheirLocals) {
    for (int i = 0; i < 2; ++i) {
        scope->start(keep(loop, onDestruction([this] { trace.push_back("destroyed"); })));
    }
    loop.runDue();
    scope.reset();
    EXPECT_EQ(trace, (Trace{"destroyed", "destroyed"}));
    EXPECT_EQ(loop.nextDue(), std::nullopt);
}

TEST_F(TaskScopeTest, DestroyedAfterACancelledSleepBeforeTheTaskWakesItNeverWakes) {
    const TaskHandle handle = scope->start(nap(loop, 1h, trace, "a"));
    loop.runDue();
    handle.cancel();
    scope.reset();
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(TaskScopeTest, DestroyedInThePassInWhichATaskFinishedItDestroysTheTask) {
    scope->start(note(trace, "a"));
    loop.post([this] { scope.reset(); });
    loop.run();
    EXPECT_EQ(trace, Trace{"a"});
}

TEST_F(TaskScopeTest, DestroyedByATaskOfAnotherScope) {
    const auto destroy = [](std::optional<TaskScope>& victim) -> Task<> {
        victim.reset();
        co_return;
    };
    std::optional<TaskScope> other(loop);
    other->start(nap(loop, 1h, trace, "a"));
    loop.runDue();
    scope->start(destroy(other));
    loop.run();
    EXPECT_EQ(trace, Trace{});
    EXPECT_EQ(elapsed(), 0ms);
}

TEST_F(TaskScopeTest, ALocalMayCancelAnotherTaskWhileTheScopeIsDestroyed) {
    TaskHandle other;
    scope->start(keep(loop, onDestruction([&] { other.cancel(); })));
    other = scope->start(nap(loop, 1h, trace, "a"));
    loop.runDue();
    scope.reset();
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

Task<> startWhenDestroyed(MainLoop& loop, TaskScope& scope, Trace& trace) {
    const auto local = onDestruction([&] { scope.start(note(trace, "began")); });
    (void)co_await sleep(loop, 1h);
}

TEST_F(TaskScopeTest, WhatALocalStartsWhileTheScopeIsDestroyedNeverBegins) {
    scope->start(startWhenDestroyed(loop, *scope, trace));
    loop.runDue();
    scope.reset();
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(TaskScopeTest, MayBeOwnedByAParameterOfItsLastTask) {
    auto owner = std::make_shared<TaskScope>(loop);
    const std::weak_ptr<TaskScope> observed = owner;
    owner->start(keep(loop, owner));
    owner.reset();
    loop.runFor(1ms);
    EXPECT_FALSE(observed.expired());
    loop.run();
    EXPECT_TRUE(observed.expired());
}

Task<> startAnother(TaskScope& scope, Trace& trace) {
    scope.start(note(trace, "inner"));
    trace.push_back("outer");
    co_return;
}

TEST_F(TaskScopeTest, StartsATaskFromInsideATask) {
    scope->start(startAnother(*scope, trace));
    loop.run();
    EXPECT_EQ(trace, (Trace{"outer", "inner"}));
    EXPECT_EQ(scope->running(), 0U);
}

TEST_F(TaskScopeTest, AFinishedTaskKeepsNothingOnceTheLoopHasGoneOn) {
    scope->start([](std::shared_ptr<void>) -> Task<> {
        co_return;
    }(onDestruction([this] { trace.push_back("destroyed"); })));
    loop.run();
    EXPECT_EQ(trace, Trace{"destroyed"});
}

TEST_F(TaskScopeTest, RunsManyTasks) {
    constexpr int count = 2000;
    for (int i = 0; i < count; ++i) scope->start(nap(loop, std::chrono::milliseconds(i % 7), trace, "a"));
    loop.run();
    EXPECT_EQ(trace, Trace(count, "a slept"));
    EXPECT_EQ(elapsed(), 6ms);
}

TEST_F(TaskScopeTest, IsDestroyedWithWorkThatNeverRan) {
    {
        MainLoop brief(time);
        auto held = std::make_shared<TaskScope>(brief);
        held->start(nap(brief, 2h, trace, "a"));
        brief.runDue();
        brief.after(1h, [held = std::move(held)] {});
    }
    EXPECT_EQ(trace, Trace{});
}

}  // namespace
}  // namespace vantrel::runtime
