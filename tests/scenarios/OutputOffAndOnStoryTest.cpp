// People take a monitor away from the computer and give it back.
#include <gtest/gtest.h>

#include "scenarios/Stories.h"
#include "support/ShippedDesk.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;
using simulated::Refusal;
using test::computersInput;
using test::deskOf;
using test::DeskStory;
using test::monitorPlan;
using test::otherInput;
using test::panelPlan;
using test::shippedDesk;

const std::string onlyDisplay = "The Mac's only active display can't be turned off.";
const std::string alderNotBackOn =
    "Couldn't turn Alder back on. If it was disconnected, plug the cable back in.";

TEST_P(OutputOffAndOnStory, AMonitorIsTurnedOffAndOnAgain) {
    DeskStory story = at(test::usualDesk());
    story.turnsOff(2);
    story.waits(10ms);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.card(3), "on");
    EXPECT_FALSE(story.hasPicture(2));
    EXPECT_EQ(story.shown(2), computersInput);

    story.waits(1h);
    story.turnsOn(2);
    story.waits(10ms);
    EXPECT_TRUE(story.hasPicture(2));
    EXPECT_EQ(story.card(2), "off, returning");
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on, returning");
    EXPECT_LT(story.waitsForTheSpinnerToEnd(2), 4s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(OutputOffAndOnStory, AMonitorGoesToItsFocusInput) {
    DeskStory story = at(test::usualDesk());
    story.model(2)->inputSettings().setFocusInput(otherInput);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.shown(2), otherInput);
    story.turnsOn(2);
    story.waits(1s);
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST_P(OutputOffAndOnStory, TheLastDisplayIsNotTurnedOff) {
    DeskStory story = at(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    story.computer().closeLid();
    story.waits(1s);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), onlyDisplay);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_TRUE(story.hasPicture(2));

    story.computer().openLid();
    story.waits(1s);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "");
    EXPECT_EQ(story.card(2), "off");
}

TEST_P(OutputOffAndOnStory, MonitorsAreTurnedOffUntilOneIsLeft) {
    DeskStory story = at(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch"), monitorPlan(4, "Cedar")}));
    for (const platform::DisplayID id : {2U, 3U, 4U}) {
        story.turnsOff(id);
        story.waits(1s);
    }
    EXPECT_EQ(story.card(2) + " " + story.card(3) + " " + story.card(4), "off off on");
    EXPECT_EQ(story.errorText(), onlyDisplay);
}

TEST_P(OutputOffAndOnStory, TheSystemRefusesAndThenDoesNot) {
    DeskStory story = at(test::usualDesk());
    story.computer().refuse(Refusal::complete);
    story.picks(2, otherInput);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "macOS refused to turn the output off for Alder.");
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), otherInput);

    story.computer().refuse(Refusal::nothing);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "");
    EXPECT_EQ(story.card(2), "off");

    story.computer().refuse(Refusal::enable);
    story.turnsOn(2);
    story.waits(5s);
    EXPECT_EQ(story.errorText(), alderNotBackOn);
    EXPECT_EQ(story.card(2), "off");

    story.computer().refuse(Refusal::nothing);
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST_P(OutputOffAndOnStory, AMonitorStaysOffWhenTheProgramIsStartedAgain) {
    DeskStory story = at(test::usualDesk());
    story.picks(2, otherInput);
    story.waits(10s);
    story.quitsAndStartsAgain();
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.model(2)->name(), "Alder");
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on, returning");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST_P(OutputOffAndOnStory, TheCableIsPulledWhileTheMonitorIsOff) {
    DeskStory story = at(test::usualDesk());
    story.turnsOff(2);
    story.waits(10s);
    story.computer().unplug(2);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "off");
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), alderNotBackOn);
    EXPECT_EQ(story.card(2), "off");
    // As the text asks for. The system turns a display on that is plugged in.
    story.computer().plug(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_TRUE(story.stored().empty());
}

TEST_P(OutputOffAndOnStory, AMonitorThatIsGoneForGoodIsForgotten) {
    DeskStory story = at(test::usualDesk());
    story.turnsOff(2);
    story.waits(10s);
    story.computer().unplug(2);
    story.waits(10s);
    story.manager().forget(story.manager().disabled().at(0));
    story.manager().refresh();
    EXPECT_EQ(story.card(2), "none");
    story.quitsAndStartsAgain();
    EXPECT_EQ(story.card(2), "none");
    EXPECT_EQ(story.card(3), "on");
}

TEST_P(OutputOffAndOnStory, ADeadMonitorIsTurnedOffAndOnWithoutItsHelp) {
    DeskStory story = at(shippedDesk("default"));
    const std::string tessera = story.model(5)->name() + " (id " + std::to_string(story.id(5)) + ")";
    story.turnsOff(5);
    story.waits(10s);
    EXPECT_EQ(story.card(5), "off");
    EXPECT_EQ(story.logged("Turning Mac output off for " + tessera + ", switching to nothing"), 1);
    story.turnsOn(5);
    story.waits(1s);
    EXPECT_EQ(story.card(5), "on");
    EXPECT_EQ(story.logged("Turning Mac output back on for " + tessera + ", no Mac input to switch to"), 1);
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(OutputOffAndOnStory, ASlowMonitorThatPulsesIsTurnedOffAtOnce) {
    DeskStory story = at(shippedDesk("slow"));
    story.model(2)->inputSettings().setFocusInput(std::uint16_t{0x12});
    story.turnsOff(2);
    story.waits(400ms);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.shown(2), 0x0F);
    // The pulse and the end of the switch bring no card back.
    for (int second = 0; second < 10; ++second) {
        story.waits(1s);
        EXPECT_EQ(story.card(2), "off");
    }
    EXPECT_EQ(story.shown(2), 0x12);
    story.turnsOn(2);
    story.waits(1s);
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.shown(2), 0x0F);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(OutputOffAndOnStory, AMonitorThatMisreportsItsInputsIsLearnedAsItIsMeant) {
    DeskStory story = at(shippedDesk("default"));
    story.model(3)->inputSettings().setMacInput(std::nullopt);
    story.turnsOff(3);
    story.waits(1s);
    EXPECT_EQ(story.model(3)->inputSettings().macInput(), 0x0F);
    story.turnsOn(3);
    story.waits(1s);
    story.waitsForTheSpinnerToEnd(3);
    EXPECT_EQ(story.card(3), "on");
    EXPECT_EQ(story.errorText(), "");
}

TEST_P(OutputOffAndOnStory, TheComputerSleepsWhileAMonitorIsOff) {
    DeskStory story = at(test::usualDesk());
    story.picks(2, otherInput);
    story.waits(10s);
    story.computer().sleep();
    story.waits(8h);
    story.computer().wake();
    story.waits(10s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.card(3), "on");
    story.turnsOn(2);
    story.waits(1s);
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST_P(OutputOffAndOnStory, SoftwareDimmingComesBackWithTheOutput) {
    DeskStory story = at(test::usualDesk());
    story.model(2)->setControlMode(model::ControlMode::software);
    story.model(2)->dimmer().setBrightness(0.4);
    const auto dimmed = story.computer().table(2);
    story.turnsOff(2);
    story.waits(10s);
    EXPECT_FALSE(story.model(2)->usesSoftwareControls());
    story.turnsOn(2);
    story.waits(10s);
    EXPECT_TRUE(story.model(2)->usesSoftwareControls());
    EXPECT_EQ(story.computer().table(2), dimmed);
}

}  // namespace
}  // namespace vantrel
