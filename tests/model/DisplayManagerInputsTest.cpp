#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ManagerRig.h"

namespace vantrel::model {
namespace {

using namespace std::chrono_literals;
using simulated::Refusal;
using test::computersInput;
using test::deskOf;
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

const std::string settled = "Alder: monitor settled on the Mac input";
const std::string replaced = "Alder: return to the Mac replaced by another input";
const std::string gaveUp = "Alder did not return to the Mac's input. Try again or use the monitor's buttons.";

std::string attempt(int number) {
    return "Alder: switching to Mac input 0x0F, attempt " + std::to_string(number);
}
std::string refused(int number) {
    return "Alder: monitor did not take the Mac input, attempt " + std::to_string(number);
}

// "Alder" is number 2 on every desk here.
simulated::Desk deskWith(simulated::DisplayPlan alder) {
    return deskOf({panelPlan(), std::move(alder), monitorPlan(3, "Birch")});
}

// Takes input requests from its own buttons only.
simulated::DisplayPlan stubborn() {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.inputSwitch.ignored.every = 1;
    return plan;
}

class Desk {
  public:
    explicit Desk(simulated::Desk desk = test::usualDesk()) : rig(std::move(desk)) {
        rig.startAndLoad();
        if (rig.world().monitor(2)) alder().recordTrace();
        rig.log.clear();
        rig.calls.clear();
    }

    simulated::SimulatedMonitor& alder() { return rig.monitor(2); }
    ExternalDisplay& model() { return *rig.display(2); }
    void select(std::uint16_t input) { rig.perform(rig.manager->selectInput(input, rig.display(2))); }
    void beginToSelect(std::uint16_t input) {
        rig.manager->start(rig.manager->selectInput(input, rig.display(2)));
    }
    void giveBack() { rig.perform(rig.manager->returnToMac(rig.display(2))); }
    void beginToGiveBack() { rig.manager->start(rig.manager->returnToMac(rig.display(2))); }
    // Until `text` was logged; a minute at the most.
    void runUntilLogged(const std::string& text) {
        for (int step = 0; step < 6000 && rig.log.moments(text).empty(); ++step) rig.runFor(10ms);
        ASSERT_THAT(rig.log.moments(text), SizeIs(1)) << text;
    }
    // Until the monitor was asked so often for its input; a minute at the most.
    void runUntilRead(std::size_t times) {
        for (int step = 0; step < 6000 && inputReads(alder()).size() < times; ++step) rig.runFor(10ms);
        ASSERT_THAT(inputReads(alder()), SizeIs(times));
    }
    // What was written to VCP 60.
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
    runtime::MonotonicTime moment(const std::string& text) const { return rig.log.moments(text).at(0); }

    ManagerRig rig;
};

// Picking an input

TEST(DisplayManagerSelectInput, OfThisComputerReturnsToIt) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(otherInput);
    desk.beginToSelect(computersInput);
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine(attempt(1))));
    desk.rig.runFor(5min);
    EXPECT_THAT(desk.written(), SizeIs(4));
    EXPECT_EQ(desk.rig.manager->lastError(), gaveUp);
}

TEST(DisplayManagerSelectInput, OfThisComputerWhileItReturnsDoesNothing) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(otherInput);
    desk.beginToSelect(computersInput);
    desk.rig.runFor(2s);
    const int request = desk.model().inputRequest();
    desk.select(computersInput);
    EXPECT_EQ(desk.model().inputRequest(), request);
    EXPECT_TRUE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.written(), SizeIs(1));
}

TEST(DisplayManagerSelectInput, CountsOneRequest) {
    Desk desk;
    desk.select(otherInput);
    EXPECT_EQ(desk.model().inputRequest(), 1);
    desk.select(thirdInput);
    EXPECT_EQ(desk.model().inputRequest(), 2);
}

TEST(DisplayManagerSelectInput, OfAnotherComputerTurnsTheOutputOff) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    EXPECT_FALSE(desk.rig.world().isOnline(2));
    EXPECT_THAT(desk.rig.offlineIDs(), ElementsAre(2U));
    EXPECT_EQ(desk.alder().shownInput(), otherInput);
    EXPECT_THAT(desk.rig.log.lines(),
                Contains(standardLine("Turning Mac output off for Alder (id 2), switching to 0x11")));
}

TEST(DisplayManagerSelectInput, TurnsTheOutputOffWhenAnotherExternalIsLeft) {
    Desk desk(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    desk.select(otherInput);
    EXPECT_FALSE(desk.rig.world().isOnline(2));
}

TEST(DisplayManagerSelectInput, OnTheOnlyDisplayOnlyWritesTheInput) {
    Desk desk(deskOf({monitorPlan(2, "Alder")}));
    desk.select(otherInput);
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.rig.world().isOnline(2));
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
    EXPECT_EQ(desk.rig.manager->lastError(), std::nullopt);
    EXPECT_EQ(desk.rig.calls.count("begin configuration"), 0);
}

TEST(DisplayManagerSelectInput, OnTheOnlyExternalWithTheLidClosedOnlyWritesTheInput) {
    Desk desk(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    desk.rig.world().closeLid();
    desk.rig.runFor(1s);
    desk.select(otherInput);
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.rig.world().isOnline(2));
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
}

TEST(DisplayManagerSelectInput, DoesNotCountMonitorsThatAreOff) {
    Desk desk(deskOf({monitorPlan(2, "Alder"), monitorPlan(3, "Birch")}));
    desk.rig.perform(desk.rig.manager->disableOutput(desk.rig.display(3), std::nullopt));
    desk.rig.runFor(1s);
    desk.select(otherInput);
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.rig.world().isOnline(2));
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
}

TEST(DisplayManagerSelectInput, WithoutAKnownMacInputOnlyWritesTheInput) {
    Desk desk;
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.select(otherInput);
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.rig.world().isOnline(2));
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
    EXPECT_EQ(desk.model().inputSettings().macInput(), std::nullopt);
}

TEST(DisplayManagerSelectInput, OnASystemThatCannotTurnOutputsOffOnlyWritesTheInput) {
    simulated::Desk without = test::usualDesk();
    without.missingSymbols = {"CGSConfigureDisplayEnabled"};
    Desk desk(without);
    desk.select(otherInput);
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.rig.world().isOnline(2));
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
    EXPECT_EQ(desk.rig.manager->lastError(), std::nullopt);
}

TEST(DisplayManagerSelectInput, WhileTheOutputIsOffOnlyWritesTheInput) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.rig.calls.clear();
    desk.select(thirdInput);
    desk.rig.runFor(1s);
    EXPECT_THAT(desk.written(), ElementsAre(otherInput, thirdInput));
    EXPECT_EQ(desk.rig.calls.count("begin configuration"), 0);
    EXPECT_THAT(desk.rig.manager->disabled(), SizeIs(1));
}

TEST(DisplayManagerSelectInput, WithoutAnInputFeatureWritesNothing) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->inputs.reset();
    Desk desk(deskWith(plan));
    ASSERT_FALSE(desk.model().feature(0x60));
    desk.model().inputSettings().setMacInput(computersInput);
    desk.select(otherInput);
    desk.rig.runFor(1s);
    EXPECT_EQ(desk.model().inputRequest(), 1);
    EXPECT_THAT(desk.written(), IsEmpty());
    EXPECT_TRUE(desk.rig.world().isOnline(2));
}

TEST(DisplayManagerSelectInput, WithoutAnInputFeatureEndsTheSpinnerNevertheless) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->inputs.reset();
    Desk desk(deskWith(plan));
    desk.model().setReturningToMac(true);
    desk.select(otherInput);
    EXPECT_FALSE(desk.model().isReturningToMac());
}

TEST(DisplayManagerSelectInput, IsNotVerified) {
    Desk desk(deskOf({monitorPlan(2, "Alder")}));
    desk.select(otherInput);
    desk.rig.runFor(7s);
    EXPECT_THAT(inputReads(desk.alder()), IsEmpty());
}

// Returning

TEST(DisplayManagerReturnToMac, SettlesOnTheThirdReading) {
    Desk desk(deskOf({monitorPlan(2, "Alder")}));
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.giveBack();
    EXPECT_EQ(desk.alder().shownInput(), computersInput);
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine(attempt(1))));
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine(settled)));
    EXPECT_THAT(inputReads(desk.alder()), SizeIs(3));
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_EQ(desk.rig.manager->lastError(), std::nullopt);
}

TEST(DisplayManagerReturnToMac, WritesTheInputOfThisComputer) {
    Desk desk(deskOf({monitorPlan(2, "Alder")}));
    desk.giveBack();
    EXPECT_THAT(desk.written(), ElementsAre(computersInput));
}

TEST(DisplayManagerReturnToMac, ShowsTheSpinnerUntilTheMonitorHasSettled) {
    Desk desk(deskOf({monitorPlan(2, "Alder")}));
    desk.beginToGiveBack();
    desk.rig.runFor(1ms);
    EXPECT_TRUE(desk.model().isReturningToMac());
    desk.rig.runFor(2s);
    EXPECT_TRUE(desk.model().isReturningToMac());
    desk.runUntilLogged(settled);
    EXPECT_FALSE(desk.model().isReturningToMac());
}

TEST(DisplayManagerReturnToMac, CountsOneRequest) {
    Desk desk;
    desk.giveBack();
    EXPECT_EQ(desk.model().inputRequest(), 1);
}

TEST(DisplayManagerReturnToMac, WithTheOutputOnDoesNotTurnItOn) {
    Desk desk;
    desk.giveBack();
    EXPECT_EQ(desk.rig.calls.count("begin configuration"), 0);
    EXPECT_THAT(desk.messages(), Not(Contains(HasSubstr("Turning Mac output back on"))));
}

TEST(DisplayManagerReturnToMac, WithTheOutputOnWritesTheInputAtOnce) {
    Desk desk;
    const auto before = desk.rig.now();
    desk.giveBack();
    EXPECT_EQ(inputWrites(desk.alder()).at(0).at, before);
}

TEST(DisplayManagerReturnToMac, WithoutAKnownMacInputDoesNothing) {
    Desk desk;
    desk.model().inputSettings().setMacInput(std::nullopt);
    desk.giveBack();
    EXPECT_EQ(desk.model().inputRequest(), 0);
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.rig.log.lines(), IsEmpty());
    EXPECT_THAT(desk.written(), IsEmpty());
}

TEST(DisplayManagerReturnToMac, WithoutAnInputFeatureDoesNothing) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->inputs.reset();
    Desk desk(deskWith(plan));
    desk.model().inputSettings().setMacInput(computersInput);
    desk.giveBack();
    EXPECT_EQ(desk.model().inputRequest(), 0);
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.rig.log.lines(), IsEmpty());
}

TEST(DisplayManagerReturnToMac, ASecondTimeWhileItRunsDoesNothing) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(otherInput);
    desk.beginToGiveBack();
    desk.rig.runFor(5s);
    desk.rig.log.clear();
    desk.giveBack();
    EXPECT_EQ(desk.model().inputRequest(), 1);
    EXPECT_TRUE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.rig.log.moments(attempt(1)), IsEmpty());
    EXPECT_THAT(desk.written(), SizeIs(1));
}

TEST(DisplayManagerReturnToMac, NamesInputsInHexadecimalDigits) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->capabilities = "(prot(monitor)vcp(10 12 60(0F 1B)))";
    plan.monitor->inputs = simulated::InputPlan{.computer = 0x1B, .shown = 0x1B, .available = {0x0F, 0x1B}};
    Desk desk(deskWith(plan));
    desk.giveBack();
    EXPECT_THAT(desk.messages(), Contains("Alder: switching to Mac input 0x1B, attempt 1"));
}

// Attempts

TEST(DisplayManagerReturnToMac, GivesUpAfterFourAttempts) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(otherInput);
    desk.giveBack();
    std::vector<test::LogLine> expected;
    for (int number = 1; number <= 4; ++number) {
        expected.push_back(standardLine(attempt(number)));
        expected.push_back(standardLine(refused(number)));
    }
    std::vector<test::LogLine> actual = desk.rig.log.lines();
    std::erase_if(actual, [](const test::LogLine& line) {
        return line.category != "display" || line.level != platform::LogLevel::standard;
    });
    EXPECT_EQ(actual, expected);
    EXPECT_THAT(desk.written(), ElementsAre(computersInput, computersInput, computersInput, computersInput));
}

TEST(DisplayManagerReturnToMac, TellsTheUserAfterTheFourthAttempt) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(otherInput);
    desk.beginToGiveBack();
    desk.rig.runFor(70s);
    EXPECT_EQ(desk.rig.manager->lastError(), std::nullopt);
    EXPECT_TRUE(desk.model().isReturningToMac());
    desk.runUntilLogged(refused(4));
    EXPECT_EQ(desk.rig.manager->lastError(), gaveUp);
    EXPECT_FALSE(desk.model().isReturningToMac());
}

TEST(DisplayManagerReturnToMac, WritesAgainAtOnceWhenAnAttemptFailed) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(otherInput);
    desk.giveBack();
    const auto writes = inputWrites(desk.alder());
    for (int number = 1; number < 4; ++number) {
        EXPECT_EQ(desk.moment(refused(number)), desk.moment(attempt(number + 1)));
        EXPECT_EQ(writes.at(static_cast<std::size_t>(number)).at, desk.moment(attempt(number + 1)));
    }
}

TEST(DisplayManagerReturnToMac, SucceedsOnALaterAttempt) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.inputSwitch.ignored.first = 2;
    Desk desk(deskWith(plan));
    desk.alder().pressInputButton(otherInput);
    desk.giveBack();
    EXPECT_THAT(desk.messages(), Contains(refused(2)));
    EXPECT_THAT(desk.messages(), Contains(attempt(3)));
    EXPECT_EQ(desk.messages().back(), settled);
    EXPECT_EQ(desk.alder().shownInput(), computersInput);
}

TEST(DisplayManagerReturnToMac, CanBeTriedAgainAfterItGaveUp) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(otherInput);
    desk.giveBack();
    desk.alder().pressInputButton(computersInput);
    desk.giveBack();
    EXPECT_THAT(desk.messages(), Contains(settled));
    EXPECT_EQ(desk.rig.manager->lastError(), std::nullopt);
}

TEST(DisplayManagerReturnToMac, LeavesAnOldErrorTextUntilItSettles) {
    Desk desk;
    desk.rig.simulated.refuse(Refusal::enable);
    desk.rig.perform(desk.rig.manager->disableOutput(desk.rig.display(3), std::nullopt));
    const auto text = desk.rig.manager->lastError();
    ASSERT_TRUE(text);
    desk.beginToGiveBack();
    desk.rig.runFor(1s);
    EXPECT_EQ(desk.rig.manager->lastError(), text);
    desk.runUntilLogged(settled);
    EXPECT_EQ(desk.rig.manager->lastError(), std::nullopt);
}

// With the output off

TEST(DisplayManagerReturnToMac, TurnsTheOutputOnFirst) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.rig.log.clear();
    desk.giveBack();
    EXPECT_TRUE(desk.rig.world().isOnline(2));
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine("Turning Mac output back on for Alder (id 2)")));
    EXPECT_LT(desk.moment("Turning Mac output back on for Alder (id 2)"), desk.moment(attempt(1)));
    EXPECT_THAT(desk.messages(), Contains(settled));
}

TEST(DisplayManagerReturnToMac, GivesTheOutputOneAndAHalfSecondsBeforeItWrites) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.rig.calls.clear();
    desk.giveBack();
    const auto turnedOn = desk.rig.calls.moments("complete configuration").at(0);
    const auto writes = inputWrites(desk.alder());
    EXPECT_EQ(writes.back().input, computersInput);
    EXPECT_EQ(writes.back().at, turnedOn + 1500ms);
}

TEST(DisplayManagerReturnToMac, ShowsTheSpinnerWhileTheOutputComesBack) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.beginToGiveBack();
    desk.rig.runFor(1s);
    EXPECT_TRUE(desk.model().isReturningToMac());
}

TEST(DisplayManagerReturnToMac, TakesTheMonitorOffTheListOfThoseThatAreOff) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.giveBack();
    EXPECT_THAT(desk.rig.manager->disabled(), IsEmpty());
    EXPECT_THAT(desk.rig.stored(), IsEmpty());
    EXPECT_THAT(desk.rig.externalIDs(), ElementsAre(2U, 3U));
}

class ReturnWithoutOutput : public testing::TestWithParam<Refusal> {};

TEST_P(ReturnWithoutOutput, StopsWhenTheSystemRefusesToTurnTheOutputOn) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.rig.simulated.refuse(GetParam());
    desk.giveBack();
    EXPECT_EQ(desk.rig.manager->lastError(),
              "Couldn't turn Alder back on. If it was disconnected, plug the cable back in.");
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_THAT(desk.written(), ElementsAre(otherInput));
    EXPECT_THAT(desk.rig.manager->disabled(), SizeIs(1));
    EXPECT_THAT(desk.messages(), Not(Contains(attempt(1))));
    EXPECT_EQ(desk.rig.simulated.openConfigurations(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Steps, ReturnWithoutOutput,
                         testing::Values(Refusal::begin, Refusal::enable, Refusal::complete));

// Superseded

TEST(DisplayManagerSupersededReturn, SaysSoAtTheNextAttempt) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(thirdInput);
    desk.beginToGiveBack();
    desk.rig.runFor(5s);
    desk.select(otherInput);
    desk.rig.runFor(2s);
    EXPECT_THAT(desk.rig.log.lines(), Contains(standardLine(replaced)));
    EXPECT_THAT(desk.messages(), Not(Contains(refused(1))));
    EXPECT_THAT(desk.messages(), Not(Contains(attempt(2))));
}

TEST(DisplayManagerSupersededReturn, StopsReadingWithinASecond) {
    Desk desk(deskOf({stubborn()}));
    desk.alder().pressInputButton(thirdInput);
    desk.beginToGiveBack();
    desk.rig.runFor(5s);
    desk.select(otherInput);
    const std::size_t reads = inputReads(desk.alder()).size();
    desk.rig.runFor(7s);
    EXPECT_EQ(inputReads(desk.alder()).size(), reads);
}

TEST(DisplayManagerSupersededReturn, EndsTheSpinnerAtOnce) {
    Desk desk(deskWith(stubborn()));
    desk.alder().pressInputButton(thirdInput);
    desk.beginToGiveBack();
    desk.rig.runFor(5s);
    desk.beginToSelect(otherInput);
    desk.rig.runFor(1ms);
    EXPECT_FALSE(desk.model().isReturningToMac());
}

TEST(DisplayManagerSupersededReturn, DoesNotTouchTheErrorText) {
    Desk desk(deskOf({stubborn()}));
    desk.alder().pressInputButton(thirdInput);
    desk.rig.perform(desk.rig.manager->disableOutput(desk.rig.display(2), std::nullopt));
    const auto text = desk.rig.manager->lastError();
    ASSERT_TRUE(text);
    desk.beginToGiveBack();
    desk.rig.runFor(5s);
    desk.select(otherInput);
    desk.runUntilLogged(replaced);
    EXPECT_EQ(desk.rig.manager->lastError(), text);
}

TEST(DisplayManagerSupersededReturn, DoesNotTouchTheSpinnerOfTheNextOne) {
    Desk desk(deskOf({stubborn()}));
    desk.alder().pressInputButton(thirdInput);
    desk.beginToGiveBack();
    desk.rig.runFor(4700ms);
    desk.select(otherInput);
    desk.beginToGiveBack();
    desk.runUntilLogged(replaced);
    EXPECT_TRUE(desk.model().isReturningToMac());
    desk.rig.runFor(5s);
    EXPECT_TRUE(desk.model().isReturningToMac());
}

TEST(DisplayManagerSupersededReturn, WhileTheOutputComesBackNeverWritesTheInput) {
    Desk desk;
    desk.select(otherInput);
    desk.rig.runFor(1s);
    desk.beginToGiveBack();
    desk.rig.runFor(1s);
    desk.select(thirdInput);
    desk.runUntilLogged(replaced);
    EXPECT_THAT(desk.written(), ElementsAre(otherInput, thirdInput));
    EXPECT_THAT(desk.messages(), Not(Contains(attempt(1))));
    EXPECT_EQ(desk.alder().shownInput(), thirdInput);
}

TEST(DisplayManagerSupersededReturn, InItsLastAttemptSaysNothingAtAll) {
    Desk desk(deskOf({stubborn()}));
    desk.alder().pressInputButton(thirdInput);
    desk.beginToGiveBack();
    desk.rig.runFor(50s);
    desk.runUntilLogged(attempt(4));
    desk.rig.runFor(3s);
    desk.select(otherInput);
    desk.rig.runFor(1min);
    EXPECT_THAT(desk.messages(), Not(Contains(replaced)));
    EXPECT_THAT(desk.messages(), Not(Contains(refused(4))));
    EXPECT_EQ(desk.rig.manager->lastError(), std::nullopt);
    EXPECT_FALSE(desk.model().isReturningToMac());
}

// The reading that would settle it is under way when the next return begins.
TEST(DisplayManagerSupersededReturn, DoesNotSettleAnyMore) {
    Desk desk(deskOf({stubborn()}));
    desk.beginToGiveBack();
    // The third reading takes from 2.18 s to 2.24 s.
    desk.rig.runFor(2200ms);
    ASSERT_THAT(inputReads(desk.alder()), SizeIs(3));
    desk.beginToSelect(otherInput);
    desk.rig.runFor(1ms);
    desk.beginToGiveBack();
    desk.runUntilLogged(replaced);
    EXPECT_THAT(desk.messages(), Not(Contains(settled)));
    EXPECT_TRUE(desk.model().isReturningToMac());
    desk.runUntilLogged(settled);
    EXPECT_FALSE(desk.model().isReturningToMac());
    EXPECT_EQ(desk.model().inputRequest(), 3);
}

TEST(DisplayManagerSupersededReturn, DoesNotSettleInItsLastAttemptEither) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.inputSwitch.ignored.first = 3;
    Desk desk(deskOf({plan}));
    desk.alder().pressInputButton(otherInput);
    desk.beginToGiveBack();
    desk.rig.runFor(50s);
    desk.runUntilLogged(attempt(4));
    const std::size_t reads = inputReads(desk.alder()).size();
    desk.runUntilRead(reads + 3);
    desk.select(thirdInput);
    desk.rig.runFor(10s);
    for (const std::string& line : {settled, replaced, refused(4)})
        EXPECT_THAT(desk.messages(), Not(Contains(line)));
    EXPECT_EQ(desk.alder().shownInput(), thirdInput);
}

// The text of the newer request is there before the last reading of the older one.
TEST(DisplayManagerSupersededReturn, LeavesTheErrorTextOfTheNextRequest) {
    simulated::DisplayPlan plan = stubborn();
    plan.monitor->personality.byteTime = 20ms;
    Desk desk(deskWith(plan));
    desk.beginToGiveBack();
    desk.runUntilRead(3);
    desk.rig.simulated.refuse(Refusal::enable);
    desk.select(otherInput);
    const auto text = desk.rig.manager->lastError();
    ASSERT_EQ(text, "macOS refused to turn the output off for Alder.");
    ASSERT_THAT(desk.messages(), Not(Contains(replaced)));
    desk.rig.runFor(10s);
    EXPECT_THAT(desk.messages(), Contains(replaced));
    EXPECT_EQ(desk.rig.manager->lastError(), text);
}

TEST(DisplayManagerSupersededReturn, DoesNotConcernOtherMonitors) {
    Desk desk;
    desk.beginToGiveBack();
    desk.rig.runFor(500ms);
    desk.rig.perform(desk.rig.manager->selectInput(otherInput, desk.rig.display(3)));
    desk.runUntilLogged(settled);
    EXPECT_EQ(desk.model().inputRequest(), 1);
}

TEST(DisplayManagerReturnToMac, EndsWithTheManager) {
    Desk desk(deskWith(stubborn()));
    desk.beginToGiveBack();
    desk.rig.runFor(1100ms);
    desk.rig.manager.reset();
    desk.rig.log.clear();
    desk.rig.runFor(5min);
    EXPECT_THAT(desk.messages(), IsEmpty());
}

}  // namespace
}  // namespace vantrel::model
