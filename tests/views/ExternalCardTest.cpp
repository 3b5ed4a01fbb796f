#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/VCPCodes.h"
#include "views/ExternalCard.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using namespace std::chrono_literals;
using model::ControlMode;
using test::alderThatLists;
using test::deadAlder;
using test::deafAlder;
using test::deskWith;
using test::richAlder;
using test::ViewRig;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using Beginning = ViewRig::Beginning;
using LoadState = model::ExternalDisplay::LoadState;

enum class Output { on, off };

// Alder's card, connected or with its output off.
class CardView : public ViewRig {
  public:
    explicit CardView(simulated::Desk desk = test::usualDesk(), Beginning beginning = Beginning::loaded)
        : ViewRig(std::move(desk), beginning) {}

    void showCard(Output output = Output::on) {
        std::optional<persistence::DisabledDisplay> entry;
        if (output == Output::off)
            entry = persistence::DisabledDisplay{2, display()->key(), display()->name()};
        show(std::make_unique<ExternalCard>(environment, display(), entry));
    }
    std::string subtitle() const { return textAt(keyed("header").children.at(1).children.at(1)); }
    std::string confirmation() const { return textAt(keyed("confirmation").children.at(0)); }
    // The kinds of controls below the header, by their keys.
    std::vector<std::string> parts() const {
        std::vector<std::string> keys;
        const ui::Node card = tree();
        for (const ui::Node& part : card.children) keys.push_back(part.id);
        return keys;
    }

  private:
    static std::string textAt(const ui::Node& node) { return std::get<ui::Text>(node.element).text; }
};

// Header

TEST(ExternalCard, BeginsWithItsMonitorAndWhatConcernsItAsAWhole) {
    CardView view;
    view.showCard();
    EXPECT_EQ(
        outline::outlineOf(view.keyed("header")),
        "row, key \"header\"\n"
        "  image display\n"
        "  column\n"
        "    text \"Alder\"\n"
        "    text \"Current input: DisplayPort 1\" secondary\n"
        "  spacer\n"
        "  picker dial.medium [*\"Automatic\", \"DDC/CI\", \"Software\"], note \"DDC/CI when the monitor "
        "answers, software when it doesn't\", named \"Control mode: Automatic\", help, key \"control mode\"\n"
        "  switch on, named \"Video output to Alder\", help \"The Mac's video output to this monitor\", key "
        "\"output\"\n");
}

TEST(ExternalCard, OfAMonitorThatIsOffHasAWayBackInstead) {
    CardView view;
    view.showCard(Output::off);
    EXPECT_EQ(outline::outlineOf(view.keyed("header")),
              "row, key \"header\"\n"
              "  image display\n"
              "  column\n"
              "    text \"Alder\"\n"
              "    text \"Mac output off\" secondary\n"
              "  spacer\n"
              "  button \"Turn On\" prominent, described \"Alder\", key \"turn on\"\n");
}

TEST(ExternalCard, TurnsTheOutputOn) {
    CardView view;
    view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
    view.showCard(Output::off);
    view.press("Turn On");
    view.runFor(10s);
    EXPECT_TRUE(view.rig.world().isOnline(2));
    EXPECT_THAT(view.manager().disabled(), IsEmpty());
}

// Subtitle

TEST(ExternalCardSubtitle, NamesTheCurrentInput) {
    CardView view;
    view.showCard();
    EXPECT_EQ(view.subtitle(), "Current input: DisplayPort 1");
}

TEST(ExternalCardSubtitle, NamesTheCurrentInputByItsNickname) {
    CardView view;
    view.display()->inputSettings().setAliases({{test::computersInput, "MacBook"}});
    view.showCard();
    EXPECT_EQ(view.subtitle(), "Current input: MacBook");
}

TEST(ExternalCardSubtitle, IsDDCWhileTheInputIsUnknown) {
    CardView view;
    view.display()->feature(model::inputSource)->current.set(std::nullopt);
    view.showCard();
    EXPECT_EQ(view.subtitle(), "DDC/CI");
}

TEST(ExternalCardSubtitle, IsDDCForAMonitorWithoutInputs) {
    CardView view(deskWith(alderThatLists("10 12")));
    view.showCard();
    EXPECT_EQ(view.subtitle(), "DDC/CI");
}

TEST(ExternalCardSubtitle, IsDDCBeforeAnythingIsLoaded) {
    CardView view(test::usualDesk(), Beginning::fresh);
    view.showCard();
    EXPECT_EQ(view.subtitle(), "DDC/CI");
}

TEST(ExternalCardSubtitle, IsSoftwareControlForAMonitorThatCannotAnswer) {
    CardView view(deskWith(deafAlder()));
    view.showCard();
    EXPECT_EQ(view.subtitle(), "Software control");
}

TEST(ExternalCardSubtitle, IsNoResponseWhereDDCIsAskedFor) {
    CardView view(deskWith(deafAlder()));
    view.display()->setControlMode(ControlMode::ddc);
    view.showCard();
    EXPECT_EQ(view.subtitle(), "No DDC response");
}

TEST(ExternalCardSubtitle, IsTheInputForAMonitorThatAnswersWhateverControlsIt) {
    CardView view;
    view.display()->setControlMode(ControlMode::software);
    view.showCard();
    EXPECT_EQ(view.subtitle(), "Current input: DisplayPort 1");
}

TEST(ExternalCardSubtitle, IsOffBeforeItIsAnInput) {
    CardView view;
    view.showCard(Output::off);
    EXPECT_EQ(view.subtitle(), "Mac output off");
}

TEST(ExternalCardSubtitle, IsReturningBeforeItIsAnInput) {
    CardView view;
    view.display()->setReturningToMac(true);
    view.showCard();
    EXPECT_EQ(view.subtitle(), "Returning to the Mac…");
}

TEST(ExternalCardSubtitle, IsReturningEvenWhenTheOutputIsOff) {
    CardView view;
    view.display()->setReturningToMac(true);
    view.showCard(Output::off);
    EXPECT_EQ(view.subtitle(), "Returning to the Mac…");
}

TEST(ExternalCardSubtitle, FollowsTheModel) {
    CardView view;
    view.showCard();
    view.display()->feature(model::inputSource)->current.set(test::otherInput);
    view.settle();
    EXPECT_EQ(view.subtitle(), "Current input: HDMI 1");
}

// Confirmation

TEST(ExternalCardConfirmation, ComesWhenTheSwitchIsTurnedOff) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    EXPECT_THAT(view.parts(), ElementsAre("header", "confirmation"));
    EXPECT_EQ(
        outline::outlineOf(view.keyed("confirmation")),
        "column warning, key \"confirmation\"\n"
        "  text \"The Mac stops sending a picture to Alder and its windows move to the other displays. To "
        "bring it back, use Turn On here in the menu.\"\n"
        "  row\n"
        "    spacer\n"
        "    button \"Cancel\", key \"cancel\"\n"
        "    button \"Turn Output Off\" prominent, key \"turn off\"\n");
}

TEST(ExternalCardConfirmation, IsAPanelOfItsOwn) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    const ui::Node panel = view.keyed("confirmation");
    EXPECT_EQ(std::get<ui::Stack>(panel.element).cornerRadius, 8);
    EXPECT_EQ(panel.layout.horizontalPadding, 10);
    EXPECT_EQ(panel.layout.verticalPadding, 10);
    EXPECT_TRUE(std::get<ui::Text>(panel.children.at(0).element).wraps);
}

TEST(ExternalCardConfirmation, HasTwoSentencesWithoutAFocusInput) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    EXPECT_EQ(
        view.confirmation(),
        "The Mac stops sending a picture to Alder and its windows move to the other displays. To bring it "
        "back, use Turn On here in the menu.");
}

TEST(ExternalCardConfirmation, HasThreeSentencesWithAFocusInput) {
    CardView view;
    view.display()->inputSettings().setFocusInput(test::otherInput);
    view.showCard();
    view.toggle("Video output to Alder", false);
    EXPECT_EQ(
        view.confirmation(),
        "The Mac stops sending a picture to Alder and its windows move to the other displays. First, the "
        "monitor switches to HDMI 1. To bring it back, use Turn On here in the menu.");
}

TEST(ExternalCardConfirmation, IsNotAnActYet) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    view.runFor(10s);
    EXPECT_TRUE(view.rig.world().isOnline(2));
}

TEST(ExternalCardConfirmation, LeavesTheSwitchOn) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    EXPECT_TRUE(std::get<ui::Switch>(view.named("Video output to Alder").element).isOn);
}

TEST(ExternalCardConfirmation, DoesNotComeWhenTheSwitchIsTurnedOn) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", true);
    EXPECT_THAT(view.parts(), Not(Contains("confirmation")));
}

TEST(ExternalCardConfirmation, StaysWhenTheSwitchIsTurnedOnMeanwhile) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    view.toggle("Video output to Alder", true);
    EXPECT_THAT(view.parts(), Contains("confirmation"));
}

TEST(ExternalCardConfirmation, GoesWhenItIsCancelled) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    view.press("Cancel");
    EXPECT_THAT(view.parts(), ElementsAre("header", "feature 10", "feature 12", "volume", "inputs"));
    view.runFor(10s);
    EXPECT_TRUE(view.rig.world().isOnline(2));
}

TEST(ExternalCardConfirmation, TurnsTheOutputOffAndGoes) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    view.press("Turn Output Off");
    EXPECT_THAT(view.parts(), Not(Contains("confirmation")));
    view.runFor(10s);
    EXPECT_FALSE(view.rig.world().isOnline(2));
    EXPECT_THAT(view.manager().disabled(), SizeIs(1));
}

TEST(ExternalCardConfirmation, LeavesItToTheManagerToSwitchTheMonitorFirst) {
    CardView view;
    view.display()->inputSettings().setFocusInput(test::otherInput);
    view.showCard();
    view.toggle("Video output to Alder", false);
    view.press("Turn Output Off");
    view.runFor(10s);
    EXPECT_EQ(view.rig.monitor(2).shownInput(), test::otherInput);
}

TEST(ExternalCardConfirmation, IsForgottenWithTheCard) {
    CardView view;
    view.showCard();
    view.toggle("Video output to Alder", false);
    view.showCard();
    EXPECT_THAT(view.parts(), Not(Contains("confirmation")));
}

// Which controls

TEST(ExternalCard, OfAMonitorThatIsReadyHasItsControls) {
    CardView view;
    view.showCard();
    EXPECT_THAT(view.parts(), ElementsAre("header", "feature 10", "feature 12", "volume", "inputs"));
}

TEST(ExternalCard, ShowsBrightnessContrastAndVolumeWithTheirSymbols) {
    CardView view;
    view.showCard();
    EXPECT_EQ(outline::outlineOf(view.keyed("feature 10")),
              "row, key \"feature 10\"\n"
              "  image sun.max.fill\n"
              "  slider 50 of 0...100, value \"50%\", named \"Brightness\", help\n"
              "  text \"50%\" secondary\n");
    EXPECT_THAT(outline::outlineOf(view.keyed("feature 12")), HasSubstr("image circle.lefthalf.filled\n"));
    EXPECT_EQ(outline::outlineOf(view.keyed("volume")),
              "row, key \"volume\"\n"
              "  row, key \"feature 62\"\n"
              "    image speaker.wave.2.fill\n"
              "    slider 20 of 0...100, value \"20%\", named \"Volume\", help\n"
              "    text \"20%\" secondary\n");
}

TEST(ExternalCard, HasAMuteButtonBesideTheVolumeOfAMonitorThatCanMute) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    EXPECT_THAT(test::linesOf(outline::outlineOf(view.keyed("volume"))),
                Contains("button speaker.fill borderless, named \"Mute\", help, key \"mute\""));
}

TEST(ExternalCard, HasNoMuteButtonWithoutAVolume) {
    auto plan = alderThatLists("10 8D");
    plan.monitor->features[0x8D] = {.type = 0, .current = 2, .maximum = 2};
    CardView view(deskWith(plan));
    view.showCard();
    EXPECT_THAT(view.parts(), ElementsAre("header", "feature 10"));
}

TEST(ExternalCard, HasOnlyTheControlsOfItsMonitor) {
    CardView view(deskWith(alderThatLists("12")));
    view.showCard();
    EXPECT_THAT(view.parts(), ElementsAre("header", "feature 12"));
}

TEST(ExternalCard, WithSoftwareControlsHasThemInPlaceOfBrightnessAndContrast) {
    CardView view;
    view.display()->setControlMode(ControlMode::software);
    view.showCard();
    EXPECT_THAT(view.parts(), ElementsAre("header", "software", "volume", "inputs"));
}

TEST(ExternalCard, OfAMonitorThatCannotAnswerHasSoftwareControlsAndANote) {
    CardView view(deskWith(deafAlder()));
    view.showCard();
    EXPECT_THAT(view.parts(), ElementsAre("header", "software", "no DDC"));
    EXPECT_THAT(view.outline(), HasSubstr("This connection does not pass DDC/CI through"));
}

TEST(ExternalCard, OfAMonitorThatShouldAnswerAndDoesNotHasANoteOnly) {
    CardView view(deskWith(deafAlder()));
    view.display()->setControlMode(ControlMode::ddc);
    view.showCard();
    EXPECT_THAT(view.parts(), ElementsAre("header", "no DDC"));
    EXPECT_THAT(view.lines(), Contains("button \"Try Again\""));
}

TEST(ExternalCard, SaysThatItReadsUntilAFeatureIsKnown) {
    CardView view(test::usualDesk(), Beginning::fresh);
    view.showCard();
    EXPECT_EQ(outline::outlineOf(view.keyed("loading")),
              "row, key \"loading\"\n"
              "  progress\n"
              "  text \"Reading the monitor over DDC…\" secondary\n");
    EXPECT_EQ(std::get<ui::Stack>(view.keyed("loading").element).spacing, 6);
}

TEST(ExternalCard, SaysThatItReadsWhileThereIsSoftwareControlToo) {
    CardView view(test::usualDesk(), Beginning::fresh);
    view.display()->setControlMode(ControlMode::software);
    view.showCard();
    EXPECT_THAT(view.parts(), ElementsAre("header", "software", "loading"));
}

TEST(ExternalCard, ShowsEachControlAsSoonAsItIsKnown) {
    CardView view(test::usualDesk(), Beginning::fresh);
    view.showCard();
    while (view.display()->features().empty()) view.runFor(1ms);
    EXPECT_EQ(view.display()->loadState(), LoadState::loading);
    EXPECT_THAT(view.parts(), ElementsAre("header", "feature 10"));
}

TEST(ExternalCard, OfAMonitorThatLoadsWithoutFeaturesIsAHeader) {
    CardView view(deskWith(alderThatLists("F0")));
    view.showCard();
    ASSERT_EQ(view.display()->loadState(), LoadState::ready);
    EXPECT_THAT(view.parts(), ElementsAre("header"));
}

TEST(ExternalCard, OfAMonitorThatIsOffStillHasItsControls) {
    CardView view;
    view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
    view.showCard(Output::off);
    EXPECT_THAT(view.parts(), ElementsAre("header", "feature 10", "feature 12", "volume", "inputs"));
}

// More settings

TEST(ExternalCardMore, IsClosedAtFirst) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    EXPECT_EQ(outline::outlineOf(view.keyed("more")),
              "disclosure \"More Monitor Settings\" closed, key \"more\"\n");
}

TEST(ExternalCardMore, ListsTheOtherFeaturesByGroup) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    view.toggle("More Monitor Settings", true);
    std::vector<std::string> texts;
    const ui::Node more = view.keyed("more");
    for (const ui::Node& row : more.children.at(0).children) {
        const ui::Node& first = row.children.empty() ? row : row.children.at(0);
        texts.push_back(std::get<ui::Text>(first.element).text);
    }
    EXPECT_THAT(texts, ElementsAre("Picture", "Sharpness", "Color", "Color preset", "System",
                                   "Restore factory defaults", "Info", "Usage hours", "Vendor specific",
                                   "Vendor 0xE1"));
}

TEST(ExternalCardMore, HasRoomAroundItsRows) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    view.toggle("More Monitor Settings", true);
    const ui::Node list = view.keyed("more").children.at(0);
    EXPECT_EQ(std::get<ui::Stack>(list.element).spacing, 12);
    EXPECT_EQ(list.layout.verticalPadding, 6);
}

TEST(ExternalCardMore, ClosesAgain) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    view.toggle("More Monitor Settings", true);
    view.toggle("More Monitor Settings", false);
    EXPECT_THAT(view.keyed("more").children, IsEmpty());
}

TEST(ExternalCardMore, IsNotThereForAMonitorWithTheUsualFeatures) {
    CardView view;
    view.showCard();
    EXPECT_THAT(view.parts(), Not(Contains("more")));
}

TEST(ExternalCardMore, IsClosedInANewCard) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    view.toggle("More Monitor Settings", true);
    view.showCard();
    EXPECT_THAT(view.keyed("more").children, IsEmpty());
}

TEST(ExternalCardMore, KeepsAnActionWaitingWhileItIsOpen) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    view.toggle("More Monitor Settings", true);
    view.press("Run");
    view.slide("Brightness", 10);
    EXPECT_THAT(view.lines(), Contains(HasSubstr("button \"Confirm\"")));
}

TEST(ExternalCardMore, ForgetsAWaitingActionWhenItIsClosed) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    view.toggle("More Monitor Settings", true);
    view.press("Run");
    view.toggle("More Monitor Settings", false);
    view.toggle("More Monitor Settings", true);
    EXPECT_THAT(view.lines(), Not(Contains(HasSubstr("button \"Confirm\""))));
}

TEST(ExternalCardMore, ForgetsAWaitingActionWhenTheMonitorLoadsAgain) {
    CardView view(deskWith(richAlder()));
    view.showCard();
    view.toggle("More Monitor Settings", true);
    view.press("Run");
    view.rig.perform(view.display()->load(model::ExternalDisplay::Capabilities::fetched));
    view.settle();
    EXPECT_THAT(view.lines(), Not(Contains(HasSubstr("button \"Confirm\""))));
    EXPECT_THAT(view.lines(), Contains(HasSubstr("button \"Run\"")));
}

// Loading

TEST(ExternalCard, ThatAppearsLetsAReadyMonitorRefresh) {
    CardView view;
    view.rig.monitor(2).adjust(0x10, 33);
    view.showCard();
    view.runFor(5s);
    EXPECT_THAT(view.lines(), Contains("slider 33 of 0...100, value \"33%\", named \"Brightness\", help"));
}

TEST(ExternalCard, LoadsOnlyWhenItAppears) {
    CardView view;
    view.showCard();
    view.runFor(5s);
    view.rig.monitor(2).recordTrace();
    view.toggle("Video output to Alder", false);
    view.press("Cancel");
    view.runFor(5s);
    EXPECT_THAT(view.rig.monitor(2).trace(), IsEmpty());
}

TEST(ExternalCard, DoesNotLoadAMonitorThatDidNotAnswer) {
    CardView view(deskWith(deadAlder()));
    view.runFor(1min);
    ASSERT_EQ(view.display()->loadState(), LoadState::unavailable);
    view.rig.monitor(2).recordTrace();
    view.showCard();
    view.runFor(5s);
    EXPECT_THAT(view.rig.monitor(2).trace(), IsEmpty());
}

TEST(ExternalCard, MayGoWhileItsMonitorLoads) {
    CardView view(test::usualDesk(), Beginning::fresh);
    view.showCard();
    view.runFor(100ms);
    view.hide();
    view.runFor(10s);
    EXPECT_EQ(view.display()->loadState(), LoadState::ready);
    EXPECT_EQ(view.manager().runningTasks(), 0U);
}

}  // namespace
}  // namespace vantrel::views
