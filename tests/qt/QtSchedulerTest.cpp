#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/RealScheduler.h"
#include "ui/qt/QtScheduler.h"

namespace vantrel::qt {
namespace {

TEST(QtScheduler, WakesAfterEachOpeningOfAGate) {
    runtime::RealScheduler inner;
    QtScheduler scheduler(inner);
    const auto gate = scheduler.makeGate();
    int wakes = 0;
    scheduler.onOpen([&] { ++wakes; });
    gate->open();
    EXPECT_EQ(wakes, 1);
    EXPECT_EQ(gate->wait(std::nullopt), runtime::Wake::opened);
    scheduler.onOpen({});
    gate->open();
    EXPECT_EQ(wakes, 1);
}

TEST(QtScheduler, HasTheTimeOfTheOneInside) {
    runtime::RealScheduler inner;
    QtScheduler scheduler(inner);
    const auto before = inner.now();
    const auto now = scheduler.now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, inner.now());
}

TEST(QtScheduler, RunsThreadsThroughTheOneInside) {
    runtime::RealScheduler inner;
    QtScheduler scheduler(inner);
    bool hasRun = false;
    scheduler.startThread("worker", runtime::QualityOfService::userInitiated, [&] { hasRun = true; });
    scheduler.finishThreads();
    EXPECT_TRUE(hasRun);
}

}  // namespace
}  // namespace vantrel::qt
