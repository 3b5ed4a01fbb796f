#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "runtime/Sleep.h"
#include "runtime/Task.h"
#include "runtime/TaskScope.h"
#include "support/DeathTest.h"
#include "support/OnDestruction.h"
#include "support/VirtualLoop.h"

namespace vantrel::runtime {
namespace {

using namespace std::chrono_literals;
using test::onDestruction;
using Trace = std::vector<std::string>;

static_assert(!std::is_copy_constructible_v<Task<int>>);
static_assert(std::is_nothrow_move_constructible_v<Task<int>>);

class TaskTest : public testing::Test, protected test::VirtualLoop {
  protected:
    TaskScope scope{loop};
    Trace trace;
};

Task<> note(Trace& trace, std::string what) {
    trace.push_back(what);
    co_return;
}

Task<int> number(int value) { co_return value; }

Task<int> numberLater(MainLoop& loop, int value) {
    (void)co_await sleep(loop, 1ms);
    co_return value;
}

Task<std::unique_ptr<int>> owned(int value) { co_return std::make_unique<int>(value); }

TEST_F(TaskTest, DoesNothingUntilItIsAwaited) {
    { const Task<> task = note(trace, "ran"); }
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(TaskTest, DestroysItsParametersWhenItNeverRan) {
    const auto takes = [](std::shared_ptr<void>) -> Task<> { co_return; };
    {
        const Task<> task = takes(onDestruction([this] { trace.push_back("destroyed"); }));
    }
    EXPECT_EQ(trace, Trace{"destroyed"});
}

Task<> addTwo(MainLoop& loop, int& sum) {
    sum += co_await number(1);
    sum += co_await numberLater(loop, 2);
}

TEST_F(TaskTest, GivesItsResultToWhoeverAwaitsIt) {
    int sum = 0;
    scope.start(addTwo(loop, sum));
    loop.run();
    EXPECT_EQ(sum, 3);
}

Task<> takeOwned(int& value) {
    const std::unique_ptr<int> result = co_await owned(7);
    value = *result;
}

TEST_F(TaskTest, GivesAResultThatCanOnlyBeMoved) {
    int value = 0;
    scope.start(takeOwned(value));
    loop.run();
    EXPECT_EQ(value, 7);
}

Task<int> depth(MainLoop& loop, int levels) {
    if (levels == 0) co_return co_await numberLater(loop, 0);
    const int below = co_await depth(loop, levels - 1);
    co_return below + 1;
}

Task<> measureDepth(MainLoop& loop, int& result) { result = co_await depth(loop, 200); }

TEST_F(TaskTest, NestsDeeply) {
    int result = 0;
    scope.start(measureDepth(loop, result));
    loop.run();
    EXPECT_EQ(result, 200);
}

Task<> outer(Trace& trace) {
    trace.push_back("before");
    co_await note(trace, "inner");
    trace.push_back("after");
}

TEST_F(TaskTest, RunsAnAwaitedTaskAtOnce) {
    scope.start(outer(trace));
    loop.runDue();
    EXPECT_EQ(trace, (Trace{"before", "inner", "after"}));
}

Task<> awaitNamed(MainLoop& loop, Trace& trace) {
    Task<int> later = numberLater(loop, 5);
    co_await note(trace, "first");
    trace.push_back(std::to_string(co_await later));
}

TEST_F(TaskTest, CanBeNamedFirstAndAwaitedLater) {
    scope.start(awaitNamed(loop, trace));
    loop.run();
    EXPECT_EQ(trace, (Trace{"first", "5"}));
}

Task<> awaitMany(int count, int& sum) {
    for (int i = 0; i < count; ++i) sum += co_await number(1);
}

TEST_F(TaskTest, AwaitsManyThatNeverSuspend) {
    int sum = 0;
    scope.start(awaitMany(1000, sum));
    loop.run();
    EXPECT_EQ(sum, 1000);
}

Task<> holdWhileAsleep(MainLoop& loop, [[maybe_unused]] std::shared_ptr<void> parameter, Trace& trace) {
    const auto local = onDestruction([&trace] { trace.push_back("local"); });
    (void)co_await sleep(loop, 1h);
    trace.push_back("woke");
}

Task<> awaitHolder(MainLoop& loop, Trace& trace) {
    const auto local = onDestruction([&trace] { trace.push_back("outer local"); });
    auto parameter = onDestruction([&trace] { trace.push_back("parameter"); });
    co_await holdWhileAsleep(loop, std::move(parameter), trace);
    trace.push_back("went on");
}

TEST_F(TaskTest, DestroyedInAnAwaitItDestroysWhatItAwaitsBeforeItsOwnLocals) {
    {
        TaskScope brief(loop);
        brief.start(awaitHolder(loop, trace));
        loop.runDue();
    }
    EXPECT_EQ(trace, (Trace{"local", "parameter", "outer local"}));
    loop.run();
    EXPECT_EQ(trace.size(), 3U) << "nothing of it runs any more";
    EXPECT_EQ(elapsed(), 0ms) << "its timer is gone";
}

TEST_F(TaskTest, AssigningAnotherTaskDestroysTheOneBefore) {
    const auto takes = [](std::shared_ptr<void>) -> Task<> { co_return; };
    Task<> task = takes(onDestruction([this] { trace.push_back("first destroyed"); }));
    task = note(trace, "second ran");
    EXPECT_EQ(trace, Trace{"first destroyed"});
    scope.start(std::move(task));
    loop.run();
    EXPECT_EQ(trace.back(), "second ran");
}

class TaskDeathTest : public test::DeathTest, protected test::VirtualLoop {};

Task<> throws() {
    throw 1;
    co_return;
}

TEST_F(TaskDeathTest, AnExceptionThatLeavesATaskStopsTheProgram) {
    EXPECT_DEATH(
        {
            TaskScope scope(loop);
            scope.start(throws());
            loop.run();
        },
        "");
}

}  // namespace
}  // namespace vantrel::runtime
