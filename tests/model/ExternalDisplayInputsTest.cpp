#include <gtest/gtest.h>

#include "support/DisplayRig.h"
#include "support/MonitorPlans.h"
#include "support/Wakes.h"

namespace vantrel::model {
namespace {

using namespace std::chrono_literals;
using platform::DefaultsData;
using platform::DefaultsValue;
using platform::LogLevel;
using test::DisplayRig;
using test::hasInputs;
using test::neverAnswers;
using test::quietMonitor;
using test::usualMonitor;
using Link = DisplayRig::Link;
using Lines = DisplayRig::Lines;
using Requests = DisplayRig::Requests;
using Inputs = std::vector<ExternalDisplay::Input>;

std::string settingKey(const std::string& prefix) { return prefix + DisplayRig::key; }

// The model that misreports its inputs, showing HDMI 1, which it reads as 1.
simulated::DisplayPlan misreportingDisplay() {
    simulated::MonitorPlan monitor = test::monitorThatLists("10 60(01 03 04 11)");
    test::has(monitor, 0x10, 60, 100);
    hasInputs(monitor, {0x11, 0x0F, 0x12});
    monitor.personality.inputReadings = {{0x11, 1}, {0x0F, 3}, {0x12, 4}};
    simulated::DisplayPlan plan = test::aurora(std::move(monitor));
    plan.vendor = 0x0472;
    plan.product = 0x0782;
    return plan;
}

// A monitor that lists DisplayPort 1 and HDMI 1, and shows an input that it doesn't.
simulated::MonitorPlan monitorOnAnUnlistedInput() {
    simulated::MonitorPlan plan = usualMonitor();
    hasInputs(plan, {0x12, 0x0F, 0x11});
    return plan;
}

TEST(ExternalDisplayInputs, ThereAreNoneWithoutTheFeature) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.inputs(), Inputs{});
    EXPECT_EQ(display.visibleInputs(), Inputs{});
}

TEST(ExternalDisplayInputs, AreThoseOfTheCapabilities) {
    DisplayRig rig(usualMonitor());
    EXPECT_EQ(rig.makeLoaded().inputs(), (Inputs{0x0F, 0x11}));
}

TEST(ExternalDisplayInputs, AreInTheOrderOfTheCapabilities) {
    simulated::MonitorPlan plan = usualMonitor();
    plan.capabilities = "(vcp(60(11 0F)))";
    DisplayRig rig(plan);
    EXPECT_EQ(rig.makeLoaded().inputs(), (Inputs{0x11, 0x0F}));
}

TEST(ExternalDisplayInputs, TheCurrentOneIsNotAddedToThoseOfTheCapabilities) {
    DisplayRig rig(monitorOnAnUnlistedInput());
    EXPECT_EQ(rig.makeLoaded().inputs(), (Inputs{0x0F, 0x11}));
}

TEST(ExternalDisplayInputs, AreTheUsualFiveWhenTheCapabilitiesListNone) {
    simulated::MonitorPlan plan = usualMonitor();
    plan.capabilities = "(vcp(10 60))";
    DisplayRig rig(plan);
    EXPECT_EQ(rig.makeLoaded().inputs(), (Inputs{0x0F, 0x10, 0x11, 0x12, 0x1B}));
}

TEST(ExternalDisplayInputs, AreTheUsualFiveWithoutCapabilities) {
    DisplayRig rig(quietMonitor());
    EXPECT_EQ(rig.makeLoaded().inputs(), (Inputs{0x0F, 0x10, 0x11, 0x12, 0x1B}));
}

TEST(ExternalDisplayInputs, AreThoseOfTheProfileWhateverTheCapabilitiesSay) {
    DisplayRig rig(misreportingDisplay());
    EXPECT_EQ(rig.makeLoaded().inputs(), (Inputs{0x0F, 0x11, 0x12}));
}

TEST(ExternalDisplayInputs, AreTheUsersOwnWhateverTheProfileSays) {
    DisplayRig rig(misreportingDisplay());
    rig.defaults.set("customInputs.1138-1922-77", DefaultsData{"[17,27]"});
    EXPECT_EQ(rig.makeLoaded().inputs(), (Inputs{0x11, 0x1B}));
}

TEST(ExternalDisplayInputs, AreNoneWhenTheUsersOwnListIsEmpty) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set(settingKey("customInputs."), DefaultsData{"[]"});
    EXPECT_EQ(rig.makeLoaded().inputs(), Inputs{});
}

TEST(ExternalDisplayInputs, TheVisibleOnesAreThoseThatAreNotHiddenInTheirOrder) {
    DisplayRig rig(quietMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.inputSettings().setHidden({0x10, 0x1B, 0x55});
    EXPECT_EQ(display.visibleInputs(), (Inputs{0x0F, 0x11, 0x12}));
    EXPECT_EQ(display.inputs(), (Inputs{0x0F, 0x10, 0x11, 0x12, 0x1B}));
}

TEST(ExternalDisplayInputs, AreCalledByTheUsersAlias) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    display.inputSettings().setAliases({{0x11, "Desk PC"}, {0x55, "Box"}});
    EXPECT_EQ(display.inputName(0x11), "Desk PC");
    EXPECT_EQ(display.inputName(0x55), "Box");
}

TEST(ExternalDisplayInputs, AreCalledByTheStandardsNameWithoutAnAlias) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.inputName(0x11), "HDMI 1");
    EXPECT_EQ(display.inputName(0x0C), "Component 1");
}

TEST(ExternalDisplayInputs, AnEmptyAliasIsNone) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    display.inputSettings().setAliases({{0x11, ""}, {0x1A, ""}});
    EXPECT_EQ(display.inputName(0x11), "HDMI 1");
    EXPECT_EQ(display.inputName(0x1A), "Input 0x1A");
}

TEST(ExternalDisplayInputs, ThoseWithoutANameAreCalledByTheirNumber) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.inputName(0x1A), "Input 0x1A");
    EXPECT_EQ(display.inputName(0), "Input 0x00");
    EXPECT_EQ(display.inputName(0x123), "Input 0x123");
}

TEST(ExternalDisplayInputs, AddingOneMakesTheListTheUsersOwnWithItAtTheEnd) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.addInput(0x01);
    EXPECT_EQ(display.inputSettings().customInputs(), (Inputs{0x0F, 0x11, 0x01}));
    EXPECT_EQ(display.inputs(), (Inputs{0x0F, 0x11, 0x01}));
    EXPECT_EQ(rig.defaults.value("customInputs.4242-1001-77"), DefaultsValue(DefaultsData{"[15,17,1]"}));
}

TEST(ExternalDisplayInputs, AddingOneThatIsThereChangesNothing) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    EXPECT_FALSE(test::wakes([&] { return display.inputs(); }, [&] { display.addInput(0x11); }));
    EXPECT_EQ(display.inputSettings().customInputs(), std::nullopt);
    EXPECT_EQ(rig.defaults.value("customInputs.4242-1001-77"), std::nullopt);
}

TEST(ExternalDisplayInputs, AddingOneWakesTheReadersOfTheList) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    EXPECT_TRUE(test::wakes([&] { return display.inputs(); }, [&] { display.addInput(0x12); }));
}

TEST(ExternalDisplayInputs, AddingOneWithoutTheFeatureBeginsAList) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    display.addInput(0x11);
    EXPECT_EQ(display.inputSettings().customInputs(), Inputs{0x11});
    EXPECT_EQ(display.inputs(), Inputs{});
}

TEST(ExternalDisplayInputs, RemovingOneMakesTheListTheUsersOwnWithoutIt) {
    DisplayRig rig(quietMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.removeInput(0x10);
    EXPECT_EQ(display.inputSettings().customInputs(), (Inputs{0x0F, 0x11, 0x12, 0x1B}));
    EXPECT_EQ(display.inputs(), (Inputs{0x0F, 0x11, 0x12, 0x1B}));
    EXPECT_EQ(rig.defaults.value("customInputs.4242-1001-77"), DefaultsValue(DefaultsData{"[15,17,18,27]"}));
}

TEST(ExternalDisplayInputs, RemovingTheLastOneLeavesAnEmptyList) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set(settingKey("customInputs."), DefaultsData{"[17]"});
    ExternalDisplay& display = rig.makeLoaded();
    display.removeInput(0x11);
    EXPECT_EQ(display.inputSettings().customInputs(), Inputs{});
    EXPECT_EQ(display.inputs(), Inputs{});
}

TEST(ExternalDisplayInputs, RemovingOneThatIsNotThereKeepsTheListAsTheUsersOwn) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.removeInput(0x55);
    EXPECT_EQ(display.inputSettings().customInputs(), (Inputs{0x0F, 0x11}));
}

TEST(ExternalDisplayInputs, RemovingTheFocusInputClearsIt) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.inputSettings().setFocusInput(0x11);
    display.removeInput(0x11);
    EXPECT_EQ(display.inputSettings().focusInput(), std::nullopt);
    EXPECT_EQ(rig.defaults.value("focusInput.4242-1001-77"), DefaultsValue(std::int64_t{0}));
    EXPECT_EQ(display.inputSettings().macInput(), 0x0F);
}

TEST(ExternalDisplayInputs, RemovingTheMacInputClearsIt) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.inputSettings().setFocusInput(0x11);
    display.removeInput(0x0F);
    EXPECT_EQ(display.inputSettings().macInput(), std::nullopt);
    EXPECT_EQ(rig.defaults.value("macInput.4242-1001-77"), DefaultsValue(std::int64_t{0}));
    EXPECT_EQ(display.inputSettings().focusInput(), 0x11);
}

TEST(ExternalDisplayInputs, RemovingOneThatIsBothClearsBoth) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.inputSettings().setFocusInput(0x0F);
    display.removeInput(0x0F);
    EXPECT_EQ(display.inputSettings().focusInput(), std::nullopt);
    EXPECT_EQ(display.inputSettings().macInput(), std::nullopt);
}

TEST(ExternalDisplayInputs, RemovingAnotherKeepsFocusAndMacInput) {
    DisplayRig rig(quietMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.inputSettings().setFocusInput(0x11);
    display.removeInput(0x12);
    EXPECT_EQ(display.inputSettings().focusInput(), 0x11);
    EXPECT_EQ(display.inputSettings().macInput(), 0x0F);
}

TEST(ExternalDisplayInputs, GivingTheUsersOwnListUpGoesBackToTheDetectedOne) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set(settingKey("customInputs."), DefaultsData{"[1]"});
    ExternalDisplay& display = rig.makeLoaded();
    ASSERT_EQ(display.inputs(), Inputs{1});
    display.setCustomInputs(std::nullopt);
    EXPECT_EQ(display.inputs(), (Inputs{0x0F, 0x11}));
    EXPECT_EQ(rig.defaults.value("customInputs.4242-1001-77"), std::nullopt);
}

TEST(ExternalDisplayInputs, GivingItUpGoesBackToTheProfilesOnes) {
    DisplayRig rig(misreportingDisplay());
    ExternalDisplay& display = rig.makeLoaded();
    display.setCustomInputs(Inputs{1});
    EXPECT_EQ(display.inputs(), Inputs{1});
    display.setCustomInputs(std::nullopt);
    EXPECT_EQ(display.inputs(), (Inputs{0x0F, 0x11, 0x12}));
}

TEST(ExternalDisplayInputs, ALoadTranslatesAMisreportedInput) {
    DisplayRig rig(misreportingDisplay());
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x60).current.get(), 0x11);
}

TEST(ExternalDisplayInputs, ALoadDoesNotGuessAtAnUnlistedInput) {
    DisplayRig rig(monitorOnAnUnlistedInput());
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x60).current.get(), std::nullopt);
    EXPECT_EQ(rig.lines("display", LogLevel::standard).back(),
              "Aurora: loaded 4 features, inputs 0x0F, 0x11, current input unknown");
}

TEST(ExternalDisplayInputs, TheFirstLoadLearnsTheMacInput) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.makeLoaded();
    EXPECT_EQ(display.inputSettings().macInput(), 0x0F);
    EXPECT_EQ(rig.defaults.value("macInput.4242-1001-77"), DefaultsValue(std::int64_t{15}));
    EXPECT_TRUE(rig.logged("display", LogLevel::standard, "Aurora: assuming Mac input is 0x0F"));
}

TEST(ExternalDisplayInputs, AKnownMacInputIsNotLearnedAgain) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set(settingKey("macInput."), std::int64_t{0x11});
    const ExternalDisplay& display = rig.makeLoaded();
    EXPECT_EQ(display.inputSettings().macInput(), 0x11);
    EXPECT_FALSE(rig.mentioned("assuming Mac input"));
}

TEST(ExternalDisplayInputs, AnUnknownInputTeachesNothing) {
    DisplayRig rig(monitorOnAnUnlistedInput());
    EXPECT_EQ(rig.makeLoaded().inputSettings().macInput(), std::nullopt);
    EXPECT_FALSE(rig.mentioned("assuming Mac input"));
}

TEST(ExternalDisplayInputs, ARefreshLearnsTheMacInputThatTheLoadCouldNot) {
    simulated::MonitorPlan plan = usualMonitor();
    neverAnswers(plan, {0x60});
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.makeLoaded();
    ASSERT_EQ(display.inputSettings().macInput(), std::nullopt);
    rig.monitor().becomeHealthy();
    rig.refresh();
    EXPECT_EQ(display.inputSettings().macInput(), 0x0F);
}

TEST(ExternalDisplayInputs, ARefreshTakesTheInputAndLogsWhatItRead) {
    DisplayRig rig(misreportingDisplay());
    rig.makeLoaded();
    rig.monitor().pressInputButton(0x0F);
    rig.refresh();
    EXPECT_EQ(rig.feature(0x60).current.get(), 0x0F);
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{"Aurora: input reads raw 3 \u2192 0x0F"});
}

TEST(ExternalDisplayInputs, ARefreshLeavesTheMaximumOfTheInputAsItIs) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    rig.refresh();
    EXPECT_EQ(rig.feature(0x60).maximum.get(), 100);
}

TEST(ExternalDisplayInputs, AnUnlistedReadingLeavesTheInputAsItIs) {
    simulated::MonitorPlan plan = usualMonitor();
    hasInputs(plan, {0x0F, 0x11, 0x12});
    DisplayRig rig(plan);
    rig.makeLoaded();
    rig.monitor().pressInputButton(0x12);
    rig.refresh();
    EXPECT_EQ(rig.feature(0x60).current.get(), 0x0F);
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{"Aurora: input reads raw 18 \u2192 unknown"});
}

TEST(ExternalDisplayInputs, ReadingAsksOnceAndGivesTheInput) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    rig.monitor().pressInputButton(0x11);
    EXPECT_EQ(rig.readInput(), 0x11);
    EXPECT_EQ(rig.feature(0x60).current.get(), 0x11);
    EXPECT_EQ(rig.requests(), Requests{"get 60"});
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{"Aurora: input reads raw 17 \u2192 0x11"});
}

TEST(ExternalDisplayInputs, ReadingTranslatesAMisreportedInput) {
    DisplayRig rig(misreportingDisplay());
    rig.makeLoaded();
    rig.monitor().pressInputButton(0x12);
    EXPECT_EQ(rig.readInput(), 0x12);
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{"Aurora: input reads raw 4 \u2192 0x12"});
}

TEST(ExternalDisplayInputs, ReadingAnUnlistedInputGivesNothing) {
    simulated::MonitorPlan plan = usualMonitor();
    hasInputs(plan, {0x0F, 0x11, 0x12});
    DisplayRig rig(plan);
    rig.makeLoaded();
    rig.monitor().pressInputButton(0x12);
    EXPECT_EQ(rig.readInput(), std::nullopt);
    EXPECT_EQ(rig.feature(0x60).current.get(), 0x0F);
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{"Aurora: input reads raw 18 \u2192 unknown"});
}

TEST(ExternalDisplayInputs, ReadingAnUnchangedInputWakesNobody) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    EXPECT_FALSE(test::wakes([&] { return rig.feature(0x60).current.get(); }, [&] { rig.readInput(); }));
}

TEST(ExternalDisplayInputs, ReadingTeachesNoMacInput) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.inputSettings().setMacInput(std::nullopt);
    rig.readInput();
    EXPECT_EQ(display.inputSettings().macInput(), std::nullopt);
}

TEST(ExternalDisplayInputs, ReadingWithoutAnAnswerTriesOnceAndGivesNothing) {
    simulated::MonitorPlan plan = usualMonitor();
    neverAnswers(plan, {0x60});
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.readInput(), std::nullopt);
    EXPECT_EQ(rig.requests(), Requests{"get 60"});
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{});
}

TEST(ExternalDisplayInputs, ReadingAnUnsupportedInputGivesNothing) {
    simulated::MonitorPlan plan = usualMonitor();
    plan.inputs.reset();
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.readInput(), std::nullopt);
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{});
}

TEST(ExternalDisplayInputs, ReadingBeforeALoadGivesNothingBecauseNoInputIsListed) {
    DisplayRig rig(usualMonitor());
    rig.make();
    EXPECT_EQ(rig.readInput(), std::nullopt);
    EXPECT_EQ(rig.lines("display", LogLevel::info), Lines{"Aurora: input reads raw 15 \u2192 unknown"});
}

TEST(ExternalDisplayInputs, ReadingWithoutAServiceGivesNothing) {
    DisplayRig rig(usualMonitor());
    rig.make(Link::missing);
    EXPECT_EQ(rig.readInput(), std::nullopt);
    EXPECT_EQ(rig.requests(), Requests{});
}

TEST(ExternalDisplayInputs, ReadingWorksWhileReturning) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded().setReturningToMac(true);
    EXPECT_EQ(rig.readInput(), 0x0F);
}

}  // namespace
}  // namespace vantrel::model
