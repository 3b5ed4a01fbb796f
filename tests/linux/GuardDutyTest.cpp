#include <algorithm>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "linux/FakeDesktop.h"
#include "linux/FakeGuard.h"
#include "linux/FakeSession.h"
#include "linux/SharedDefaults.h"
#include "platform/linux/GuardDuty.h"
#include "support/RecordingLogSink.h"
#include "support/VirtualLoop.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;

class GuardDutyTest : public testing::Test {
  protected:
    GuardDutyTest() {
        desktop.add(FakeDesktop::outputOf("eDP-1", {}));
        desktop.add(FakeDesktop::outputOf("DP-1", {}));
    }

    // By the program that is guarded.
    void darken(const std::string& output) {
        OutputSwitch program(desktop, session, memory, &guard, platform::Log(sink));
        EXPECT_TRUE(program.darken(output));
    }
    void at(std::chrono::milliseconds time, std::function<void()> event) {
        virtualLoop.loop.after(time, std::move(event));
    }
    bool isLit(const std::string& name) { return desktop.output(name).isLit; }

    test::VirtualLoop virtualLoop;
    test::RecordingLogSink sink;
    FakeDesktop desktop;
    FakeSession session;
    SharedDefaults file;
    SessionMemory memory{file.open(), "fake-:0"};
    FakeGuard guard;
    OutputSwitch outputs{desktop, session, memory, nullptr, platform::Log(sink)};
    std::optional<GuardDuty> duty{std::in_place, desktop, session, outputs, virtualLoop.loop};
};

TEST_F(GuardDutyTest, IsNotNeededWhileNothingIsTurnedOff) {
    EXPECT_FALSE(duty->isNeeded());
    at(1s, [] { ADD_FAILURE() << "still on duty"; });
    duty->run();
    EXPECT_EQ(virtualLoop.elapsed(), 0s);
}

TEST_F(GuardDutyTest, IsNeededWhileAnOutputIsTurnedOff) {
    darken("DP-1");
    EXPECT_TRUE(duty->isNeeded());
}

TEST_F(GuardDutyTest, IsNotNeededOnADesktopThatHasGone) {
    darken("DP-1");
    desktop.vanish();
    EXPECT_FALSE(duty->isNeeded());
}

TEST_F(GuardDutyTest, StaysUntilTheProgramHasLitTheOutput) {
    darken("DP-1");
    at(5s, [this] {
        OutputSwitch program(desktop, session, memory, &guard, platform::Log(sink));
        EXPECT_TRUE(program.light("DP-1"));
        desktop.changed();
    });
    at(6s, [] { ADD_FAILURE() << "still on duty"; });
    duty->run();
    EXPECT_EQ(virtualLoop.elapsed(), 5s);
    EXPECT_FALSE(duty->isNeeded());
}

TEST_F(GuardDutyTest, StaysUntilSomebodyElseHasLitIt) {
    darken("DP-1");
    at(5s, [this] {
        desktop.output("DP-1").isLit = true;
        desktop.changed();
    });
    at(6s, [] { ADD_FAILURE() << "still on duty"; });
    duty->run();
    EXPECT_EQ(virtualLoop.elapsed(), 5s);
}

TEST_F(GuardDutyTest, StaysUntilTheDesktopGoes) {
    darken("DP-1");
    at(5s, [this] { desktop.vanish(); });
    at(6s, [] { ADD_FAILURE() << "still on duty"; });
    duty->run();
    EXPECT_EQ(virtualLoop.elapsed(), 5s);
}

TEST_F(GuardDutyTest, LightsAtOnceWhatItFindsDark) {
    darken("DP-1");
    desktop.unplug("eDP-1");
    desktop.output("DP-1").isLit = false;
    memory.noteDarkened("DP-1", "as it was");
    duty->run();
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(desktop.output("DP-1").place, "as it was");
    EXPECT_FALSE(duty->isNeeded());
}

TEST_F(GuardDutyTest, LightsWhenTheLastOneIsUnplugged) {
    darken("eDP-1");
    at(5s, [this] { desktop.unplug("DP-1"); });
    duty->run();
    EXPECT_TRUE(isLit("eDP-1"));
    EXPECT_EQ(virtualLoop.elapsed(), 5s);
}

TEST_F(GuardDutyTest, LightsWhenTheLidCloses) {
    darken("DP-1");
    at(5s, [this] { session.closeLid(); });
    duty->run();
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(virtualLoop.elapsed(), 5s);
}

TEST_F(GuardDutyTest, StaysWhileNoMonitorIsPluggedIn) {
    darken("DP-1");
    at(5s, [this] {
        desktop.unplug("DP-1");
        desktop.unplug("eDP-1");
    });
    at(9s, [this] {
        desktop.output("DP-1").isConnected = true;
        desktop.changed();
    });
    duty->run();
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(virtualLoop.elapsed(), 9s);
}

TEST_F(GuardDutyTest, TriesAgainWhereTheDesktopRefusedTheLight) {
    darken("DP-1");
    at(5s, [this] {
        desktop.refuses = true;
        desktop.unplug("eDP-1");
    });
    at(7500ms, [this] { desktop.refuses = false; });
    duty->run();
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(virtualLoop.elapsed(), 8s);
    EXPECT_EQ(std::ranges::count(desktop.calls, "light DP-1 1920x1080+0+0"), 4);
}

TEST_F(GuardDutyTest, TriesAgainFromTheFirstLookOn) {
    darken("DP-1");
    desktop.refuses = true;
    desktop.output("eDP-1").isConnected = false;
    at(500ms, [this] { desktop.refuses = false; });
    duty->run();
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(virtualLoop.elapsed(), 1s);
}

TEST_F(GuardDutyTest, TriesNoMoreOnceItIsGone) {
    darken("DP-1");
    desktop.refuses = true;
    desktop.output("eDP-1").isConnected = false;
    virtualLoop.loop.after(0s, [this] { virtualLoop.loop.quit(); });
    duty->run();
    desktop.refuses = false;
    duty.reset();
    virtualLoop.loop.run();
    desktop.changed();
    session.closeLid();
    EXPECT_FALSE(isLit("DP-1"));
}

// Whoever turned an output off found the guard there; it must not leave then.
TEST_F(GuardDutyTest, StaysForAnOutputThatIsJustAboutToBeTurnedOff) {
    memory.noteDarkened("DP-1", "as it was");
    at(5s, [this] {
        desktop.changed();
        desktop.darken("DP-1");
    });
    at(6s, [this] { desktop.unplug("eDP-1"); });
    duty->run();
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(virtualLoop.elapsed(), 6s);
}

}  // namespace
}  // namespace vantrel::linux
