#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/simulated/VirtualTime.h"
#include "runtime/RealScheduler.h"
#include "runtime/SerialQueue.h"
#include "support/OnDestruction.h"

namespace vantrel::runtime {
namespace {

using namespace std::chrono_literals;
using test::onDestruction;

// finishThreads() is what makes the blocks' effects visible here.
template <class TestedScheduler>
class SerialQueueTest : public testing::Test {
  protected:
    void makeQueue() { queue.emplace(scheduler, "queue", QualityOfService::userInitiated); }
    void finish() {
        queue.reset();
        scheduler.finishThreads();
    }

    TestedScheduler scheduler;
    std::optional<SerialQueue> queue;
};

using Schedulers = testing::Types<simulated::VirtualTime, RealScheduler>;
class SchedulerName {
  public:
    template <class TestedScheduler>
    static std::string GetName(int) {
        return std::is_same_v<TestedScheduler, RealScheduler> ? "RealScheduler" : "VirtualTime";
    }
};
TYPED_TEST_SUITE(SerialQueueTest, Schedulers, SchedulerName);

TYPED_TEST(SerialQueueTest, HasALabel) {
    this->makeQueue();
    EXPECT_EQ(this->queue->label(), "queue");
    this->finish();
}

TYPED_TEST(SerialQueueTest, EndsWithoutABlock) {
    this->makeQueue();
    this->finish();
}

TYPED_TEST(SerialQueueTest, RunsBlocksInTheOrderOfSubmission) {
    std::vector<int> trace;
    std::vector<int> expected;
    this->makeQueue();
    for (int i = 0; i < 1000; ++i) {
        expected.push_back(i);
        this->queue->submit([&trace, i] { trace.push_back(i); });
    }
    this->finish();
    EXPECT_EQ(trace, expected);
}

TYPED_TEST(SerialQueueTest, RunsOneBlockAtATime) {
    std::atomic<int> inside = 0;
    std::atomic<int> most = 0;
    this->makeQueue();
    for (int i = 0; i < 50; ++i) {
        this->queue->submit([&] {
            most = std::max(most.load(), ++inside);
            this->scheduler.sleepFor(1us);
            --inside;
        });
    }
    this->finish();
    EXPECT_EQ(most, 1);
}

TYPED_TEST(SerialQueueTest, RunsEveryBlockOnOneThreadOfItsOwn) {
    std::vector<std::thread::id> threads;
    this->makeQueue();
    for (int i = 0; i < 3; ++i) this->queue->submit([&] { threads.push_back(std::this_thread::get_id()); });
    this->finish();
    ASSERT_EQ(threads.size(), 3U);
    EXPECT_NE(threads[0], std::this_thread::get_id());
    EXPECT_EQ(threads, std::vector(3, threads[0]));
}

TYPED_TEST(SerialQueueTest, TakesBlocksFromAnotherThread) {
    bool ran = false;
    const auto submitted = this->scheduler.makeGate();
    this->makeQueue();
    this->scheduler.startThread("submitter", QualityOfService::userInitiated, [&] {
        this->queue->submit([&] { ran = true; });
        submitted->open();
    });
    submitted->wait(std::nullopt);
    this->finish();
    EXPECT_TRUE(ran);
}

TYPED_TEST(SerialQueueTest, TakesABlockFromInsideABlockAfterTheOthers) {
    std::vector<std::string> trace;
    const auto submitted = this->scheduler.makeGate();
    this->makeQueue();
    this->queue->submit([&] {
        trace.push_back("outer");
        this->queue->submit([&] { trace.push_back("inner"); });
        trace.push_back("outer again");
        submitted->open();
    });
    submitted->wait(std::nullopt);
    this->finish();
    EXPECT_EQ(trace, (std::vector<std::string>{"outer", "outer again", "inner"}));
}

TYPED_TEST(SerialQueueTest, DestroysABlockBeforeTheNextOneRuns) {
    std::vector<std::string> trace;
    this->makeQueue();
    this->queue->submit([held = onDestruction([&] { trace.push_back("destroyed"); })] {});
    this->queue->submit([&] { trace.push_back("next"); });
    this->finish();
    EXPECT_EQ(trace, (std::vector<std::string>{"destroyed", "next"}));
}

// The first block waits for what happens only after the queue is gone.
TYPED_TEST(SerialQueueTest, DestroyingItWaitsForNoBlockAndLosesNone) {
    int ran = 0;
    const auto gate = this->scheduler.makeGate();
    this->makeQueue();
    this->queue->submit([&] {
        gate->wait(std::nullopt);
        ++ran;
    });
    this->queue->submit([&] { ++ran; });
    this->queue.reset();
    gate->open();
    this->scheduler.finishThreads();
    EXPECT_EQ(ran, 2);
}

TYPED_TEST(SerialQueueTest, RunsBlocksThatWereSubmittedAfterItHadNothingToDo) {
    int ran = 0;
    const auto first = this->scheduler.makeGate();
    this->makeQueue();
    this->queue->submit([&] {
        ++ran;
        first->open();
    });
    first->wait(std::nullopt);
    this->scheduler.sleepFor(1us);
    this->queue->submit([&] { ++ran; });
    this->finish();
    EXPECT_EQ(ran, 2);
}

TEST(SerialQueuesInVirtualTime, SleepSideBySide) {
    simulated::VirtualTime time;
    std::vector<std::string> trace;
    {
        SerialQueue left(time, "left", QualityOfService::userInitiated);
        SerialQueue right(time, "right", QualityOfService::userInitiated);
        for (int i = 0; i < 2; ++i) {
            left.submit([&] {
                time.sleepFor(20ms);
                trace.push_back("left");
            });
            right.submit([&] {
                time.sleepFor(30ms);
                trace.push_back("right");
            });
        }
    }
    EXPECT_EQ(time.now(), MonotonicTime{});
    time.finishThreads();
    EXPECT_EQ(trace, (std::vector<std::string>{"left", "right", "left", "right"}));
    EXPECT_EQ(time.now(), MonotonicTime(60ms));
}

}  // namespace
}  // namespace vantrel::runtime
