#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>

#include "ServerTest.h"

namespace vantrel::randr {
namespace {

// Counts what comes from the server without being asked for.
class CountingDescriptors : public linux::Descriptors {
  public:
    explicit CountingDescriptors(linux::Descriptors& real) : real_(real) {}
    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> ready) override {
        return real_.watch(descriptor, [this, ready = std::move(ready)] {
            ++wakes;
            ready();
        });
    }

    int wakes = 0;

  private:
    linux::Descriptors& real_;
};

class RandRDesktopChangesTest : public ServerTest {
  protected:
    RandRDesktopChangesTest() {
        other.setProperty("DUMMY1", "EDID", {1});
        desktop = RandRDesktop::open(display, counting, loop);
        desktop->onChange([this] {
            ++told;
            if (!isSettling) loop.quit();
        });
        settle();
        told = 0;
    }
    // Until all that the server has to say by now has been told.
    void settle() {
        isSettling = true;
        loop.runFor(std::chrono::milliseconds(50));
        isSettling = false;
    }

    CountingDescriptors counting{descriptors};
    int told = 0;
    bool isSettling = false;
};

TEST_F(RandRDesktopChangesTest, ToldOfAnOutputThatAnotherClientTurnsOff) {
    xrandr.expect("--output DUMMY1 --off");
    EXPECT_EQ(told, 0);
    run();
    EXPECT_FALSE(output("DUMMY1").isLit);
}

TEST_F(RandRDesktopChangesTest, ToldOfAnotherMode) {
    const std::string before = output("DUMMY2").place;
    xrandr.expect("--output DUMMY2 --mode 1920x1080");
    run();
    EXPECT_NE(output("DUMMY2").place, before);
}

TEST_F(RandRDesktopChangesTest, ToldOfAnotherMonitorInTheSameMode) {
    other.setProperty("DUMMY1", "EDID", {1, 2, 3});
    run();
    EXPECT_EQ(output("DUMMY1").edid.size(), 3U);
}

TEST_F(RandRDesktopChangesTest, ToldOfItsOwnCallsOnlyAfterThem) {
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    EXPECT_EQ(told, 0);
    run();
    EXPECT_TRUE(desktop->light("DUMMY1", std::nullopt));
    EXPECT_EQ(told, 1);
    run();
    EXPECT_EQ(told, 2);
}

TEST_F(RandRDesktopChangesTest, ToldOfWhatCameWhileAnAnswerWasWaitedFor) {
    xrandr.expect("--output DUMMY1 --off");
    // From here on the events are in memory, and nothing is left to be read.
    EXPECT_FALSE(output("DUMMY1").isLit);
    EXPECT_EQ(told, 0);
    run();
}

TEST_F(RandRDesktopChangesTest, ToldOnceOfManyEvents) {
    EXPECT_TRUE(desktop->darken("DUMMY2"));
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    settle();
    EXPECT_EQ(told, 1);
}

TEST_F(RandRDesktopChangesTest, NotToldOfWhatNobodyCanSee) {
    other.setProperty("DUMMY1", "Backlight", {1, 2, 3});
    EXPECT_TRUE(desktop->setTable("DUMMY1", table(0.5)));
    const auto arrangement = desktop->arrangement("DUMMY1");
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    EXPECT_TRUE(desktop->light("DUMMY1", arrangement));
    settle();
    EXPECT_EQ(told, 0);
}

TEST_F(RandRDesktopChangesTest, TheListenerMayMakeCalls) {
    desktop->onChange([this] {
        ++told;
        if (!output("DUMMY1").isLit) {
            EXPECT_TRUE(desktop->light("DUMMY1", std::nullopt));
        } else {
            loop.quit();
        }
    });
    xrandr.expect("--output DUMMY1 --off");
    run();
    EXPECT_TRUE(output("DUMMY1").isLit);
    EXPECT_EQ(told, 2);
}

TEST_F(RandRDesktopChangesTest, TheListenerMayEndTheDesktop) {
    desktop->onChange([this] {
        desktop.reset();
        loop.quit();
    });
    xrandr.expect("--output DUMMY1 --off");
    run();
    EXPECT_EQ(desktop, nullptr);
}

TEST_F(RandRDesktopChangesTest, AListenerThatWasTakenBackHearsNothing) {
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    desktop->onChange({});
    settle();
    EXPECT_EQ(told, 0);
}

TEST_F(RandRDesktopChangesTest, NothingIsToldByADesktopThatHasGone) {
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    desktop.reset();
    settle();
    EXPECT_EQ(told, 0);
}

TEST_F(RandRDesktopChangesTest, NothingHappensWhileNothingChanges) {
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    settle();
    counting.wakes = 0;
    // Nothing is due, so that nothing can be asked.
    EXPECT_EQ(loop.nextDue(), std::nullopt);
    loop.runFor(std::chrono::milliseconds(200));
    EXPECT_EQ(counting.wakes, 0);
    EXPECT_EQ(loop.nextDue(), std::nullopt);
}

}  // namespace
}  // namespace vantrel::randr
