// People switch a monitor to another computer and want it back: with every kind
// of monitor that makes this hard.
#include <gtest/gtest.h>

#include "scenarios/Stories.h"
#include "support/ShippedDesk.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;
using test::computersInput;
using test::deskOf;
using test::DeskStory;
using test::monitorPlan;
using test::otherInput;
using test::panelPlan;
using test::shippedDesk;
using test::thirdInput;

// Four seconds of silence, in the middle of which it leaves the bus and the list.
simulated::DisplayPlan slowPlan() {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.inputSwitch = {
        .time = 4s, .silent = true, .pulse = 1800ms, .pulseAfter = 700ms, .returns = {}, .ignored = {}};
    plan.monitor->personality.staleAfterReconfiguration = true;
    return plan;
}

simulated::Desk deskWith(simulated::DisplayPlan alder) { return deskOf({panelPlan(), std::move(alder)}); }

const std::string alderGaveUp =
    "Alder did not return to the Mac's input. Try again or use the monitor's buttons.";

TEST_P(ReturnToMacStory, AGoodMonitorGoesAndComesBack) {
    DeskStory story = at(shippedDesk("default"));
    story.picks(2, 0x11);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.shown(2), 0x11);
    EXPECT_FALSE(story.hasPicture(2));

    story.waits(30min);
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on, returning");
    EXPECT_EQ(story.shown(2), 0x11);
    story.waits(1s);
    EXPECT_EQ(story.shown(2), 0x1B);
    EXPECT_EQ(story.card(2), "on, returning");

    EXPECT_LT(story.waitsForTheSpinnerToEnd(2), 3s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), 0x1B);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, ASlowMonitorThatPulsesKeepsItsSpinnerAllTheWay) {
    DeskStory story = at(deskWith(slowPlan()));
    story.picks(2, otherInput);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.shown(2), 0x0F);
    story.waits(4s);
    EXPECT_EQ(story.shown(2), 0x11);

    story.waits(1h);
    story.turnsOn(2);
    story.waits(1500ms);
    EXPECT_EQ(story.card(2), "on, returning");
    // In the middle of the pulse: off the bus and the list.
    story.waits(1800ms);
    EXPECT_EQ(story.card(2), "none");
    EXPECT_TRUE(story.model(2)->isReturningToMac());
    // And back, while the monitor still is on its way.
    story.waits(1500ms);
    EXPECT_EQ(story.card(2), "on, returning");
    EXPECT_EQ(story.shown(2), 0x11);

    EXPECT_LT(story.waitsForTheSpinnerToEnd(2), 6s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), 0x0F);
    EXPECT_EQ(story.errorText(), "");
}

// Every other of its answers comes too late, so that it takes a while to learn
// where the computer is.
TEST_P(ReturnToMacStory, ASlowMonitorThatAnswersTooLateComesBackToo) {
    DeskStory story = at(shippedDesk("slow"));
    for (int time = 0; time < 5; ++time) {
        story.opensThePopover();
        story.waits(10s);
    }
    ASSERT_EQ(story.model(2)->inputSettings().macInput(), 0x0F);
    story.picks(2, 0x11);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.shown(2), 0x11);
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on, returning");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.shown(2), 0x0F);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, AMonitorThatMisreportsItsInputsComesBackAtOnce) {
    DeskStory story = at(shippedDesk("default"));
    story.picks(3, 0x11);
    story.waits(10s);
    EXPECT_EQ(story.card(3), "off");
    EXPECT_EQ(story.shown(3), 0x11);
    story.turnsOn(3);
    story.waits(1s);
    EXPECT_EQ(story.card(3), "on, returning");
    EXPECT_LT(story.waitsForTheSpinnerToEnd(3), 5s);
    EXPECT_EQ(story.shown(3), 0x0F);
    EXPECT_EQ(story.model(3)->feature(0x60)->current.get(), 0x0F);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, AMonitorWithoutACapabilitiesStringComesBack) {
    DeskStory story = at(shippedDesk("default"));
    story.picks(4, 0x0F);
    story.waits(10s);
    EXPECT_EQ(story.shown(4), 0x0F);
    story.turnsOn(4);
    story.waits(1s);
    EXPECT_LT(story.waitsForTheSpinnerToEnd(4), 5s);
    EXPECT_EQ(story.shown(4), 0x11);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, AMonitorThatBlinksAndGoesBackIsAskedAgain) {
    DeskStory story = at(shippedDesk("stubborn"));
    story.monitor(6).pressInputButton(0x0F);
    story.waits(5s);
    ASSERT_EQ(story.shown(6), 0x0F);
    story.picks(6, 0x11);
    story.waits(10s);
    EXPECT_EQ(story.shown(6), 0x0F);
    EXPECT_EQ(story.card(6), "on, returning");
    EXPECT_EQ(story.errorText(), "");
    story.waitsForTheSpinnerToEnd(6);
    EXPECT_EQ(story.shown(6), 0x11);
    EXPECT_EQ(story.errorText(), "");
    EXPECT_EQ(story.logged("Orlo O24: switching to Mac input 0x11, attempt 2"), 1);
    EXPECT_EQ(story.logged("Orlo O24: switching to Mac input 0x11, attempt 3"), 0);
}

TEST_P(ReturnToMacStory, AMonitorThatReportsTooEarlyAndFallsBackIsFoundOut) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.inputSwitch.ignored.first = 0;
    DeskStory story = at(deskWith(plan));
    story.picks(2, otherInput);
    story.waits(10s);
    story.turnsOn(2);
    // Two readings are right, then it falls back to the other computer.
    story.waits(1500ms + 1500ms);
    story.monitor(2).pressInputButton(otherInput);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "on, returning");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.shown(2), computersInput);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, ADeafMonitorIsGivenUpAndComesBackByItsButton) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.silentOnOtherInputs = true;
    DeskStory story = at(deskWith(plan));
    story.picks(2, otherInput);
    story.waits(10s);
    EXPECT_EQ(story.shown(2), otherInput);

    story.turnsOn(2);
    story.waits(1min);
    EXPECT_EQ(story.card(2), "on, returning");
    EXPECT_EQ(story.errorText(), "");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.errorText(), alderGaveUp);
    EXPECT_EQ(story.shown(2), otherInput);
    EXPECT_EQ(story.card(2), "on");

    // The text says what helps.
    story.monitor(2).pressInputButton(computersInput);
    story.picks(2, computersInput);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), alderGaveUp);
    EXPECT_LT(story.waitsForTheSpinnerToEnd(2), 3s);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, ADeafMonitorWhoseButtonIsPressedInTimeNeedsNoSecondTry) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.silentOnOtherInputs = true;
    DeskStory story = at(deskWith(plan));
    story.picks(2, otherInput);
    story.waits(10s);
    story.turnsOn(2);
    story.waits(30s);
    story.monitor(2).pressInputButton(computersInput);
    EXPECT_LT(story.waitsForTheSpinnerToEnd(2), 5s);
    EXPECT_EQ(story.errorText(), "");
    EXPECT_EQ(story.card(2), "on");
}

TEST_P(ReturnToMacStory, ADeadMonitorHasNoSpinnerAndNoErrorText) {
    DeskStory story = at(shippedDesk("default"));
    story.picks(5, 0x11);
    story.waits(10s);
    EXPECT_EQ(story.card(5), "on");
    EXPECT_EQ(story.errorText(), "");
    EXPECT_TRUE(story.hasPicture(5));
}

TEST_P(ReturnToMacStory, AMonitorThatDiesOnTheWayIsGivenUp) {
    DeskStory story = at(deskWith(monitorPlan(2, "Alder")));
    story.picks(2, otherInput);
    story.waits(10s);
    story.turnsOn(2);
    story.waits(1s);
    story.monitor(2).setPower(simulated::SimulatedMonitor::Power::off);
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.errorText(), alderGaveUp);
    EXPECT_EQ(story.card(2), "on");
}

TEST_P(ReturnToMacStory, AMonitorThatIsUnpluggedOnTheWayIsGivenUp) {
    DeskStory story = at(deskWith(monitorPlan(2, "Alder")));
    story.picks(2, otherInput);
    story.waits(10s);
    story.turnsOn(2);
    story.waits(1s);
    story.computer().unplug(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "none");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.errorText(), alderGaveUp);
    story.computer().plug(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on");
}

TEST_P(ReturnToMacStory, AMonitorThatIsDeafAfterWakingComesBackOnceItHears) {
    DeskStory story = at(shippedDesk("wake"));
    // It wasn't ready when the program started.
    story.asksAgainForControls(3);
    story.waits(10s);
    story.monitor(3).pressInputButton(0x0F);
    story.computer().sleep();
    story.waits(8h);
    story.computer().wake();
    story.waits(1s);
    story.picks(3, 0x11);
    story.waits(20s);
    EXPECT_EQ(story.card(3), "on, returning");
    EXPECT_EQ(story.shown(3), 0x0F);
    story.waitsForTheSpinnerToEnd(3);
    EXPECT_EQ(story.shown(3), 0x11);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, SecondThoughtsWinOverAReturn) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.inputSwitch.time = 4s;
    DeskStory story = at(deskWith(plan));
    story.picks(2, otherInput);
    story.waits(10s);
    story.turnsOn(2);
    story.waits(3s);
    EXPECT_EQ(story.card(2), "on, returning");
    story.picks(2, thirdInput);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "off");
    story.waits(1min);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.shown(2), thirdInput);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(ReturnToMacStory, ClickingAgainAndAgainChangesNothing) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.inputSwitch.time = 4s;
    DeskStory story = at(deskWith(plan));
    story.monitor(2).pressInputButton(otherInput);
    story.waits(10s);
    for (int click = 0; click < 10; ++click) {
        story.picks(2, computersInput);
        story.waits(200ms);
    }
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.shown(2), computersInput);
    EXPECT_EQ(story.logged("Alder: switching to Mac input 0x0F, attempt 1"), 1);
}

TEST_P(ReturnToMacStory, TwoMonitorsComeBackAtTheSameTime) {
    DeskStory story = at(deskOf({panelPlan(), monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    story.picks(2, otherInput);
    story.picks(3, thirdInput);
    story.waits(10s);
    EXPECT_EQ(story.card(2) + " " + story.card(3), "off off");
    story.turnsOn(2);
    story.turnsOn(3);
    story.waits(1s);
    EXPECT_EQ(story.card(2) + "; " + story.card(3), "on, returning; on, returning");
    story.waitsForTheSpinnerToEnd(2);
    story.waitsForTheSpinnerToEnd(3);
    EXPECT_EQ(story.shown(2), computersInput);
    EXPECT_EQ(story.shown(3), computersInput);
    EXPECT_EQ(story.errorText(), "");
}

// On each of these a write alone is not enough.
TEST_P(StubbornMonitorStory, ComesBackWithoutAnError) {
    const auto [make, id] = GetParam();
    DeskStory story(make(shippedDesk("stubborn")));
    const std::uint16_t home = story.shown(id);
    const std::uint16_t away = home == 0x0F ? 0x11 : 0x0F;
    story.picks(id, away);
    story.waits(10s);
    EXPECT_EQ(story.card(id), "off");
    story.turnsOn(id);
    story.waits(1s);
    EXPECT_EQ(story.card(id), "on, returning");
    story.waitsForTheSpinnerToEnd(id);
    EXPECT_EQ(story.shown(id), home);
    EXPECT_EQ(story.card(id), "on");
    EXPECT_EQ(story.errorText(), "");
}

}  // namespace
}  // namespace vantrel
