#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/MenuContent.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using namespace std::chrono_literals;
using test::deskOf;
using test::monitorPlan;
using test::panelPlan;
using test::ViewRig;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

ui::Node scrollOf(const ViewRig& view) {
    return view.one([](const ui::Node& node) { return std::holds_alternative<ui::Scroll>(node.element); });
}

// The cards' keys, from top to bottom.
std::vector<std::string> cardsOf(const ViewRig& view) {
    std::vector<std::string> keys;
    const ui::Node scroll = scrollOf(view);
    for (const ui::Node& card : scroll.children.at(0).children) keys.push_back(card.id);
    return keys;
}

int maximumHeight(double screenHeight) {
    ViewRig view(deskOf({panelPlan()}));
    view.screenHeight.set(screenHeight);
    view.showMenu();
    return std::get<ui::Scroll>(scrollOf(view).element).maximumHeight;
}

void turnOff(ViewRig& view, platform::DisplayID id) {
    view.rig.perform(view.manager().disableOutput(view.display(id), std::nullopt));
    view.runFor(10s);
}

// The column

TEST(MenuContent, IsATitleTheCardsAndAFooter) {
    ViewRig view(deskOf({}));
    view.showMenu();
    EXPECT_EQ(view.outline(),
              "column\n"
              "  row, key \"title\"\n"
              "    image vantrel\n"
              "    text \"Vantrel\"\n"
              "    spacer\n"
              "  scroll up to 780\n"
              "    column\n"
              "      column, key \"no monitor\"\n"
              "        text \"No external monitor connected.\" secondary\n"
              "  divider\n"
              "  row, key \"footer\"\n"
              "    button \"Settings\" borderless, key \"Settings\"\n"
              "    spacer\n"
              "    button \"Quit\" borderless, key \"Quit\"\n");
}

TEST(MenuContent, HasAWidthOfItsOwn) {
    ViewRig view;
    view.showMenu();
    EXPECT_EQ(std::get<ui::Stack>(view.tree().element).spacing, 10);
    EXPECT_EQ(
        view.tree().layout,
        (ui::Layout{.horizontalPadding = 12, .verticalPadding = 12, .width = 340, .reportsSize = true}));
}

TEST(MenuContent, HasASmallIconBesideItsName) {
    ViewRig view;
    view.showMenu();
    const ui::Node title = view.keyed("title");
    EXPECT_EQ(title.children.at(0).layout, (ui::Layout{.width = 22, .height = 22}));
    EXPECT_EQ(std::get<ui::Text>(title.children.at(1).element).font, ui::Font::headline);
}

TEST(MenuContent, OfAProgramWithoutAnIconHasItsNameOnly) {
    ViewRig view;
    view.icon.clear();
    view.showMenu();
    EXPECT_EQ(outline::outlineOf(view.keyed("title")),
              "row, key \"title\"\n"
              "  text \"Vantrel\"\n"
              "  spacer\n");
}

TEST(MenuContent, ReportsEachSizeThatItGets) {
    ViewRig view;
    view.showMenu();
    view.resize({340, 400});
    view.resize({340, 420});
    EXPECT_THAT(view.sizes, ElementsAre(ui::Size{340, 400}, ui::Size{340, 420}));
}

TEST(MenuContent, OpensTheSettings) {
    ViewRig view;
    view.showMenu();
    view.press("Settings");
    EXPECT_EQ(view.settingsOpened, 1);
    EXPECT_EQ(view.quits, 0);
}

TEST(MenuContent, Quits) {
    ViewRig view;
    view.showMenu();
    view.press("Quit");
    EXPECT_EQ(view.quits, 1);
    EXPECT_EQ(view.settingsOpened, 0);
}

// Height

TEST(MenuContentHeight, LeavesRoomOnTheScreen) { EXPECT_EQ(maximumHeight(1000), 780); }

TEST(MenuContentHeight, IsNeverLessThanACardNeeds) {
    EXPECT_EQ(maximumHeight(400), 240);
    EXPECT_EQ(maximumHeight(460), 240);
    EXPECT_EQ(maximumHeight(0), 240);
}

TEST(MenuContentHeight, GrowsBeyondTheLeast) { EXPECT_EQ(maximumHeight(461), 241); }

TEST(MenuContentHeight, FollowsTheScreen) {
    ViewRig view;
    view.showMenu();
    view.screenHeight.set(700);
    view.settle();
    EXPECT_THAT(view.lines(), Contains("scroll up to 480"));
}

// The error

TEST(MenuContentError, IsAWarningBelowTheTitle) {
    ViewRig view(deskOf({monitorPlan(2, "Alder")}));
    view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
    view.showMenu();
    EXPECT_EQ(view.tree().children.at(1).id, "error");
    EXPECT_EQ(outline::outlineOf(view.keyed("error")),
              "row, key \"error\"\n"
              "  image exclamationmark.triangle.fill warning\n"
              "  text \"The Mac's only active display can't be turned off.\" warning\n"
              "  button xmark borderless, named \"Dismiss\", help\n");
    EXPECT_TRUE(std::get<ui::Text>(view.keyed("error").children.at(1).element).wraps);
}

TEST(MenuContentError, IsNotThereWithoutOne) {
    ViewRig view;
    view.showMenu();
    EXPECT_THAT(view.outline(), Not(HasSubstr("exclamationmark")));
}

TEST(MenuContentError, ComesWhenAnOperationFails) {
    ViewRig view(deskOf({monitorPlan(2, "Alder")}));
    view.showMenu();
    view.toggle("Video output to Alder", false);
    view.press("Turn Output Off");
    EXPECT_THAT(view.lines(),
                Contains("text \"The Mac's only active display can't be turned off.\" warning"));
}

TEST(MenuContentError, GoesWhenItIsDismissed) {
    ViewRig view(deskOf({monitorPlan(2, "Alder")}));
    view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
    view.showMenu();
    view.press("Dismiss");
    EXPECT_EQ(view.manager().lastError(), std::nullopt);
    EXPECT_THAT(view.outline(), Not(HasSubstr("exclamationmark")));
}

// What is in the way

const text::Text module = text::Text::translated("Load the module.");
const text::Text permission = text::Text::translated("%@ may not.", {"Ann"});

TEST(MenuContentObstacles, AreWarningsOfTheirOwnBelowTheTitle) {
    ViewRig view;
    view.rig.simulated.obstruct({module, permission});
    view.manager().refresh();
    view.showMenu();
    EXPECT_EQ(view.tree().children.at(1).id, "obstacle Load the module.");
    EXPECT_EQ(view.tree().children.at(2).id, "obstacle Ann may not.");
    EXPECT_EQ(outline::outlineOf(view.tree().children.at(1)),
              "row, key \"obstacle Load the module.\"\n"
              "  image exclamationmark.triangle.fill warning\n"
              "  text \"Load the module.\" warning\n"
              "  button xmark borderless, named \"Dismiss\", help\n");
    EXPECT_TRUE(std::get<ui::Text>(view.tree().children.at(1).children.at(1).element).wraps);
}

TEST(MenuContentObstacles, ComeAndGoWhileTheMenuIsShown) {
    ViewRig view;
    view.showMenu();
    EXPECT_THAT(view.outline(), Not(HasSubstr("exclamationmark")));
    view.rig.simulated.obstruct({module});
    view.manager().refresh();
    view.settle();
    EXPECT_THAT(view.lines(), Contains("text \"Load the module.\" warning"));
    view.rig.simulated.obstruct({});
    view.manager().refresh();
    view.settle();
    EXPECT_THAT(view.outline(), Not(HasSubstr("exclamationmark")));
}

TEST(MenuContentObstacles, GoOneByOneWhenTheyAreDismissed) {
    ViewRig view;
    view.rig.simulated.obstruct({module});
    view.manager().refresh();
    view.showMenu();
    view.press("Dismiss");
    EXPECT_THAT(view.outline(), Not(HasSubstr("exclamationmark")));
    view.rig.simulated.obstruct({module, permission});
    view.manager().refresh();
    view.settle();
    EXPECT_THAT(view.lines(), Contains("text \"Ann may not.\" warning"));
    EXPECT_THAT(view.lines(), Not(Contains("text \"Load the module.\" warning")));
    view.press("Dismiss");
    EXPECT_THAT(view.manager().obstacles(), testing::IsEmpty());
}

TEST(MenuContentObstacles, StandBelowTheErrorAndStayWhenThatIsDismissed) {
    ViewRig view(deskOf({monitorPlan(2, "Alder")}));
    view.rig.simulated.obstruct({module});
    view.manager().refresh();
    view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
    view.showMenu();
    EXPECT_EQ(view.tree().children.at(1).id, "error");
    EXPECT_EQ(view.tree().children.at(2).id, "obstacle Load the module.");
    view.manager().clearLastError();
    view.settle();
    EXPECT_EQ(view.tree().children.at(1).id, "obstacle Load the module.");
}

// Cards

TEST(MenuContentCards, AreTheMonitorsInTheSystemsOrderAndThenThePanel) {
    ViewRig view(deskOf({monitorPlan(5, "Cedar"), panelPlan(), monitorPlan(2, "Alder")}));
    view.showMenu();
    EXPECT_THAT(cardsOf(view), ElementsAre("connected 5", "connected 2", "built-in"));
}

TEST(MenuContentCards, AreThePanelAndATextWithoutAnyMonitor) {
    ViewRig view(deskOf({panelPlan()}));
    view.showMenu();
    EXPECT_THAT(cardsOf(view), ElementsAre("built-in", "no monitor"));
}

TEST(MenuContentCards, SayThatThereIsNoMonitorInTheMiddle) {
    ViewRig view(deskOf({}));
    view.showMenu();
    const ui::Node none = view.keyed("no monitor");
    EXPECT_EQ(std::get<ui::Stack>(none.element).alignment, ui::Alignment::center);
    EXPECT_EQ(none.layout, (ui::Layout{.verticalPadding = 12, .fillsWidth = true}));
    EXPECT_EQ(std::get<ui::Text>(none.children.at(0).element).font, ui::Font::callout);
}

TEST(MenuContentCards, PutMonitorsThatAreOffFirst) {
    ViewRig view(
        deskOf({panelPlan(), monitorPlan(2, "Alder"), monitorPlan(3, "Birch"), monitorPlan(4, "Cedar")}));
    turnOff(view, 4);
    turnOff(view, 3);
    view.showMenu();
    EXPECT_THAT(cardsOf(view), ElementsAre("turned off 4", "turned off 3", "connected 2", "built-in"));
}

TEST(MenuContentCards, OfAMonitorThatIsOffAndKnownHaveItsControls) {
    ViewRig view;
    turnOff(view, 2);
    view.showMenu();
    const auto lines = test::linesOf(outline::outlineOf(view.keyed("turned off 2")));
    EXPECT_THAT(lines, Contains("button \"Turn On\" prominent, described \"Alder\", key \"turn on\""));
    EXPECT_THAT(lines, Contains("text \"Mac output off\" secondary"));
    EXPECT_THAT(lines, Contains(HasSubstr("slider 50 of 0...100")));
}

TEST(MenuContentCards, OfAMonitorThatIsOffAndCannotBeReachedHaveItsNameOnly) {
    ViewRig view(deskOf({panelPlan(), test::deafAlder()}));
    turnOff(view, 2);
    view.showMenu();
    EXPECT_THAT(cardsOf(view), ElementsAre("unreachable 2", "built-in"));
}

TEST(MenuContentCards, OfAMonitorThatIsOffTakeThePlaceOfTheTextWithoutAny) {
    ViewRig view(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    turnOff(view, 2);
    view.showMenu();
    EXPECT_THAT(cardsOf(view), Not(Contains("no monitor")));
}

TEST(MenuContentCards, FollowTheMonitorsThatComeAndGo) {
    ViewRig view;
    view.showMenu();
    EXPECT_THAT(cardsOf(view), ElementsAre("connected 2", "connected 3", "built-in"));
    view.rig.world().unplug(2);
    view.runFor(10s);
    EXPECT_THAT(cardsOf(view), ElementsAre("connected 3", "built-in"));
    view.rig.world().plug(2);
    view.runFor(10s);
    EXPECT_THAT(cardsOf(view), ElementsAre("connected 2", "connected 3", "built-in"));
}

TEST(MenuContentCards, FollowAnOutputThatIsTurnedOffAndOn) {
    ViewRig view;
    view.showMenu();
    turnOff(view, 3);
    EXPECT_THAT(cardsOf(view), ElementsAre("turned off 3", "connected 2", "built-in"));
    view.press("Turn On");
    view.runFor(10s);
    EXPECT_THAT(cardsOf(view), ElementsAre("connected 2", "connected 3", "built-in"));
}

TEST(MenuContentCards, OfAForgottenMonitorGo) {
    ViewRig view(deskOf({panelPlan(), test::deafAlder()}));
    turnOff(view, 2);
    view.showMenu();
    view.chooseInContextMenu("Alder", 0);
    EXPECT_THAT(cardsOf(view), ElementsAre("built-in", "no monitor"));
}

TEST(MenuContentCards, KeepTheirStateWhileOthersComeAndGo) {
    ViewRig view;
    view.showMenu();
    view.toggle("Video output to Alder", false);
    view.rig.world().unplug(3);
    view.runFor(10s);
    EXPECT_THAT(view.lines(), Contains(HasSubstr("button \"Turn Output Off\"")));
}

TEST(MenuContentCards, BeginAnewWithANewModelUnderTheSameIdentifier) {
    ViewRig view;
    view.showMenu();
    view.toggle("Video output to Alder", false);
    // Another monitor answers to the identifier from now on.
    view.rig.displays.serialInstead[2] = 999;
    const auto before = view.display();
    view.manager().refresh();
    view.settle();
    ASSERT_NE(view.display(), before);
    EXPECT_THAT(view.lines(), Not(Contains(HasSubstr("button \"Turn Output Off\""))));
}

TEST(MenuContentCards, BeginAnewWhenTheOutputIsTurnedOff) {
    ViewRig view(deskOf({panelPlan(), test::richAlder()}));
    view.showMenu();
    view.toggle("More Monitor Settings", true);
    turnOff(view, 2);
    EXPECT_THAT(view.lines(), Contains("disclosure \"More Monitor Settings\" closed, key \"more\""));
}

}  // namespace
}  // namespace vantrel::views
