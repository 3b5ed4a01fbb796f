// People turn outputs off and on, and nobody is left in the dark.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "linux/LinuxScenario.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;

class LinuxOutputScenario : public LinuxScenario {
  protected:
    using LinuxScenario::LinuxScenario;
};
// No panel: two monitors are all there is.
class LinuxTwoMonitorsScenario : public LinuxScenario {
  protected:
    LinuxTwoMonitorsScenario()
        : LinuxScenario(test::deskOf({test::monitorPlan(2, "Alder"), test::monitorPlan(3, "Birch")})) {}
};
class LinuxLaptopScenario : public LinuxScenario {
  protected:
    LinuxLaptopScenario() : LinuxScenario(test::deskOf({test::panelPlan(), test::monitorPlan(2, "Alder")})) {}
};

TEST_F(LinuxOutputScenario, WhatIsTurnedOffIsNotedAndGuarded) {
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(hardware().guard.posts, 1U);
    EXPECT_THAT(memory().darkened(), ElementsAre(Key(outputName(2))));
    story.turnsOn(2);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_THAT(memory().darkened(), IsEmpty());
}

TEST_F(LinuxOutputScenario, WithoutAGuardNothingIsTurnedOff) {
    hardware().guard.comes = false;
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_TRUE(story.hasPicture(2));
    EXPECT_EQ(story.card(2), "on");
    EXPECT_NE(story.errorText(), "");
    EXPECT_THAT(memory().darkened(), IsEmpty());
    EXPECT_THAT(story.stored(), IsEmpty());
}

TEST_F(LinuxOutputScenario, AnOutputComesBackWhereItWas) {
    computer.output(2).place = "1920x1080+7+9";
    story.turnsOff(2);
    story.waits(1s);
    story.quitsAndStartsAgain();
    EXPECT_FALSE(story.hasPicture(2));
    EXPECT_EQ(story.card(2), "off");
    EXPECT_EQ(hardware().guard.posts, 2U);
    story.turnsOn(2);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(computer.output(2).place, "1920x1080+7+9");
}

TEST_F(LinuxOutputScenario, TheDesktopsOwnSettingsTurnItOnAgain) {
    story.turnsOff(2);
    story.waits(1s);
    desktop().light(outputName(2), std::nullopt);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_THAT(story.stored(), IsEmpty());
    EXPECT_THAT(memory().darkened(), IsEmpty());
}

TEST_F(LinuxOutputScenario, ADesktopThatCannotTurnOutputsOffOnlySwitchesTheInput) {
    desktop().refuses = true;
    story.picks(2, test::otherInput);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.shown(2), test::otherInput);
    EXPECT_THAT(memory().darkened(), IsEmpty());
}

TEST_F(LinuxTwoMonitorsScenario, TheLastOneStaysLit) {
    story.turnsOff(2);
    story.waits(1s);
    story.turnsOff(3);
    story.waits(1s);
    EXPECT_EQ(story.card(2) + " " + story.card(3), "off on");
    EXPECT_NE(story.errorText(), "");
    EXPECT_TRUE(story.hasPicture(3));
}

// Another program turns Birch off in the middle of it, and the desktop tells nobody before.
TEST_F(LinuxTwoMonitorsScenario, OneStaysLitWhoeverTurnsTheOtherOff) {
    desktop().meanwhile = [this] { computer.output(3).isLit = false; };
    story.turnsOff(2);
    story.waits(10s);
    EXPECT_TRUE(story.hasPicture(2));
    EXPECT_EQ(story.card(2), "on");
    EXPECT_THAT(memory().darkened(), IsEmpty());
}

TEST_F(LinuxTwoMonitorsScenario, TheOneThatIsOffComesOnWhenTheOtherIsUnplugged) {
    story.turnsOff(2);
    story.waits(1min);
    hardware().unplug(3);
    story.waits(2s);
    EXPECT_TRUE(story.hasPicture(2));
    EXPECT_EQ(story.card(2), "on");
    EXPECT_EQ(story.card(3), "none");
    EXPECT_THAT(story.stored(), IsEmpty());
    // It can be dealt with as before.
    hardware().plug(3);
    story.waits(2s);
    story.turnsOff(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2) + " " + story.card(3), "off on");
}

TEST_F(LinuxTwoMonitorsScenario, ABusyDesktopIsAskedForLightUntilItGivesIt) {
    story.turnsOff(2);
    story.waits(1min);
    desktop().refuses = true;
    hardware().unplug(3);
    story.waits(1min);
    EXPECT_FALSE(story.hasPicture(2));
    desktop().refuses = false;
    story.waits(2s);
    EXPECT_TRUE(story.hasPicture(2));
    EXPECT_EQ(story.card(2), "on");
}

TEST_F(LinuxLaptopScenario, TheMonitorThatIsOffComesOnWhenTheLidIsClosed) {
    story.turnsOff(2);
    story.waits(1min);
    hardware().session.closeLid();
    story.waits(2s);
    EXPECT_TRUE(story.hasPicture(2));
    EXPECT_EQ(story.card(2), "on");
    hardware().session.openLid();
    story.waits(2s);
    EXPECT_EQ(story.card(2), "on");
}

TEST_F(LinuxLaptopScenario, TheOnlyMonitorStaysLitWithTheLidClosed) {
    hardware().session.closeLid();
    story.waits(2s);
    story.turnsOff(2);
    story.waits(2s);
    EXPECT_TRUE(story.hasPicture(2));
    EXPECT_NE(story.errorText(), "");
}

}  // namespace
}  // namespace vantrel::linux
