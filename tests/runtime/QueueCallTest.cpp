#include <algorithm>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "runtime/QueueCall.h"
#include "runtime/RealScheduler.h"
#include "runtime/Sleep.h"
#include "runtime/TaskScope.h"
#include "support/OnDestruction.h"
#include "support/VirtualLoop.h"

namespace vantrel::runtime {
namespace {

using namespace std::chrono_literals;
using test::onDestruction;
using Trace = std::vector<std::string>;

class QueueCallTest : public testing::Test, protected test::VirtualLoop {
  protected:
    void TearDown() override {
        queue.reset();
        time.finishThreads();
    }
    // Blocks the queue for `duration`, notes that it ran and gives `result`.
    template <class Result>
    std::function<Result()> blocking(MonotonicClock::duration duration, Result result) {
        return [this, duration, result] {
            time.sleepFor(duration);
            note("ran");
            return result;
        };
    }
    void note(const std::string& what) { trace.push_back(std::to_string(elapsed().count()) + " " + what); }

    std::optional<SerialQueue> queue{std::in_place, time, "queue", QualityOfService::userInitiated};
    std::optional<TaskScope> scope{loop};
    Trace trace;
};

template <class Result>
Task<> call(SerialQueue& queue, MainLoop& loop, std::function<Result()> function,
            std::function<void(Result)> done) {
    QueueCall<Result> awaited(queue, loop.poster(), std::move(function));
    Result result = co_await awaited;
    done(std::move(result));
}

TEST_F(QueueCallTest, RunsOnTheQueueAndGivesItsResultOnTheLoop) {
    const std::thread::id here = std::this_thread::get_id();
    std::thread::id there;
    std::function<int()> function = [&] {
        time.sleepFor(40ms);
        there = std::this_thread::get_id();
        return 7;
    };
    scope->start(call<int>(*queue, loop, function, [&](int result) {
        EXPECT_EQ(std::this_thread::get_id(), here);
        note(std::to_string(result));
    }));
    loop.run();
    EXPECT_EQ(trace, Trace{"40 7"});
    EXPECT_NE(there, here);
    EXPECT_NE(there, std::thread::id());
}

TEST_F(QueueCallTest, DoesNothingUntilItIsAwaited) {
    { const QueueCall<int> unused(*queue, loop.poster(), blocking(1ms, 1)); }
    loop.run();
    EXPECT_EQ(trace, Trace{});
}

TEST_F(QueueCallTest, CallsOfSeveralTasksRunOneAfterTheOther) {
    for (int i = 1; i <= 2; ++i) {
        scope->start(
            call<int>(*queue, loop, blocking(10ms, i), [this](int result) { note(std::to_string(result)); }));
    }
    loop.run();
    EXPECT_EQ(trace, (Trace{"10 ran", "10 1", "20 ran", "20 2"}));
}

TEST_F(QueueCallTest, GivesAResultThatCanOnlyBeMoved) {
    std::function<std::unique_ptr<int>()> make = [] { return std::make_unique<int>(7); };
    scope->start(call<std::unique_ptr<int>>(
        *queue, loop, make, [this](std::unique_ptr<int> result) { note(std::to_string(*result)); }));
    loop.run();
    EXPECT_EQ(trace, Trace{"0 7"});
}

TEST_F(QueueCallTest, OfADestroyedTaskStillRunsAndItsResultIsDropped) {
    std::function<std::shared_ptr<void>()> function = [this] {
        time.sleepFor(40ms);
        note("ran");
        return onDestruction([this] { note("result destroyed"); });
    };
    scope->start(call<std::shared_ptr<void>>(*queue, loop, std::move(function),
                                             [this](const std::shared_ptr<void>&) { note("resumed"); }));
    loop.runFor(20ms);
    scope.reset();
    loop.run();
    EXPECT_EQ(trace, (Trace{"40 ran", "40 result destroyed"}));
}

TEST_F(QueueCallTest, OfATaskDestroyedBetweenTheCallsEndAndItsResumingIsDropped) {
    scope->start(call<int>(*queue, loop, blocking(40ms, 1), [this](int) { note("resumed"); }));
    loop.runDue();
    time.sleepFor(50ms);
    scope.reset();
    loop.run();
    EXPECT_EQ(trace, Trace{"40 ran"});
}

TEST_F(QueueCallTest, OfADestroyedTaskMayOutliveTheQueueAndTheLoop) {
    auto brief = std::make_unique<MainLoop>(time);
    {
        TaskScope inBrief(*brief);
        inBrief.start(call<int>(*queue, *brief, blocking(40ms, 1), [this](int) { note("resumed"); }));
        brief->runFor(20ms);
    }
    brief.reset();
    queue.reset();
    time.finishThreads();
    EXPECT_EQ(trace, Trace{"40 ran"});
}

TEST_F(QueueCallTest, IsNotCutShortByCancelling) {
    const TaskHandle handle = scope->start(
        call<int>(*queue, loop, blocking(40ms, 7), [this](int result) { note(std::to_string(result)); }));
    loop.after(5ms, [handle] { handle.cancel(); });
    loop.run();
    EXPECT_EQ(trace, (Trace{"40 ran", "40 7"}));
}

Task<> sleepCallSleep(SerialQueue& queue, MainLoop& loop, std::function<int()> function,
                      std::function<void(Slept)> slept) {
    slept(co_await sleep(loop, 5ms));
    QueueCall<int> awaited(queue, loop.poster(), std::move(function));
    (void)co_await awaited;
    slept(co_await sleep(loop, 5ms));
}

TEST_F(QueueCallTest, CancelledDuringACallTheNextSleepDoesNotSleep) {
    const TaskHandle handle =
        scope->start(sleepCallSleep(*queue, loop, blocking(40ms, 7), [this](Slept slept) {
            note(slept == Slept::fully ? "fully" : "cancelled");
        }));
    loop.after(10ms, [handle] { handle.cancel(); });
    loop.run();
    EXPECT_EQ(trace, (Trace{"5 fully", "45 ran", "45 cancelled"}));
}

// The end of the loop's run is what the test waits for, not a time.
TEST(QueueCallInRealTime, GivesManyResultsInOrder) {
    constexpr int count = 200;
    RealScheduler scheduler;
    MainLoop loop(scheduler);
    std::vector<int> results;
    {
        SerialQueue queue(scheduler, "queue", QualityOfService::userInitiated);
        TaskScope scope(loop);
        for (int i = 0; i < count; ++i) {
            scope.start(call<int>(
                queue, loop, [i] { return i; },
                [&](int result) {
                    results.push_back(result);
                    if (results.size() == count) loop.quit();
                }));
        }
        loop.run();
    }
    scheduler.finishThreads();
    ASSERT_EQ(results.size(), static_cast<std::size_t>(count));
    EXPECT_TRUE(std::is_sorted(results.begin(), results.end()));
}

TEST(QueueCallInRealTime, ManyOfDestroyedTasksAreDroppedOnceEach) {
    constexpr int count = 200;
    RealScheduler scheduler;
    MainLoop loop(scheduler);
    std::atomic<int> made = 0;
    std::atomic<int> destroyed = 0;
    {
        SerialQueue queue(scheduler, "queue", QualityOfService::userInitiated);
        TaskScope scope(loop);
        std::function<std::shared_ptr<void>()> function = [&] {
            ++made;
            return onDestruction([&] { ++destroyed; });
        };
        for (int i = 0; i < count; ++i) {
            scope.start(
                call<std::shared_ptr<void>>(queue, loop, function, [](const std::shared_ptr<void>&) {}));
        }
        loop.runDue();
    }
    scheduler.finishThreads();
    loop.runDue();
    EXPECT_EQ(made, count);
    EXPECT_EQ(destroyed, count);
}

}  // namespace
}  // namespace vantrel::runtime
