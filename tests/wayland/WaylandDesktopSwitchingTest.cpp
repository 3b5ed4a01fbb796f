#include <gmock/gmock.h>

#include "wayland/WaylandRig.h"

namespace vantrel::wayland {
namespace {

using Answer = MockDesk::Answer;

// With the protocol of wlroots, and with KDE's.
class WaylandDesktopSwitchingTest : public WaylandRig, public testing::WithParamInterface<bool> {
  protected:
    WaylandDesktopSwitchingTest() : WaylandRig({4, true, !GetParam(), GetParam()}) {}

    // "wayland ... vrr=0" with KDE's.
    static std::string line(const std::string& shape) { return shape + (GetParam() ? " vrr=0" : ""); }
    void answer(std::deque<Answer> answers) {
        compositor.run([&](MockDesk& desk) { desk.answers = answers; });
    }
    int configurations() {
        int count = 0;
        compositor.run([&](MockDesk& desk) { count = desk.configurations; });
        return count;
    }
};

TEST_P(WaylandDesktopSwitchingTest, CanSwitch) { EXPECT_TRUE(desktop->canSwitch()); }

TEST_P(WaylandDesktopSwitchingTest, TurnsOneOutputOffAndLeavesTheOther) {
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").state = {true, 1, 1920, 50, 3, 384, 0}; });
    ASSERT_TRUE(desktop->darken("DP-1"));
    EXPECT_FALSE(output("DP-1").isLit);
    EXPECT_TRUE(output("DP-1").isConnected);
    EXPECT_EQ(output("DP-1").place, "");
    EXPECT_FALSE(compositor.monitor("DP-1").state.isEnabled);
    EXPECT_EQ(compositor.monitor("DP-2").state, (MockMonitor::State{true, 1, 1920, 50, 3, 384, 0}));
}

TEST_P(WaylandDesktopSwitchingTest, HasNoTableWhileAnOutputIsOff) {
    ASSERT_TRUE(desktop->darken("DP-1"));
    waitUntil([&] { return output("DP-1").tableCapacity == 0; });
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
    ASSERT_TRUE(desktop->light("DP-1", std::nullopt));
    waitUntil([&] { return output("DP-1").tableCapacity == 256; });
    EXPECT_TRUE(desktop->setTable("DP-1", dimmed()));
}

TEST_P(WaylandDesktopSwitchingTest, LightsAnOutputAsItWas) {
    const MockMonitor::State state{true, 1, -1080, 17, 1, 384, GetParam() ? 2U : 0U};
    compositor.change([&](MockDesk& desk) { desk.monitor("DP-1").state = state; });
    const auto arrangement = desktop->arrangement("DP-1");
    ASSERT_TRUE(arrangement);
    EXPECT_EQ(arrangement->find('\n'), std::string::npos);
    ASSERT_TRUE(desktop->darken("DP-1"));
    // The compositor has forgotten.
    compositor.change([](MockDesk& desk) { desk.monitor("DP-1").state = {false, 0, 0, 0, 0, 256, 0}; });
    // It is another run of the program that brings it back.
    desktop = open("");
    ASSERT_TRUE(desktop->light("DP-1", arrangement));
    EXPECT_EQ(compositor.monitor("DP-1").state, state);
    EXPECT_EQ(desktop->arrangement("DP-1"), arrangement);
}

TEST_P(WaylandDesktopSwitchingTest, HasNoArrangementOfAnOutputThatIsOff) {
    ASSERT_TRUE(desktop->darken("DP-1"));
    EXPECT_EQ(desktop->arrangement("DP-1"), std::nullopt);
    EXPECT_EQ(desktop->arrangement("DP-9"), std::nullopt);
}

TEST_P(WaylandDesktopSwitchingTest, LightsANewcomerToTheRightInItsPreferredMode) {
    compositor.change([](MockDesk& desk) {
        desk.monitor("DP-1").state = {false, 1, 0, 0, 0, 256, 0};
        desk.monitor("DP-2").state = {true, 0, 100, 0, 0, 512, 0};
    });
    ASSERT_TRUE(desktop->light("DP-1", std::nullopt));
    EXPECT_EQ(compositor.monitor("DP-1").state, (MockMonitor::State{true, 0, 1060, 0, 0, 256, 0}));
    EXPECT_EQ(compositor.monitor("DP-2").state, (MockMonitor::State{true, 0, 100, 0, 0, 512, 0}));
}

TEST_P(WaylandDesktopSwitchingTest, TakesTheFirstModeWhereNoneIsPreferred) {
    compositor.change([](MockDesk& desk) {
        desk.monitors.push_back(std::make_unique<MockMonitor>("DP-3"));
        desk.monitors.back()->modes = {{800, 600, 0, false}, {640, 480, 60000, false}};
        desk.monitors.back()->state = {false, 1, 0, 0, 0, 256, 0};
    });
    waitUntil([&] { return names().size() == 3; });
    ASSERT_TRUE(desktop->light("DP-3", std::nullopt));
    EXPECT_EQ(compositor.monitor("DP-3").state.mode, 0U);
}

TEST_P(WaylandDesktopSwitchingTest, TakesNoModeWithoutASize) {
    compositor.change([](MockDesk& desk) {
        desk.monitors.push_back(std::make_unique<MockMonitor>("DP-3"));
        desk.monitors.back()->modes = {{0, 0, 0, false}, {640, 480, 60000, false}};
        desk.monitors.back()->state = {false, 0, 0, 0, 0, 256, 0};
    });
    waitUntil([&] { return names().size() == 3; });
    ASSERT_TRUE(desktop->light("DP-3", std::nullopt));
    EXPECT_EQ(compositor.monitor("DP-3").state.mode, 1U);
}

TEST_P(WaylandDesktopSwitchingTest, TreatsAMonitorWithoutTheOldModeAsANewcomer) {
    ASSERT_TRUE(desktop->darken("DP-1"));
    ASSERT_TRUE(desktop->light("DP-1", "wayland mode=640x480@60000 position=7,7 transform=2 scale=512"));
    EXPECT_EQ(compositor.monitor("DP-1").state, (MockMonitor::State{true, 0, 3840, 0, 0, 256, 0}));
}

TEST_P(WaylandDesktopSwitchingTest, TreatsAnUnreadableArrangementAsNone) {
    ASSERT_TRUE(desktop->darken("DP-1"));
    ASSERT_TRUE(desktop->light("DP-1", "x11 1920x1080"));
    EXPECT_EQ(compositor.monitor("DP-1").state.x, 3840);
}

TEST_P(WaylandDesktopSwitchingTest, LightsAnOutputAfreshWhenItsArrangementIsRefused) {
    const auto arrangement = desktop->arrangement("DP-1");
    ASSERT_TRUE(desktop->darken("DP-1"));
    answer({Answer::fail});
    ASSERT_TRUE(desktop->light("DP-1", arrangement));
    EXPECT_EQ(compositor.monitor("DP-1").state.x, 3840);
    EXPECT_EQ(configurations(), 3);
}

TEST_P(WaylandDesktopSwitchingTest, SaysSoWhenTheCompositorRefuses) {
    answer({Answer::fail});
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_TRUE(output("DP-1").isLit);
    EXPECT_EQ(configurations(), 1);
    EXPECT_TRUE(desktop->darken("DP-1"));
}

TEST_P(WaylandDesktopSwitchingTest, RefusesAnOutputThatIsNotThere) {
    EXPECT_FALSE(desktop->darken("DP-9"));
    EXPECT_FALSE(desktop->light("DP-9", std::nullopt));
    compositor.change([](MockDesk& desk) { desk.monitor("DP-1").isPlugged = false; });
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_EQ(configurations(), 0);
}

TEST_P(WaylandDesktopSwitchingTest, GivesUpOnACompositorThatDoesNotAnswer) {
    answer({Answer::keep});
    clock.hurry();
    EXPECT_FALSE(desktop->darken("DP-1"));
    clock.calmDown();
    // A late answer is no answer, but what it did is seen.
    compositor.run([](MockDesk& desk) { desk.release(Answer::succeed); });
    waitUntil([&] { return compositor.monitor("DP-1").state.isEnabled == output("DP-1").isLit; });
    EXPECT_FALSE(output("DP-1").isLit);
}

// Whoever takes it for lit doesn't note it, and it goes dark without anybody knowing why.
TEST_P(WaylandDesktopSwitchingTest, ReliesOnNoOutputThatMayBeTurnedOffAnyMoment) {
    const auto arrangement = desktop->arrangement("DP-1");
    answer({Answer::keep});
    clock.hurry();
    EXPECT_FALSE(desktop->darken("DP-1"));
    clock.calmDown();
    EXPECT_FALSE(output("DP-1").isLit);
    EXPECT_TRUE(output("DP-2").isLit);
    compositor.run([](MockDesk& desk) { desk.release(Answer::fail); });
    waitForChange([&] { return output("DP-1").isLit; });
    EXPECT_EQ(desktop->arrangement("DP-1"), arrangement);
}

TEST_P(WaylandDesktopSwitchingTest, BelievesTheAnswerToALaterQuestion) {
    answer({Answer::keep});
    clock.hurry();
    EXPECT_FALSE(desktop->darken("DP-1"));
    clock.calmDown();
    EXPECT_TRUE(desktop->light("DP-1", std::nullopt));
    EXPECT_TRUE(output("DP-1").isLit);
}

TEST_P(WaylandDesktopSwitchingTest, DoesNotAskForSomethingElseWhileAnAnswerIsOwed) {
    const auto arrangement = desktop->arrangement("DP-1");
    ASSERT_TRUE(desktop->darken("DP-1"));
    answer({Answer::keep});
    clock.hurry();
    EXPECT_FALSE(desktop->light("DP-1", arrangement));
    clock.calmDown();
    EXPECT_EQ(configurations(), 2);
}

TEST_P(WaylandDesktopSwitchingTest, WaitsForASleepingCompositorNoLongerThanAMoment) {
    compositor.pause();
    clock.hurry();
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
    EXPECT_EQ(names().size(), 2U);
    clock.calmDown();
    compositor.goOn();
    waitUntil([&] { return !output("DP-1").isLit; });
}

INSTANTIATE_TEST_SUITE_P(Protocols, WaylandDesktopSwitchingTest, testing::Bool(),
                         [](const auto& info) { return info.param ? "KDE" : "Wlr"; });

class WlrDesktopSwitchingTest : public WaylandDesktopSwitchingTest {};
INSTANTIATE_TEST_SUITE_P(Protocols, WlrDesktopSwitchingTest, testing::Values(false),
                         [](const auto&) { return "Wlr"; });

TEST_P(WlrDesktopSwitchingTest, TriesAgainWithWhatIsNewWhenItWasOutdated) {
    answer({Answer::cancel, Answer::cancel});
    EXPECT_TRUE(desktop->darken("DP-1"));
    EXPECT_EQ(configurations(), 3);
    EXPECT_FALSE(output("DP-1").isLit);
}

TEST_P(WlrDesktopSwitchingTest, DoesNotTryForEver) {
    answer(std::deque<Answer>(100, Answer::cancel));
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_EQ(configurations(), 4);
    EXPECT_TRUE(output("DP-1").isLit);
}

TEST_P(WlrDesktopSwitchingTest, CanNotSwitchAnyMoreWhenTheCompositorHasFinishedWithIt) {
    compositor.finishWlr();
    EXPECT_TRUE(output("DP-1").isLit);
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_FALSE(desktop->canSwitch());
    EXPECT_EQ(desktop->arrangement("DP-1"), std::nullopt);
}

class KDEDesktopSwitchingTest : public WaylandDesktopSwitchingTest {};
INSTANTIATE_TEST_SUITE_P(Protocols, KDEDesktopSwitchingTest, testing::Values(true),
                         [](const auto&) { return "KDE"; });

TEST_P(KDEDesktopSwitchingTest, TellsTheEDID) {
    compositor.change([](MockDesk& desk) {
        desk.monitors.push_back(std::make_unique<MockMonitor>("DP-3"));
        desk.monitors.back()->edid = "AP///////wA=";
        desk.monitors.push_back(std::make_unique<MockMonitor>("DP-4"));
        desk.monitors.back()->edid = "no base64";
    });
    waitUntil([&] { return names().size() == 4; });
    EXPECT_THAT(output("DP-3").edid, testing::ElementsAre(0, 255, 255, 255, 255, 255, 255, 0));
    EXPECT_TRUE(output("DP-4").edid.empty());
    EXPECT_TRUE(output("DP-1").edid.empty());
}

}  // namespace
}  // namespace vantrel::wayland
