#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/RealScheduler.h"
#include "runtime/WakingScheduler.h"

namespace vantrel::runtime {
namespace {

TEST(WakingScheduler, WakesAfterEachOpeningOfAGate) {
    RealScheduler inner;
    WakingScheduler scheduler(inner);
    const auto gate = scheduler.makeGate();
    int wakes = 0;
    scheduler.onOpen([&] { ++wakes; });
    gate->open();
    EXPECT_EQ(wakes, 1);
    EXPECT_EQ(gate->wait(std::nullopt), Wake::opened);
    scheduler.onOpen({});
    gate->open();
    EXPECT_EQ(wakes, 1);
}

TEST(WakingScheduler, HasTheTimeOfTheOneInside) {
    RealScheduler inner;
    WakingScheduler scheduler(inner);
    const auto before = inner.now();
    const auto now = scheduler.now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, inner.now());
}

TEST(WakingScheduler, RunsThreadsThroughTheOneInside) {
    RealScheduler inner;
    WakingScheduler scheduler(inner);
    bool hasRun = false;
    scheduler.startThread("worker", QualityOfService::userInitiated, [&] { hasRun = true; });
    scheduler.finishThreads();
    EXPECT_TRUE(hasRun);
}

TEST(WakingScheduler, RunsServantsThroughTheOneInside) {
    RealScheduler inner;
    WakingScheduler scheduler(inner);
    const auto gate = scheduler.makeGate();
    bool hasRun = false;
    scheduler.startServant(
        "servant", QualityOfService::userInitiated,
        [&] {
            gate->wait(std::nullopt);
            hasRun = true;
        },
        [&] { gate->open(); });
    inner.finishThreads();
    EXPECT_TRUE(hasRun);
}

}  // namespace
}  // namespace vantrel::runtime
