#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macos/fake/FakeMac.h"
#include "macos/fake/FakeRunLoop.h"
#include "platform/macos/MacRunLoop.h"
#include "platform/simulated/VirtualTime.h"
#include "support/DeathTest.h"

namespace vantrel::macos {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

// Without an end of its own; in virtual time, until nothing is left to happen.
constexpr CFTimeInterval forEver = 1e10;

CFRunLoopRunResult runIn(CFRunLoopMode mode) { return CFRunLoopRunInMode(mode, forEver, false); }
void end() { CFRunLoopStop(CFRunLoopGetMain()); }
// Takes what is there, without waiting.
void poll() { CFRunLoopRunInMode(kCFRunLoopDefaultMode, 0, false); }

struct Computer {
    simulated::VirtualTime time;
    runtime::WakingScheduler scheduler{time};
    runtime::MainLoop main{scheduler};
    simulated::SimulatedPlatform simulated{simulated::Desk{}, scheduler, main};
    fake::FakeMac mac{simulated, time};
};

// Somebody else's source in the run loop.
class OtherSource {
  public:
    explicit OtherSource(std::function<void()> work) : work_(std::move(work)) {
        CFRunLoopSourceContext context{};
        context.info = this;
        context.perform = [](void* self) { static_cast<OtherSource*>(self)->work_(); };
        source_ = CFHandle(CFRunLoopSourceCreate(kCFAllocatorDefault, 0, &context));
        CFRunLoopAddSource(CFRunLoopGetMain(), source_.get(), kCFRunLoopCommonModes);
    }
    OtherSource(const OtherSource&) = delete;
    OtherSource& operator=(const OtherSource&) = delete;
    ~OtherSource() { CFRunLoopSourceInvalidate(source_.get()); }

    void signal() {
        CFRunLoopSourceSignal(source_.get());
        CFRunLoopWakeUp(CFRunLoopGetMain());
    }

  private:
    std::function<void()> work_;
    CFHandle<CFRunLoopSourceRef> source_;
};

// Somebody else's timer in the run loop; it fires once.
class OtherTimer {
  public:
    OtherTimer(CFTimeInterval wait, std::function<void()> work) : work_(std::move(work)) {
        CFRunLoopTimerContext context{};
        context.info = this;
        timer_ = CFHandle(CFRunLoopTimerCreate(
            kCFAllocatorDefault, fake::FakeMac::current().runLoop().now() + wait, 0, 0, 0,
            [](CFRunLoopTimerRef, void* self) { static_cast<OtherTimer*>(self)->work_(); }, &context));
        CFRunLoopAddTimer(CFRunLoopGetMain(), timer_.get(), kCFRunLoopCommonModes);
    }
    OtherTimer(const OtherTimer&) = delete;
    OtherTimer& operator=(const OtherTimer&) = delete;
    ~OtherTimer() { CFRunLoopTimerInvalidate(timer_.get()); }

  private:
    std::function<void()> work_;
    CFHandle<CFRunLoopTimerRef> timer_;
};

class MacRunLoopTest : public testing::Test {
  protected:
    runtime::MainLoop& main() { return computer_.main; }
    auto elapsed() const {
        return std::chrono::round<std::chrono::microseconds>(computer_.time.now().time_since_epoch());
    }

    Computer computer_;
    MacRunLoop loop_{computer_.main, computer_.scheduler};
};

TEST_F(MacRunLoopTest, RunsWhatWasPostedBefore) {
    int passes = 0;
    main().post([&] {
        ++passes;
        end();
    });
    EXPECT_EQ(runIn(kCFRunLoopDefaultMode), kCFRunLoopRunStopped);
    EXPECT_EQ(passes, 1);
}

TEST_F(MacRunLoopTest, RunsTimersInTheirOrderAndAtTheirTime) {
    std::vector<std::chrono::microseconds> times;
    main().after(20ms, [&] { times.push_back(elapsed()); });
    main().after(5ms, [&] { times.push_back(elapsed()); });
    main().after(1h, [&] { times.push_back(elapsed()); });
    EXPECT_EQ(runIn(kCFRunLoopDefaultMode), kCFRunLoopRunFinished);
    EXPECT_THAT(times, ElementsAre(5ms, 20ms, 1h));
}

TEST_F(MacRunLoopTest, GoesOnWhileAMenuIsTracked) {
    std::vector<int> order;
    main().post([&] { order.push_back(1); });
    main().after(5ms, [&] { order.push_back(2); });
    runIn(fake::trackingMode());
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST_F(MacRunLoopTest, RunsWhatAnotherThreadPosts) {
    const auto poster = main().poster();
    bool hasRun = false;
    computer_.scheduler.startThread("worker", runtime::QualityOfService::userInitiated, [&] {
        computer_.scheduler.sleepFor(1s);
        poster.post([&] { hasRun = true; });
    });
    EXPECT_EQ(runIn(kCFRunLoopDefaultMode), kCFRunLoopRunFinished);
    EXPECT_TRUE(hasRun);
    computer_.scheduler.finishThreads();
}

TEST_F(MacRunLoopTest, GoesOnInARunLoopWithinItsOwnWork) {
    std::vector<int> order;
    main().after(1ms, [&] {
        main().post([&] { order.push_back(1); });
        main().after(1ms, [&] {
            order.push_back(2);
            end();
        });
        runIn(fake::trackingMode());
        order.push_back(3);
    });
    runIn(kCFRunLoopDefaultMode);
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(MacRunLoopTest, GoesOnInARunLoopWithinWorkThatAnotherSourceHasPosted) {
    std::vector<int> order;
    OtherSource other([&] {
        main().post([&] {
            main().post([&] {
                order.push_back(1);
                end();
            });
            runIn(fake::trackingMode());
            order.push_back(2);
        });
    });
    other.signal();
    runIn(kCFRunLoopDefaultMode);
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST_F(MacRunLoopTest, GoesOnInARunLoopThatNeverWaits) {
    std::vector<int> order;
    main().post([&] {
        order.push_back(1);
        main().after(1ms, [&] { order.push_back(2); });
    });
    poll();
    EXPECT_THAT(order, ElementsAre(1));
    computer_.time.sleepFor(1ms);
    // One for the timer, one for the pass.
    poll();
    poll();
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST_F(MacRunLoopTest, SeesATimerThatAnotherSourceHasStarted) {
    bool hasRun = false;
    OtherSource other([&] { main().after(1ms, [&] { hasRun = true; }); });
    other.signal();
    runIn(kCFRunLoopDefaultMode);
    EXPECT_TRUE(hasRun);
}

TEST_F(MacRunLoopTest, SeesATimerThatAnotherTimerHasStarted) {
    bool hasRun = false;
    OtherTimer other(1, [&] { main().after(1ms, [&] { hasRun = true; }); });
    runIn(kCFRunLoopDefaultMode);
    EXPECT_TRUE(hasRun);
}

TEST_F(MacRunLoopTest, HasNoTimerBeforeAnythingIsDue) {
    EXPECT_FALSE(loop_.hasTimer());
    EXPECT_EQ(computer_.mac.runLoop().armedTimers(), 0);
}

TEST_F(MacRunLoopTest, HasNoTimerWithNothingDue) {
    main().after(5ms, [] {});
    EXPECT_EQ(runIn(kCFRunLoopDefaultMode), kCFRunLoopRunFinished);
    EXPECT_FALSE(loop_.hasTimer());
    EXPECT_EQ(computer_.mac.runLoop().armedTimers(), 0);
    const unsigned waits = computer_.mac.runLoop().waits();
    EXPECT_EQ(CFRunLoopRunInMode(kCFRunLoopDefaultMode, 3600, false), kCFRunLoopRunTimedOut);
    EXPECT_EQ(computer_.mac.runLoop().waits(), waits + 1);
}

TEST_F(MacRunLoopTest, WaitsForADistantTimerWithoutWaking) {
    main().after(1h, [] {});
    CFRunLoopRunInMode(kCFRunLoopDefaultMode, 1, false);
    EXPECT_TRUE(loop_.hasTimer());
    EXPECT_EQ(computer_.mac.runLoop().armedTimers(), 1);
    const unsigned waits = computer_.mac.runLoop().waits();
    CFRunLoopRunInMode(kCFRunLoopDefaultMode, 60, false);
    EXPECT_EQ(computer_.mac.runLoop().waits(), waits + 1);
}

TEST_F(MacRunLoopTest, GivesUpTheTimerOfWhatWasCancelled) {
    const auto timer = main().after(1h, [] {});
    OtherSource other([&] { main().cancel(timer); });
    CFRunLoopRunInMode(kCFRunLoopDefaultMode, 1, false);
    ASSERT_TRUE(loop_.hasTimer());
    other.signal();
    CFRunLoopRunInMode(kCFRunLoopDefaultMode, 1, false);
    EXPECT_FALSE(loop_.hasTimer());
    EXPECT_EQ(computer_.mac.runLoop().armedTimers(), 0);
}

TEST_F(MacRunLoopTest, LetsOtherSourcesThroughBetweenPassesThatNeverEnd) {
    int passes = 0;
    int passesBeforeTheOther = 0;
    OtherSource other([&] {
        passesBeforeTheOther = passes;
        end();
    });
    std::function<void()> again = [&] {
        if (++passes == 5) other.signal();
        main().post(again);
    };
    main().post(again);
    runIn(kCFRunLoopDefaultMode);
    EXPECT_GE(passesBeforeTheOther, 5);
    EXPECT_LE(passesBeforeTheOther, 7);
}

TEST_F(MacRunLoopTest, AttachesToTheSameRunLoopAgain) {
    { const MacRunLoop second(computer_.main, computer_.scheduler); }
    bool hasRun = false;
    const MacRunLoop third(computer_.main, computer_.scheduler);
    main().post([&] { hasRun = true; });
    runIn(kCFRunLoopDefaultMode);
    EXPECT_TRUE(hasRun);
}

TEST(MacRunLoop, RunsNothingAnyMoreWhenItHasGone) {
    Computer computer;
    bool hasRun = false;
    { const MacRunLoop loop(computer.main, computer.scheduler); }
    computer.main.poster().post([&] { hasRun = true; });
    EXPECT_EQ(runIn(kCFRunLoopDefaultMode), kCFRunLoopRunFinished);
    EXPECT_FALSE(hasRun);
}

TEST(MacRunLoop, LeavesNothingInTheRunLoopWhenItGoes) {
    Computer computer;
    {
        const MacRunLoop loop(computer.main, computer.scheduler);
        EXPECT_EQ(computer.mac.runLoop().items(), 3);
    }
    EXPECT_EQ(computer.mac.runLoop().items(), 0);
}

class MacRunLoopDeathTest : public test::DeathTest {};

TEST_F(MacRunLoopDeathTest, StopsWhenTheRunLoopDoesNotTakeIt) {
    for (const char* function :
         {"CFRunLoopSourceCreate", "CFRunLoopTimerCreate", "CFRunLoopObserverCreate"}) {
        const auto start = [function] {
            Computer computer;
            computer.mac.calls().failNext(function);
            const MacRunLoop loop(computer.main, computer.scheduler);
        };
        EXPECT_DEATH(start(), "takes no main loop") << function;
    }
}

}  // namespace
}  // namespace vantrel::macos
