#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/RealScheduler.h"
#include "ui/qt/QtLoop.h"

namespace vantrel::qt {
namespace {

using namespace std::chrono_literals;

class QtLoopTest : public testing::Test {
  protected:
    // A loop in Qt's, as a menu opens one.
    void runNested() { nested_.exec(); }
    void endNested() { nested_.quit(); }

    runtime::RealScheduler inner_;
    runtime::WakingScheduler scheduler_{inner_};
    runtime::MainLoop main_{scheduler_};
    QtLoop loop_{main_, scheduler_};
    QEventLoop nested_;
};

TEST_F(QtLoopTest, RunsWhatWasPostedBefore) {
    int passes = 0;
    main_.post([&] {
        ++passes;
        endNested();
    });
    runNested();
    EXPECT_EQ(passes, 1);
}

TEST_F(QtLoopTest, RunsWhatAnotherThreadPosts) {
    const auto poster = main_.poster();
    scheduler_.startThread("worker", runtime::QualityOfService::userInitiated,
                           [&] { poster.post([this] { endNested(); }); });
    runNested();
    scheduler_.finishThreads();
}

TEST_F(QtLoopTest, RunsTimersInTheirOrder) {
    std::vector<int> order;
    main_.after(20ms, [&] {
        order.push_back(2);
        endNested();
    });
    main_.after(5ms, [&] { order.push_back(1); });
    runNested();
    EXPECT_THAT(order, testing::ElementsAre(1, 2));
}

TEST_F(QtLoopTest, IsNotEarly) {
    const auto start = inner_.now();
    main_.after(15ms, [&] { endNested(); });
    runNested();
    EXPECT_GE(inner_.now() - start, 15ms);
}

TEST_F(QtLoopTest, SeesATimerThatOneOfQtsEventsHasStarted) {
    QTimer::singleShot(0, [&] { main_.after(1ms, [&] { endNested(); }); });
    runNested();
}

TEST_F(QtLoopTest, GoesOnInLoopsWithinItsOwnWork) {
    std::vector<int> order;
    main_.post([&] {
        QEventLoop inside;
        main_.post([&] {
            order.push_back(1);
            inside.quit();
        });
        inside.exec();
        order.push_back(2);
        endNested();
    });
    runNested();
    EXPECT_THAT(order, testing::ElementsAre(1, 2));
}

TEST_F(QtLoopTest, HasNoTimerWithNothingDue) {
    QTimer::singleShot(20, &nested_, [&] {
        EXPECT_FALSE(loop_.hasTimer());
        endNested();
    });
    runNested();
    EXPECT_FALSE(loop_.hasTimer());
}

TEST_F(QtLoopTest, GivesUpTheTimerOfWhatWasCancelled) {
    const auto timer = main_.after(1h, [] {});
    QTimer::singleShot(10, &nested_, [&] {
        EXPECT_TRUE(loop_.hasTimer());
        main_.cancel(timer);
    });
    QTimer::singleShot(30, &nested_, [&] { endNested(); });
    runNested();
    EXPECT_FALSE(loop_.hasTimer());
}

TEST_F(QtLoopTest, LetsQtsEventsThroughBetweenPassesThatNeverEnd) {
    std::function<void()> again = [&] { main_.post(again); };
    main_.post(again);
    QTimer::singleShot(10, &nested_, [&] { endNested(); });
    runNested();
    EXPECT_TRUE(loop_.hasTimer());
}

}  // namespace
}  // namespace vantrel::qt
