#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "mccs/MCCS.h"
#include "views/DisplaySettings.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using namespace std::chrono_literals;
using model::ControlMode;
using test::ViewRig;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using LoadState = model::ExternalDisplay::LoadState;

const std::string defaultsNote =
    "text \"The monitor did not send its capabilities string, so a default set of controls is used.\" "
    "secondary, "
    "key \"no capabilities\"";
const std::string noInputs =
    "text \"The monitor has not reported its inputs yet.\" secondary, key \"no inputs\"";

class SettingsOfAlder : public ViewRig {
  public:
    explicit SettingsOfAlder(simulated::Desk desk = test::usualDesk()) : ViewRig(std::move(desk)) {
        show(std::make_unique<DisplaySettings>(environment, display()));
    }
    model::InputSettings& settings() { return display()->inputSettings(); }
    std::vector<std::string> rows() const {
        std::vector<std::string> keys;
        const ui::Node section = tree();
        for (const ui::Node& row : section.children) keys.push_back(row.id);
        return keys;
    }
    std::vector<std::string> offeredInputs() const {
        return std::get<ui::Menu>(named("Add Input").element).options;
    }
};

TEST(DisplaySettings, HaveARowForEachDecision) {
    SettingsOfAlder view;
    EXPECT_THAT(view.rows(), ElementsAre("control mode", "inputs", "input 0F", "input 11", "input 12", "add",
                                         "when off", "of the computer", "capabilities", "reread"));
    EXPECT_EQ(std::get<ui::Section>(view.tree().element).title, "Alder");
}

// Control mode

TEST(DisplaySettings, OfferTheControlModesByTheirTitles) {
    SettingsOfAlder view;
    EXPECT_THAT(view.lines(),
                Contains("picker \"Control mode\" [*\"Automatic\", \"DDC/CI\", \"Software\"], key "
                         "\"control mode\""));
}

TEST(DisplaySettings, SetTheControlMode) {
    SettingsOfAlder view;
    view.choose("Control mode", 2);
    EXPECT_EQ(view.display()->controlMode(), ControlMode::software);
    EXPECT_THAT(view.lines(), Contains(HasSubstr("[\"Automatic\", \"DDC/CI\", *\"Software\"]")));
}

// Capabilities

TEST(DisplaySettings, SayThatAMonitorWithoutCapabilitiesHasDefaultControls) {
    auto plan = test::monitorPlan(2, "Alder");
    plan.monitor->capabilities.reset();
    SettingsOfAlder view(test::deskWith(plan));
    view.runFor(1min);
    EXPECT_THAT(view.lines(), Contains(defaultsNote));
}

TEST(DisplaySettings, SayNothingOfDefaultsForAMonitorWithCapabilities) {
    EXPECT_THAT(SettingsOfAlder().lines(), Not(Contains(defaultsNote)));
}

TEST(DisplaySettings, KeepTheCapabilitiesStringClosedAtFirst) {
    SettingsOfAlder view;
    EXPECT_EQ(outline::outlineOf(view.keyed("capabilities")),
              "disclosure \"Capabilities string (MCCS)\" closed, key \"capabilities\"\n");
}

TEST(DisplaySettings, ShowTheCapabilitiesStringToBeCopied) {
    SettingsOfAlder view;
    view.toggle("Capabilities string (MCCS)", true);
    EXPECT_EQ(outline::outlineOf(view.keyed("capabilities")),
              "disclosure \"Capabilities string (MCCS)\" open, key \"capabilities\"\n"
              "  text \"(prot(monitor)type(lcd)vcp(10 12 60(0F 11 12) 62)mccs_ver(2.1))\" selectable\n");
    view.toggle("Capabilities string (MCCS)", false);
    EXPECT_THAT(view.keyed("capabilities").children, IsEmpty());
}

TEST(DisplaySettings, ShowNoCapabilitiesStringWhereThereIsNone) {
    SettingsOfAlder view(test::deskWith(test::deafAlder()));
    view.toggle("Capabilities string (MCCS)", true);
    EXPECT_THAT(view.keyed("capabilities").children, IsEmpty());
}

TEST(DisplaySettings, LetTheMonitorBeReadAgain) {
    SettingsOfAlder view;
    view.press("Reread Monitor Capabilities");
    EXPECT_EQ(view.display()->loadState(), LoadState::loading);
    view.runFor(10s);
    EXPECT_EQ(view.display()->loadState(), LoadState::ready);
}

// Inputs

TEST(DisplaySettings, ExplainTheListOfInputs) {
    EXPECT_THAT(
        SettingsOfAlder().lines(),
        Contains("text \"Some monitors report the wrong inputs. Adjust the list to match your monitor's "
                 "physical inputs.\" secondary, key \"inputs\""));
}

TEST(DisplaySettings, SayThatInputsAreNotKnownYet) {
    SettingsOfAlder view(test::deskWith(test::deafAlder()));
    EXPECT_THAT(view.lines(), Contains(noInputs));
    EXPECT_THAT(view.rows(), Not(Contains(HasSubstr("input 0F"))));
}

TEST(DisplaySettings, SayNothingOfUnknownInputsWhereThereAreSome) {
    EXPECT_THAT(SettingsOfAlder().lines(), Not(Contains(noInputs)));
}

TEST(DisplaySettings, KeepARowForEachInputWhenAllAreHidden) {
    SettingsOfAlder view;
    view.settings().setHidden({0x0F, 0x11, 0x12});
    view.settle();
    EXPECT_THAT(view.rows(), AllOf(Contains("input 0F"), Contains("input 11"), Contains("input 12")));
}

TEST(DisplaySettings, OfferToAddTheInputsThatAreNotInTheList) {
    SettingsOfAlder view;
    EXPECT_THAT(view.offeredInputs(), SizeIs(19));
    EXPECT_EQ(view.offeredInputs().front(), "VGA 1 (0x01)");
    EXPECT_EQ(view.offeredInputs().back(), "USB-C (0x1B)");
    EXPECT_THAT(view.offeredInputs(), Not(Contains("HDMI 1 (0x11)")));
    EXPECT_THAT(view.offeredInputs(), Contains("Component 1 (0x0C)"));
}

TEST(DisplaySettings, OfferInputsToAddByTheirStandardNames) {
    SettingsOfAlder view;
    view.settings().setAliases({{0x1B, "MacBook"}});
    view.settle();
    EXPECT_EQ(view.offeredInputs().back(), "USB-C (0x1B)");
}

TEST(DisplaySettings, AddTheChosenInput) {
    SettingsOfAlder view;
    view.choose("Add Input", 18);
    EXPECT_THAT(view.display()->inputs(), ElementsAre(0x0F, 0x11, 0x12, 0x1B));
    EXPECT_THAT(view.rows(), Contains("input 1B"));
    EXPECT_THAT(view.offeredInputs(), Not(Contains("USB-C (0x1B)")));
}

TEST(DisplaySettings, OfferNothingToAddWhenEveryInputIsThere) {
    SettingsOfAlder view;
    std::vector<std::uint16_t> all;
    for (const auto& [input, name] : mccs::MCCS::inputNames()) all.push_back(input);
    view.display()->setCustomInputs(all);
    view.settle();
    EXPECT_THAT(view.lines(), Contains("menu \"Add Input\" [], disabled, key \"add\""));
}

TEST(DisplaySettings, OfferToRestoreTheInputsOnceOneWasAdded) {
    SettingsOfAlder view;
    EXPECT_THAT(view.rows(), Not(Contains("restore")));
    view.display()->addInput(0x1B);
    view.settle();
    EXPECT_THAT(view.lines(), Contains("button \"Restore Detected Inputs\", key \"restore\""));
}

TEST(DisplaySettings, OfferToRestoreTheInputsOnceOneWasRemoved) {
    SettingsOfAlder view;
    view.display()->removeInput(0x12);
    view.settle();
    EXPECT_THAT(view.rows(), Contains("restore"));
}

TEST(DisplaySettings, RestoreTheInputsThatTheMonitorReported) {
    SettingsOfAlder view;
    view.display()->addInput(0x1B);
    view.settle();
    view.press("Restore Detected Inputs");
    EXPECT_THAT(view.display()->inputs(), ElementsAre(0x0F, 0x11, 0x12));
    EXPECT_THAT(view.rows(), Not(Contains("restore")));
}

TEST(DisplaySettings, KeepNicknamesAndHiddenInputsWhenTheyRestoreTheInputs) {
    SettingsOfAlder view;
    view.settings().setAliases({{0x11, "Windows PC"}});
    view.settings().setHidden({0x12});
    view.display()->addInput(0x1B);
    view.settle();
    view.press("Restore Detected Inputs");
    EXPECT_EQ(view.display()->inputName(0x11), "Windows PC");
    EXPECT_THAT(view.settings().hidden(), ElementsAre(0x12));
}

// Inputs with a meaning

TEST(DisplaySettings, LetTheInputWhenOffBeChosen) {
    SettingsOfAlder view;
    EXPECT_THAT(
        view.lines(),
        Contains("picker \"When turning the Mac output off, switch to\" [*\"Don't switch\", \"DisplayPort "
                 "1\", \"HDMI 1\", \"HDMI 2\"], key \"when off\""));
    view.choose("When turning the Mac output off, switch to", 2);
    EXPECT_EQ(view.settings().focusInput(), 0x11);
    view.choose("When turning the Mac output off, switch to", 0);
    EXPECT_EQ(view.settings().focusInput(), std::nullopt);
}

TEST(DisplaySettings, LetTheInputOfTheComputerBeChosen) {
    SettingsOfAlder view;
    EXPECT_THAT(view.lines(),
                Contains("picker \"Input the Mac is connected to\" [\"Not sure\", *\"DisplayPort 1\", "
                         "\"HDMI 1\", \"HDMI 2\"], key \"of the computer\""));
    view.choose("Input the Mac is connected to", 3);
    EXPECT_EQ(view.settings().macInput(), 0x12);
    view.choose("Input the Mac is connected to", 0);
    EXPECT_EQ(view.settings().macInput(), std::nullopt);
}

}  // namespace
}  // namespace vantrel::views
