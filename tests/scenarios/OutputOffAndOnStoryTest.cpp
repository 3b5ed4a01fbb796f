// People take a monitor away from the computer and give it back.
#include <gtest/gtest.h>

#include "support/DeskStory.h"
#include "support/ModelRig.h"

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

TEST(OutputOffAndOnStory, AMonitorIsTurnedOffAndOnAgain) {
    DeskStory story(test::usualDesk());
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

TEST(OutputOffAndOnStory, AMonitorGoesToItsFocusInput) {
    DeskStory story(test::usualDesk());
    story.rig.display(2)->inputSettings().setFocusInput(otherInput);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.shown(2), otherInput);
    story.turnsOn(2);
    story.waits(1s);
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST(OutputOffAndOnStory, TheLastDisplayIsNotTurnedOff) {
    DeskStory story(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    story.rig.world().closeLid();
    story.waits(1s);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), onlyDisplay);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_TRUE(story.hasPicture(2));

    story.rig.world().openLid();
    story.waits(1s);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "");
    EXPECT_EQ(story.card(2), "off");
}

TEST(OutputOffAndOnStory, MonitorsAreTurnedOffUntilOneIsLeft) {
    DeskStory story(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch"), monitorPlan(4, "Cedar")}));
    for (const platform::DisplayID id : {2U, 3U, 4U}) {
        story.turnsOff(id);
        story.waits(1s);
    }
    EXPECT_EQ(story.card(2) + " " + story.card(3) + " " + story.card(4), "off off on");
    EXPECT_EQ(story.errorText(), onlyDisplay);
}

TEST(OutputOffAndOnStory, TheSystemRefusesAndThenDoesNot) {
    DeskStory story(test::usualDesk());
    story.rig.simulated.refuse(Refusal::complete);
    story.picks(2, otherInput);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "macOS refused to turn the output off for Alder.");
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), otherInput);

    story.rig.simulated.refuse(Refusal::nothing);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "");
    EXPECT_EQ(story.card(2), "off");

    story.rig.simulated.refuse(Refusal::enable);
    story.turnsOn(2);
    story.waits(5s);
    EXPECT_EQ(story.errorText(), alderNotBackOn);
    EXPECT_EQ(story.card(2), "off");

    story.rig.simulated.refuse(Refusal::nothing);
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), "");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST(OutputOffAndOnStory, AMonitorStaysOffWhenTheProgramIsStartedAgain) {
    DeskStory story(test::usualDesk());
    story.picks(2, otherInput);
    story.waits(10s);
    story.quitsAndStartsAgain();
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.rig.display(2)->name(), "Alder");
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on, returning");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST(OutputOffAndOnStory, TheCableIsPulledWhileTheMonitorIsOff) {
    DeskStory story(test::usualDesk());
    story.turnsOff(2);
    story.waits(10s);
    story.rig.world().unplug(2);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "off");
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.errorText(), alderNotBackOn);
    EXPECT_EQ(story.card(2), "off");
    // As the text asks for. The system turns a display on that is plugged in.
    story.rig.world().plug(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_TRUE(story.rig.stored().empty());
}

TEST(OutputOffAndOnStory, AMonitorThatIsGoneForGoodIsForgotten) {
    DeskStory story(test::usualDesk());
    story.turnsOff(2);
    story.waits(10s);
    story.rig.world().unplug(2);
    story.waits(10s);
    story.rig.manager->forget(story.rig.manager->disabled().at(0));
    story.rig.manager->refresh();
    EXPECT_EQ(story.card(2), "none");
    story.quitsAndStartsAgain();
    EXPECT_EQ(story.card(2), "none");
    EXPECT_EQ(story.card(3), "on");
}

TEST(OutputOffAndOnStory, ADeadMonitorIsTurnedOffAndOnWithoutItsHelp) {
    DeskStory story(shippedDesk("default"));
    story.turnsOff(5);
    story.waits(10s);
    EXPECT_EQ(story.card(5), "off");
    EXPECT_EQ(
        story.rig.log.moments("Turning Mac output off for Tessera T22 Panel (id 5), switching to nothing")
            .size(),
        1U);
    story.turnsOn(5);
    story.waits(1s);
    EXPECT_EQ(story.card(5), "on");
    EXPECT_EQ(
        story.rig.log
            .moments("Turning Mac output back on for Tessera T22 Panel (id 5), no Mac input to switch to")
            .size(),
        1U);
    EXPECT_EQ(story.errorText(), "");
}

TEST(OutputOffAndOnStory, ASlowMonitorThatPulsesIsTurnedOffAtOnce) {
    DeskStory story(shippedDesk("slow"));
    story.rig.display(2)->inputSettings().setFocusInput(std::uint16_t{0x12});
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

TEST(OutputOffAndOnStory, AMonitorThatMisreportsItsInputsIsLearnedAsItIsMeant) {
    DeskStory story(shippedDesk("default"));
    story.rig.display(3)->inputSettings().setMacInput(std::nullopt);
    story.turnsOff(3);
    story.waits(1s);
    EXPECT_EQ(story.rig.display(3)->inputSettings().macInput(), 0x0F);
    story.turnsOn(3);
    story.waits(1s);
    story.waitsForTheSpinnerToEnd(3);
    EXPECT_EQ(story.card(3), "on");
    EXPECT_EQ(story.errorText(), "");
}

TEST(OutputOffAndOnStory, TheComputerSleepsWhileAMonitorIsOff) {
    DeskStory story(test::usualDesk());
    story.picks(2, otherInput);
    story.waits(10s);
    story.rig.world().sleep();
    story.waits(8h);
    story.rig.world().wake();
    story.waits(10s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(story.card(3), "on");
    story.turnsOn(2);
    story.waits(1s);
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), computersInput);
}

TEST(OutputOffAndOnStory, SoftwareDimmingComesBackWithTheOutput) {
    DeskStory story(test::usualDesk());
    story.rig.display(2)->setControlMode(model::ControlMode::software);
    story.rig.display(2)->dimmer().setBrightness(0.4);
    const auto dimmed = story.rig.displays.transferTable(2, 256);
    story.turnsOff(2);
    story.waits(10s);
    EXPECT_FALSE(story.rig.display(2)->usesSoftwareControls());
    story.turnsOn(2);
    story.waits(10s);
    EXPECT_TRUE(story.rig.display(2)->usesSoftwareControls());
    EXPECT_EQ(story.rig.displays.transferTable(2, 256), dimmed);
}

}  // namespace
}  // namespace vantrel
