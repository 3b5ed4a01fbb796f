#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ManagerRig.h"

namespace vantrel::model {
namespace {

using namespace std::chrono_literals;
using persistence::DisabledDisplay;
using platform::LogLevel;
using simulated::Refusal;
using test::computersInput;
using test::deskOf;
using test::displayLine;
using test::inputReads;
using test::inputWrites;
using test::ManagerRig;
using test::monitorPlan;
using test::otherInput;
using test::panelPlan;
using test::standardLine;
using test::thirdInput;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using World = simulated::World;

const DisabledDisplay alderEntry{.id = 2, .key = "1000-22-102", .name = "Alder"};
const std::string alderJSON = R"([{"id":2,"key":"1000-22-102","name":"Alder"}])";
const std::string noMacInput = "Turning Mac output back on for Alder (id 2), no Mac input to switch to";
const std::string onlyDisplay = "The Mac's only active display can't be turned off.";
const std::string notBackOn = "Couldn't turn Alder back on. If it was disconnected, plug the cable back in.";

class Desk {
  public:
    explicit Desk(simulated::Desk desk = test::usualDesk()) : rig(std::move(desk)) {
        rig.startAndLoad();
        if (rig.world().monitor(2)) alder().recordTrace();
        clear();
    }
    void clear() {
        rig.log.clear();
        rig.calls.clear();
    }

    simulated::SimulatedMonitor& alder() { return rig.monitor(2); }
    ExternalDisplay& model() { return *rig.display(2); }
    model::DisplayManager& manager() { return *rig.manager; }
    void turnOff(std::optional<std::uint16_t> input = std::nullopt) {
        rig.perform(manager().disableOutput(rig.display(2), input));
    }
    // Off, and everybody knows.
    void turnOffAndRest(std::optional<std::uint16_t> input = std::nullopt) {
        turnOff(input);
        rig.runFor(10s);
        clear();
    }
    void turnOn() { manager().enableOutput(manager().disabled().at(0)); }
    bool isShown() { return rig.world().isOnline(2); }
    std::vector<std::uint16_t> written() {
        std::vector<std::uint16_t> result;
        for (const auto& write : inputWrites(alder())) result.push_back(write.input);
        return result;
    }
    std::vector<std::string> messages() const {
        std::vector<std::string> result;
        for (const test::LogLine& line : rig.log.lines()) {
            if (line.category == "display") result.push_back(line.text);
        }
        return result;
    }
    // What was saved of the list, in order.
    std::vector<std::string> saved() const {
        std::vector<std::string> result;
        const std::string start = "disabledDisplays = ";
        for (const std::string& call : rig.calls.calls()) {
            if (call.starts_with(start)) result.push_back(call.substr(start.size()));
        }
        return result;
    }

    ManagerRig rig;
};

// The only active display

TEST(DisplayManagerDisableOutput, OfTheOnlyDisplayIsRefused) {
    Desk desk(deskOf({monitorPlan(2, "Alder")}));
    desk.turnOff(otherInput);
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
    EXPECT_TRUE(desk.isShown());
}

TEST(DisplayManagerDisableOutput, OfTheOnlyDisplayLeavesEverythingAsItIs) {
    Desk desk(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    desk.rig.world().closeLid();
    desk.rig.runFor(1s);
    desk.clear();
    desk.turnOff(otherInput);
    desk.rig.runFor(10s);
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
    EXPECT_THAT(desk.written(), IsEmpty());
    EXPECT_THAT(desk.rig.log.lines(), IsEmpty());
    EXPECT_THAT(desk.rig.calls.calls(), IsEmpty());
    EXPECT_THAT(desk.manager().disabled(), IsEmpty());
    EXPECT_TRUE(desk.isShown());
}

TEST(DisplayManagerDisableOutput, WithThePanelOpenIsDone) {
    Desk desk(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    desk.turnOff();
    EXPECT_FALSE(desk.isShown());
    EXPECT_EQ(desk.manager().lastError(), std::nullopt);
}

TEST(DisplayManagerDisableOutput, WithAnotherExternalIsDone) {
    Desk desk(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    desk.turnOff();
    EXPECT_FALSE(desk.isShown());
}

TEST(DisplayManagerDisableOutput, DoesNotCountMonitorsThatAreOff) {
    Desk desk(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    desk.rig.perform(desk.manager().disableOutput(desk.rig.display(3), std::nullopt));
    desk.turnOff();
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
    EXPECT_TRUE(desk.isShown());
}

// The only active display by the time its turn comes

TEST(DisplayManagerDisableOutput, OfAllMonitorsAtOnceLeavesOne) {
    Desk desk(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(3), otherInput));
    desk.turnOff(otherInput);
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.isShown());
    EXPECT_FALSE(desk.rig.world().isOnline(3));
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(3U));
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
    EXPECT_THAT(desk.messages(), Not(Contains(HasSubstr("Turning Mac output off for Alder"))));
}

TEST(DisplayManagerDisableOutput, OfAllMonitorsWhileTheirInputsAreReadLeavesOne) {
    Desk desk(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    for (const platform::DisplayID id : {2U, 3U})
        desk.rig.display(id)->inputSettings().setMacInput(std::nullopt);
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(3), std::nullopt));
    desk.turnOff();
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.rig.offlineIDs(), SizeIs(1));
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
}

// The inventory does not know it yet.
TEST(DisplayManagerDisableOutput, WithTheLidClosedDuringTheHeadStartIsRefused) {
    Desk desk(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(2), otherInput));
    desk.rig.runFor(200ms);
    desk.rig.world().closeLid();
    desk.rig.runFor(200ms);
    ASSERT_TRUE(desk.manager().builtIn());
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
    EXPECT_THAT(desk.manager().disabled(), IsEmpty());
    EXPECT_EQ(desk.rig.calls.count("begin configuration"), 0);
}

TEST(DisplayManagerDisableOutput, WithTheLidClosedDuringTheReadingWritesNoInput) {
    Desk desk(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(2), otherInput));
    desk.rig.runFor(1ms);
    desk.rig.world().closeLid();
    desk.rig.runFor(400ms);
    EXPECT_THAT(inputReads(desk.alder()), SizeIs(1));
    EXPECT_THAT(desk.written(), IsEmpty());
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
}

TEST(DisplayManagerDisableOutput, AMomentAfterTheLidWasClosedIsRefused) {
    Desk desk(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    desk.rig.world().closeLid();
    desk.turnOff();
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
}

TEST(DisplayManagerDisableOutput, AMomentAfterTheOtherMonitorWasUnpluggedIsRefused) {
    Desk desk(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    desk.rig.world().unplug(3);
    desk.turnOff();
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
}

TEST(DisplayManagerDisableOutput, WithAnUnreadableOnlineListIsRefused) {
    Desk desk;
    desk.rig.displays.onlineInstead.emplace();
    desk.turnOff();
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.manager().lastError(), onlyDisplay);
}

TEST(DisplayManagerDisableOutput, TurnsNoOtherMonitorOffThatHasItsIdentifierByThen) {
    Desk desk;
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(2), otherInput));
    desk.rig.runFor(200ms);
    desk.rig.displays.serialInstead[2] = 999;
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.isShown());
    EXPECT_THAT(desk.manager().disabled(), IsEmpty());
    EXPECT_EQ(desk.manager().lastError(), std::nullopt);
}

// It is off by then, and the panel is the only display with a picture.
TEST(DisplayManagerDisableOutput, TwiceAtTheSameTimeBesideThePanelIsNoMistake) {
    Desk desk(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(2), otherInput));
    desk.rig.runFor(100ms);
    desk.turnOff(otherInput);
    desk.rig.runFor(1s);
    EXPECT_EQ(desk.manager().lastError(), std::nullopt);
    EXPECT_THAT(desk.manager().disabled(), ElementsAre(alderEntry));
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
}

// The input of this computer

TEST(DisplayManagerDisableOutput, LearnsTheMacInput) {
    Desk desk;
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.turnOff();
    EXPECT_EQ(desk.model().inputSettings().macInput(), computersInput);
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine("Alder: learned Mac input 0x0F")));
    EXPECT_EQ(persistence::Store::macInput(desk.rig.defaults, "1000-22-102"), computersInput);
}

TEST(DisplayManagerDisableOutput, LearnsTheMacInputFromTheMonitorAsItIsNow) {
    Desk desk;
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.alder().pressInputButton(thirdInput);
    desk.turnOff(otherInput);
    EXPECT_EQ(desk.model().inputSettings().macInput(), thirdInput);
}

TEST(DisplayManagerDisableOutput, LearnsTheMacInputBeforeItWritesAnother) {
    Desk desk;
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.turnOff(otherInput);
    EXPECT_EQ(desk.model().inputSettings().macInput(), computersInput);
    EXPECT_LT(inputReads(desk.alder()).at(0), inputWrites(desk.alder()).at(0).at);
}

TEST(DisplayManagerDisableOutput, LearnsTheMacInputFromTheLastReadingWhenItCannotRead) {
    Desk desk;
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.alder().setPower(simulated::SimulatedMonitor::Power::off);
    desk.turnOff();
    EXPECT_EQ(desk.model().inputSettings().macInput(), computersInput);
    EXPECT_FALSE(desk.isShown());
}

TEST(DisplayManagerDisableOutput, DoesNotReadAKnownMacInputAgain) {
    Desk desk;
    desk.model().inputSettings().setMacInput(thirdInput);
    desk.turnOff();
    EXPECT_EQ(desk.model().inputSettings().macInput(), thirdInput);
    EXPECT_THAT(inputReads(desk.alder()), IsEmpty());
    EXPECT_THAT(desk.messages(), Not(Contains(HasSubstr("learned"))));
}

TEST(DisplayManagerDisableOutput, LearnsNothingFromAnInputThatWasNeverRead) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.replyFaults = {{.kind = simulated::ReplyFault::Kind::nullMessage,
                                              .when = {.probability = 0, .every = 1, .first = 0},
                                              .codes = {0x60}}};
    Desk desk(deskOf({panelPlan(), plan}));
    ASSERT_TRUE(desk.model().feature(0x60));
    ASSERT_EQ(desk.model().feature(0x60)->current.get(), std::nullopt);
    desk.turnOff();
    EXPECT_EQ(desk.model().inputSettings().macInput(), std::nullopt);
    EXPECT_THAT(desk.messages(), Not(Contains(HasSubstr("learned"))));
    EXPECT_FALSE(desk.isShown());
}

TEST(DisplayManagerDisableOutput, LearnsNothingWithoutAnInputFeature) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->inputs.reset();
    Desk desk(deskOf({panelPlan(), plan}));
    desk.turnOff();
    EXPECT_EQ(desk.model().inputSettings().macInput(), std::nullopt);
    EXPECT_FALSE(desk.isShown());
}

// Where the monitor goes

TEST(DisplayManagerDisableOutput, SwitchesToTheInputThatWasPicked) {
    Desk desk;
    desk.model().inputSettings().setFocusInput(thirdInput);
    desk.turnOff(otherInput);
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
    EXPECT_EQ(desk.alder().shownInput(), otherInput);
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(standardLine("Turning Mac output off for Alder (id 2), switching to 0x11")));
}

TEST(DisplayManagerDisableOutput, SwitchesToTheFocusInputElse) {
    Desk desk;
    desk.model().inputSettings().setFocusInput(thirdInput);
    desk.turnOff();
    EXPECT_THAT(desk.written(), ElementsAre(thirdInput));
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(standardLine("Turning Mac output off for Alder (id 2), switching to 0x12")));
}

TEST(DisplayManagerDisableOutput, WithoutAnInputWritesNone) {
    Desk desk;
    desk.turnOff();
    EXPECT_THAT(desk.written(), IsEmpty());
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(standardLine("Turning Mac output off for Alder (id 2), switching to nothing")));
}

TEST(DisplayManagerDisableOutput, WithoutAnInputHappensAtOnce) {
    Desk desk;
    const auto before = desk.rig.now();
    desk.turnOff();
    EXPECT_THAT(desk.rig.calls.moments("complete configuration"), ElementsAre(before));
}

TEST(DisplayManagerDisableOutput, GivesTheMonitorAHeadStartOf300Milliseconds) {
    Desk desk;
    desk.turnOff(otherInput);
    const auto turnedOff = desk.rig.calls.moments("complete configuration").at(0);
    EXPECT_EQ(turnedOff - inputWrites(desk.alder()).at(0).at, 300ms);
    EXPECT_THAT(desk.rig.log.moments("Turning Mac output off for Alder (id 2), switching to 0x11"),
                ElementsAre(turnedOff));
}

TEST(DisplayManagerDisableOutput, WithoutAnInputFeatureWritesNoneAndDoesNotWait) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->inputs.reset();
    Desk desk(deskOf({panelPlan(), plan}));
    desk.model().inputSettings().setMacInput(computersInput);
    const auto before = desk.rig.now();
    desk.turnOff(otherInput);
    EXPECT_THAT(desk.written(), IsEmpty());
    EXPECT_THAT(desk.rig.calls.moments("complete configuration"), ElementsAre(before));
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(standardLine("Turning Mac output off for Alder (id 2), switching to 0x11")));
}

// What success does

TEST(DisplayManagerDisableOutput, PutsTheMonitorOnTheList) {
    Desk desk;
    desk.turnOff();
    EXPECT_THAT(desk.manager().disabled(), ElementsAre(alderEntry));
    EXPECT_THAT(desk.rig.stored(), ElementsAre(alderEntry));
}

TEST(DisplayManagerDisableOutput, SavesTheListWithoutItsOldEntryAndThenWithTheNewOne) {
    Desk desk;
    desk.turnOff();
    // The third is the refresh's.
    EXPECT_THAT(desk.saved(), ElementsAre("[]", alderJSON, alderJSON));
}

TEST(DisplayManagerDisableOutput, RefreshesAtOnce) {
    Desk desk;
    const auto before = desk.rig.now();
    desk.turnOff();
    EXPECT_EQ(desk.rig.refreshes().at(0), before);
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
    EXPECT_FALSE(desk.model().isOutputEnabled());
}

TEST(DisplayManagerDisableOutput, ClearsTheErrorText) {
    Desk desk;
    desk.rig.simulated.refuse(Refusal::enable);
    desk.turnOff();
    ASSERT_TRUE(desk.manager().lastError());
    desk.rig.simulated.refuse(Refusal::nothing);
    desk.turnOff();
    EXPECT_EQ(desk.manager().lastError(), std::nullopt);
}

TEST(DisplayManagerDisableOutput, KeepsItsModel) {
    Desk desk;
    const auto model = desk.rig.display(2);
    desk.turnOff();
    EXPECT_EQ(desk.manager().offline().at(2), model);
}

TEST(DisplayManagerDisableOutput, ListsMonitorsInTheOrderInWhichTheyWereTurnedOff) {
    Desk desk;
    desk.rig.perform(desk.manager().disableOutput(desk.rig.display(3), std::nullopt));
    desk.turnOff();
    ASSERT_THAT(desk.manager().disabled(), SizeIs(2));
    EXPECT_EQ(desk.manager().disabled().at(0).id, 3U);
    EXPECT_EQ(desk.manager().disabled().at(1).id, 2U);
}

TEST(DisplayManagerDisableOutput, TwiceAfterAFailedReturnLeavesOneEntry) {
    Desk desk;
    desk.turnOffAndRest();
    desk.rig.simulated.refuse(Refusal::enable);
    desk.turnOn();
    desk.rig.runFor(1s);
    desk.rig.simulated.refuse(Refusal::nothing);
    desk.turnOff();
    EXPECT_THAT(desk.manager().disabled(), ElementsAre(alderEntry));
    EXPECT_EQ(desk.manager().lastError(), std::nullopt);
}

TEST(DisplayManagerDisableOutput, TwiceAtTheSameTimeLeavesOneEntry) {
    Desk desk;
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(2), otherInput));
    desk.rig.runFor(100ms);
    desk.turnOff(otherInput);
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.manager().disabled(), ElementsAre(alderEntry));
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
}

TEST(DisplayManagerDisableOutput, OfTwoMonitorsAtTheSameTimeListsBoth) {
    Desk desk;
    desk.manager().start(desk.manager().disableOutput(desk.rig.display(3), otherInput));
    desk.rig.runFor(100ms);
    desk.turnOff(otherInput);
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.manager().disabled(), SizeIs(2));
    EXPECT_EQ(desk.rig.stored(), desk.manager().disabled());
}

// Refused

class RefusedTransaction : public testing::TestWithParam<Refusal> {};
INSTANTIATE_TEST_SUITE_P(Steps, RefusedTransaction,
                         testing::Values(Refusal::begin, Refusal::enable, Refusal::complete));

TEST_P(RefusedTransaction, KeepsTheOutputOn) {
    Desk desk;
    desk.rig.simulated.refuse(GetParam());
    desk.turnOff();
    EXPECT_EQ(desk.manager().lastError(), "macOS refused to turn the output off for Alder.");
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(displayLine(LogLevel::error, "macOS refused to turn output off for Alder")));
    EXPECT_THAT(desk.manager().disabled(), IsEmpty());
    EXPECT_THAT(desk.saved(), IsEmpty());
    EXPECT_THAT(desk.rig.refreshes(), IsEmpty());
    EXPECT_TRUE(desk.model().isOutputEnabled());
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.rig.simulated.openConfigurations(), 0U);
}

TEST_P(RefusedTransaction, DoesNotUndoTheChangeOfTheInput) {
    Desk desk;
    desk.rig.simulated.refuse(GetParam());
    desk.turnOff(otherInput);
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
    EXPECT_EQ(desk.alder().shownInput(), otherInput);
}

TEST_P(RefusedTransaction, KeepsTheMonitorAmongThoseThatAreOff) {
    Desk desk;
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.turnOffAndRest();
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.rig.simulated.refuse(GetParam());
    desk.turnOn();
    desk.rig.runFor(10s);
    EXPECT_EQ(desk.manager().lastError(), notBackOn);
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(displayLine(LogLevel::error, "macOS refused to turn output back on for Alder")));
    EXPECT_THAT(desk.manager().disabled(), ElementsAre(alderEntry));
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
    EXPECT_THAT(desk.saved(), IsEmpty());
    EXPECT_THAT(desk.rig.refreshes(), IsEmpty());
    EXPECT_EQ(desk.rig.simulated.openConfigurations(), 0U);
}

TEST_P(RefusedTransaction, KeepsAMonitorWithAMacInputAmongThoseThatAreOff) {
    Desk desk;
    desk.turnOffAndRest(otherInput);
    desk.rig.simulated.refuse(GetParam());
    desk.turnOn();
    desk.rig.runFor(10s);
    EXPECT_EQ(desk.manager().lastError(), notBackOn);
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
}

TEST(DisplayManagerDisableOutput, OnASystemThatCannotDoItIsRefused) {
    simulated::Desk without = test::usualDesk();
    without.missingSymbols = {"CGSConfigureDisplayEnabled"};
    Desk desk(without);
    desk.turnOff();
    EXPECT_EQ(desk.manager().lastError(), "macOS refused to turn the output off for Alder.");
    EXPECT_THAT(desk.manager().disabled(), IsEmpty());
}

// On again

TEST(DisplayManagerEnableOutput, ReturnsToTheMacInput) {
    Desk desk;
    desk.turnOffAndRest(otherInput);
    desk.turnOn();
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.model().isReturningToMac());
    desk.rig.runFor(9s);
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.alder().shownInput(), computersInput);
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine("Turning Mac output back on for Alder (id 2)")));
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine("Alder: monitor settled on the Mac input")));
    EXPECT_THAT(desk.messages(), Not(Contains(noMacInput)));
}

TEST(DisplayManagerEnableOutput, ReturnsBeforeAnythingHappens) {
    Desk desk;
    desk.turnOffAndRest(otherInput);
    desk.turnOn();
    EXPECT_THAT(desk.rig.log.lines(), IsEmpty());
    EXPECT_FALSE(desk.isShown());
}

TEST(DisplayManagerEnableOutput, WithoutAKnownMacInputOnlyTurnsTheOutputOn) {
    Desk desk;
    desk.turnOffAndRest(otherInput);
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.turnOn();
    desk.rig.runFor(1ms);
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine(noMacInput)));
    EXPECT_FALSE(desk.model().isReturningToMac());
    desk.rig.runFor(10s);
    EXPECT_TRUE(desk.isShown());
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
    EXPECT_EQ(desk.alder().shownInput(), otherInput);
    EXPECT_EQ(desk.manager().lastError(), std::nullopt);
}

TEST(DisplayManagerEnableOutput, WithoutAnInputFeatureOnlyTurnsTheOutputOn) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->inputs.reset();
    Desk desk(deskOf({panelPlan(), plan}));
    desk.model().inputSettings().setMacInput(computersInput);
    desk.turnOffAndRest();
    desk.turnOn();
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine(noMacInput)));
    EXPECT_TRUE(desk.isShown());
}

TEST(DisplayManagerEnableOutput, WithoutAModelOnlyTurnsTheOutputOn) {
    Desk desk;
    desk.turnOffAndRest();
    const DisabledDisplay entry{.id = 2, .key = alderEntry.key, .name = "The old one"};
    desk.manager().forget(entry);
    desk.manager().refresh();
    desk.manager().enableOutput(entry);
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(standardLine(
                    "Turning Mac output back on for The old one (id 2), no Mac input to switch to")));
    EXPECT_TRUE(desk.isShown());
}

TEST(DisplayManagerEnableOutput, TakesTheMonitorOffTheListAtOnce) {
    Desk desk;
    desk.turnOffAndRest(otherInput);
    desk.turnOn();
    desk.rig.runFor(1ms);
    EXPECT_THAT(desk.manager().disabled(), IsEmpty());
    EXPECT_THAT(desk.saved(), ElementsAre("[]"));
}

TEST(DisplayManagerEnableOutput, RefreshesWhenTheDisplaysAreQuiet) {
    Desk desk;
    desk.turnOffAndRest();
    const auto before = desk.rig.now();
    desk.turnOn();
    desk.rig.runFor(10s);
    EXPECT_THAT(desk.rig.refreshes(), ElementsAre(before + 600ms));
}

TEST(DisplayManagerEnableOutput, RefreshesAlsoWhenTheSystemReportsNoReconfiguration) {
    Desk desk;
    desk.turnOffAndRest();
    desk.rig.world().setOutput(2, World::Output::on);
    desk.rig.displays.onlineInstead = {1, 3};
    desk.rig.runFor(10s);
    desk.clear();
    const auto before = desk.rig.now();
    desk.turnOn();
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.rig.refreshes(), ElementsAre(before + 600ms));
}

TEST(DisplayManagerEnableOutput, ClearsTheErrorText) {
    Desk desk;
    desk.turnOffAndRest();
    desk.rig.simulated.refuse(Refusal::complete);
    desk.turnOn();
    desk.rig.runFor(1s);
    ASSERT_TRUE(desk.manager().lastError());
    desk.rig.simulated.refuse(Refusal::nothing);
    desk.turnOn();
    desk.rig.runFor(1ms);
    EXPECT_EQ(desk.manager().lastError(), std::nullopt);
}

TEST(DisplayManagerEnableOutput, OfAMonitorThatIsUnpluggedAsksForTheCable) {
    Desk desk;
    desk.turnOffAndRest();
    desk.rig.world().unplug(2);
    desk.rig.runFor(1s);
    desk.turnOn();
    desk.rig.runFor(1s);
    EXPECT_EQ(desk.manager().lastError(), notBackOn);
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
}

TEST(DisplayManagerEnableOutput, LeavesOtherMonitorsOff) {
    Desk desk;
    desk.rig.perform(desk.manager().disableOutput(desk.rig.display(3), std::nullopt));
    desk.turnOffAndRest();
    desk.manager().enableOutput(desk.manager().disabled().at(1));
    desk.rig.runFor(10s);
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(3U));
    EXPECT_THAT(desk.rig.externalIDs(), ElementsAre(2U));
}

// Over a restart

TEST(DisplayManagerDisabledOutput, StaysOffOverARestart) {
    Desk desk;
    desk.turnOffAndRest(otherInput);
    desk.rig.restart();
    desk.rig.runFor(10s);
    EXPECT_THAT(desk.manager().disabled(), ElementsAre(alderEntry));
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
    EXPECT_EQ(desk.model().name(), "Alder");
    EXPECT_FALSE(desk.model().isOutputEnabled());
}

TEST(DisplayManagerDisabledOutput, ReturnsToTheMacInputAfterARestart) {
    Desk desk;
    desk.turnOffAndRest(otherInput);
    desk.rig.restart();
    desk.rig.runFor(10s);
    EXPECT_EQ(desk.model().inputSettings().macInput(), computersInput);
    desk.turnOn();
    desk.rig.runFor(10s);
    EXPECT_TRUE(desk.isShown());
    EXPECT_EQ(desk.alder().shownInput(), computersInput);
}

TEST(DisplayManagerDisabledOutput, IsOnAfterARestartWhenTheMonitorIsOnline) {
    Desk desk;
    desk.turnOffAndRest();
    desk.rig.manager.reset();
    desk.rig.world().setOutput(2, World::Output::on);
    desk.rig.start();
    EXPECT_THAT(desk.manager().disabled(), IsEmpty());
    EXPECT_THAT(desk.rig.stored(), IsEmpty());
    EXPECT_TRUE(desk.model().isOutputEnabled());
}

TEST(DisplayManagerDisabledOutput, StaysOffWhileTheMonitorIsUnplugged) {
    Desk desk;
    desk.turnOffAndRest();
    desk.rig.world().unplug(2);
    desk.rig.runFor(1min);
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
    EXPECT_THAT(desk.rig.stored(), ElementsAre(alderEntry));
}

TEST(DisplayManagerDisabledOutput, IsOnWhenTheCableIsPluggedBackIn) {
    Desk desk;
    desk.turnOffAndRest();
    desk.rig.world().unplug(2);
    desk.rig.runFor(1min);
    desk.rig.world().plug(2);
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.rig.offlineIDs(), IsEmpty());
    EXPECT_THAT(desk.rig.externalIDs(), ElementsAre(2U, 3U));
    EXPECT_THAT(desk.rig.stored(), IsEmpty());
    EXPECT_TRUE(desk.model().isOutputEnabled());
}

}  // namespace
}  // namespace vantrel::model
