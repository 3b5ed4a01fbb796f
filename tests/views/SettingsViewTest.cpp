#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/SettingsView.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using namespace std::chrono_literals;
using test::deskOf;
using test::ViewRig;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const std::string switchOn = "switch \"Open at Login\" on, key \"login\"";
const std::string switchOff = "switch \"Open at Login\" off, key \"login\"";
const std::string refused = "text \"Operation not permitted\" warning, key \"login error\"";

std::vector<std::string> sectionsOf(const ViewRig& view) {
    std::vector<std::string> keys;
    const ui::Node form = view.tree();
    for (const ui::Node& section : form.children) keys.push_back(section.id);
    return keys;
}

// The form

TEST(SettingsView, WithoutAMonitorIsTheProgramsOwn) {
    ViewRig view(deskOf({test::panelPlan()}));
    view.showSettings();
    EXPECT_EQ(view.outline(),
              "form\n"
              "  section \"General\", key \"general\"\n"
              "    switch \"Open at Login\" off, key \"login\"\n"
              "  section, key \"no display\"\n"
              "    text \"Connect an external monitor to set it up.\" secondary\n");
}

TEST(SettingsView, HasAWidthAndBoundsOfItsHeight) {
    ViewRig view;
    view.showSettings();
    EXPECT_EQ(view.tree().layout, (ui::Layout{.width = 460, .minimumHeight = 360, .maximumHeight = 720}));
}

TEST(SettingsView, HasASectionForEachMonitorInTheSystemsOrder) {
    ViewRig view(deskOf({test::monitorPlan(5, "Cedar"), test::panelPlan(), test::monitorPlan(2, "Alder")}));
    view.showSettings();
    EXPECT_THAT(sectionsOf(view), ElementsAre("general", "display 5", "display 2"));
    EXPECT_EQ(std::get<ui::Section>(view.keyed("display 5").element).title, "Cedar");
}

TEST(SettingsView, FollowsTheMonitorsThatComeAndGo) {
    ViewRig view;
    view.showSettings();
    view.rig.world().unplug(2);
    view.runFor(10s);
    EXPECT_THAT(sectionsOf(view), ElementsAre("general", "display 3"));
    view.rig.world().unplug(3);
    view.runFor(10s);
    EXPECT_THAT(sectionsOf(view), ElementsAre("general", "no display"));
}

TEST(SettingsView, HasNoSectionForAMonitorThatIsOff) {
    ViewRig view;
    view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
    view.runFor(10s);
    view.showSettings();
    EXPECT_THAT(sectionsOf(view), ElementsAre("general", "display 3"));
}

TEST(SettingsView, KeepsAnOpenedTextWhileMonitorsComeAndGo) {
    ViewRig view;
    view.rig.world().unplug(3);
    view.runFor(10s);
    view.showSettings();
    view.toggle("Capabilities string (MCCS)", true);
    view.rig.world().plug(3);
    view.runFor(10s);
    EXPECT_THAT(view.lines(),
                Contains("disclosure \"Capabilities string (MCCS)\" open, key \"capabilities\""));
}

// Open at login

TEST(SettingsViewLogin, IsWhatTheSystemSaysWhenItIsMade) {
    ViewRig view;
    view.environment.loginItem.enable();
    view.showSettings();
    EXPECT_THAT(view.lines(), Contains(switchOn));
}

TEST(SettingsViewLogin, ChangesNothingWhenItIsMade) {
    ViewRig view;
    view.rig.simulated.refuseLoginItem("Operation not permitted");
    view.showSettings();
    EXPECT_THAT(view.lines(), Not(Contains(refused)));
}

TEST(SettingsViewLogin, IsTurnedOn) {
    ViewRig view;
    view.showSettings();
    view.toggle("Open at Login", true);
    EXPECT_TRUE(view.environment.loginItem.isEnabled());
    EXPECT_THAT(view.lines(), Contains(switchOn));
}

TEST(SettingsViewLogin, IsTurnedOff) {
    ViewRig view;
    view.environment.loginItem.enable();
    view.showSettings();
    view.toggle("Open at Login", false);
    EXPECT_FALSE(view.environment.loginItem.isEnabled());
    EXPECT_THAT(view.lines(), Contains(switchOff));
}

TEST(SettingsViewLogin, ReturnsToOffWithAReasonWhenTheSystemRefuses) {
    ViewRig view;
    view.rig.simulated.refuseLoginItem("Operation not permitted");
    view.showSettings();
    view.toggle("Open at Login", true);
    EXPECT_EQ(outline::outlineOf(view.keyed("general")),
              "section \"General\", key \"general\"\n"
              "  " +
                  switchOff + "\n  " + refused + "\n");
}

TEST(SettingsViewLogin, ReturnsToOnWithAReasonWhenTheSystemRefuses) {
    ViewRig view;
    view.environment.loginItem.enable();
    view.rig.simulated.refuseLoginItem("Operation not permitted");
    view.showSettings();
    view.toggle("Open at Login", false);
    EXPECT_THAT(view.lines(), Contains(switchOn));
    EXPECT_THAT(view.lines(), Contains(refused));
}

TEST(SettingsViewLogin, ForgetsTheReasonWhenTheSystemAccepts) {
    ViewRig view;
    view.rig.simulated.refuseLoginItem("Operation not permitted");
    view.showSettings();
    view.toggle("Open at Login", true);
    view.rig.simulated.refuseLoginItem(std::nullopt);
    view.toggle("Open at Login", true);
    EXPECT_THAT(view.lines(), Contains(switchOn));
    EXPECT_THAT(view.lines(), Not(Contains(refused)));
}

TEST(SettingsViewLogin, AsksTheSystemNothingForAnEqualValue) {
    ViewRig view;
    view.rig.simulated.refuseLoginItem("Operation not permitted");
    view.showSettings();
    view.toggle("Open at Login", false);
    EXPECT_THAT(view.lines(), Not(Contains(refused)));
}

// With the menu

TEST(SettingsView, TakesANicknameAwayInTheMenuToo) {
    ViewRig view;
    view.display()->inputSettings().setAliases({{test::otherInput, "Windows PC"}});
    view.showSettings();
    view.edit("Nickname of Windows PC", "");
    view.showMenu();
    EXPECT_THAT(view.lines(), Not(Contains(HasSubstr("Windows PC"))));
    EXPECT_THAT(view.lines(), Contains("tile \"HDMI 1\" cable.connector.horizontal, key \"input 11\""));
}

}  // namespace
}  // namespace vantrel::views
