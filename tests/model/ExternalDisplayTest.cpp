#include <gtest/gtest.h>

#include "mccs/MCCS.h"
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
using test::usualMonitor;
using Link = DisplayRig::Link;
using LoadState = ExternalDisplay::LoadState;
using Lines = DisplayRig::Lines;
using Requests = DisplayRig::Requests;

simulated::MonitorPlan silentMonitor() {
    simulated::MonitorPlan plan;
    plan.personality.dead = true;
    return plan;
}

// A monitor with one feature of every kind in the section "more".
simulated::MonitorPlan richMonitor() {
    simulated::MonitorPlan plan = test::monitorThatLists(
        "F0 E5 D6(01 04) C0 05 04 8D(01 02) 93 8F DC 87 1A 16 14(05) "
        "10 12 60(0F 11) 62");
    test::hasAll(plan,
                 {0xF0, 0xE5, 0xD6, 0xC0, 0x8D, 0x93, 0x8F, 0xDC, 0x87, 0x1A, 0x16, 0x14, 0x10, 0x12, 0x62},
                 1, 100);
    test::hasInputs(plan, {0x0F, 0x11});
    return plan;
}

TEST(ExternalDisplay, TakesTheGivenName) {
    DisplayRig rig(usualMonitor());
    EXPECT_EQ(rig.make(Link::found, "Left").name(), "Left");
}

TEST(ExternalDisplay, TakesTheNameOfItsScreenWhenNoneIsGiven) {
    DisplayRig rig(usualMonitor());
    EXPECT_EQ(rig.make(Link::found, std::nullopt).name(), "Aurora");
}

TEST(ExternalDisplay, IsAnExternalMonitorWhenItHasNoScreen) {
    DisplayRig rig(usualMonitor());
    rig.simulated.world().setOutput(DisplayRig::id, simulated::World::Output::off);
    EXPECT_EQ(rig.make(Link::found, std::nullopt).name(), "External Monitor");
}

TEST(ExternalDisplay, HasTheKeyOfItsMonitor) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.id(), DisplayRig::id);
    EXPECT_EQ(display.key(), "4242-1001-77");
    EXPECT_EQ(display.dimmer().displayID(), DisplayRig::id);
    EXPECT_EQ(display.dimmer().key(), "4242-1001-77");
}

TEST(ExternalDisplay, BeginsIdleWithoutFeatures) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.loadState(), LoadState::idle);
    EXPECT_TRUE(display.features().empty());
    EXPECT_EQ(display.feature(0x10), nullptr);
    EXPECT_EQ(display.capabilities(), std::nullopt);
    EXPECT_TRUE(display.isOutputEnabled());
    EXPECT_FALSE(display.isReturningToMac());
    EXPECT_EQ(display.inputRequest(), 0);
    EXPECT_EQ(display.controlMode(), ControlMode::automatic);
}

TEST(ExternalDisplay, HasAWorkerExactlyWhenThereIsAService) {
    DisplayRig rig(usualMonitor());
    EXPECT_TRUE(rig.make(Link::found).hasWorker());
    EXPECT_FALSE(rig.make(Link::missing).hasWorker());
}

TEST(ExternalDisplay, IsUnavailableAndDimmedFromTheStartWithoutAService) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make(Link::missing);
    EXPECT_EQ(display.loadState(), LoadState::unavailable);
    EXPECT_TRUE(display.usesSoftwareControls());
    EXPECT_TRUE(display.dimmer().isActive());
}

TEST(ExternalDisplay, WithAServiceItIsNotDimmedFromTheStart) {
    DisplayRig rig(usualMonitor());
    EXPECT_FALSE(rig.make().dimmer().isActive());
}

TEST(ExternalDisplay, InSoftwareModeItIsDimmedFromTheStart) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set("controlMode." + DisplayRig::key, std::string("software"));
    ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.controlMode(), ControlMode::software);
    EXPECT_TRUE(display.dimmer().isActive());
}

TEST(ExternalDisplay, InDDCModeItIsNotDimmedEvenWithoutAService) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set("controlMode." + DisplayRig::key, std::string("ddc"));
    ExternalDisplay& display = rig.make(Link::missing);
    EXPECT_EQ(display.controlMode(), ControlMode::ddc);
    EXPECT_FALSE(display.dimmer().isActive());
}

TEST(ExternalDisplay, AStoredModeInUpperCaseIsAutomatic) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set("controlMode." + DisplayRig::key, std::string("DDC"));
    EXPECT_EQ(rig.make().controlMode(), ControlMode::automatic);
}

TEST(ExternalDisplay, BeginsWithTheStoredSettingsOfItsMonitor) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set("macInput." + DisplayRig::key, std::int64_t{15});
    rig.defaults.set("hiddenInputs." + DisplayRig::key, DefaultsData{"[17]"});
    const ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.inputSettings().macInput(), 15);
    EXPECT_EQ(display.inputSettings().hidden(), std::set<ExternalDisplay::Input>{17});
}

TEST(ExternalDisplay, MakingItStoresNothingAndAsksTheMonitorNothing) {
    DisplayRig rig(usualMonitor());
    rig.make();
    rig.runFor(1min);
    EXPECT_TRUE(rig.defaults.all().empty());
    EXPECT_EQ(rig.requests(), Requests{});
}

TEST(ExternalDisplay, LogsThatItWasMadeWithAService) {
    DisplayRig rig(usualMonitor());
    rig.make();
    EXPECT_EQ(rig.lines("display", LogLevel::standard),
              Lines{"Model for Aurora (id 2, key 4242-1001-77): DDC service found, input profile none"});
}

TEST(ExternalDisplay, LogsThatItWasMadeWithoutAService) {
    DisplayRig rig(usualMonitor());
    rig.make(Link::missing);
    EXPECT_EQ(rig.lines("display", LogLevel::standard),
              Lines{"Model for Aurora (id 2, key 4242-1001-77): DDC service missing, input profile none"});
}

TEST(ExternalDisplay, LogsThatItsModelHasAnInputProfile) {
    simulated::DisplayPlan plan = test::aurora(usualMonitor());
    plan.vendor = 0x0472;
    plan.product = 0x0782;
    DisplayRig rig(plan);
    rig.make();
    EXPECT_EQ(rig.lines("display", LogLevel::standard),
              Lines{"Model for Aurora (id 2, key 1138-1922-77): DDC service found, input profile yes"});
}

// Every mode with a monitor that answers, one that doesn't, and no output.
struct ControlCase {
    ControlMode mode;
    bool whenReady;
    bool whenUnavailable;
};

class ExternalDisplayControlTest : public testing::TestWithParam<ControlCase> {};

TEST_P(ExternalDisplayControlTest, TellsWhetherTheDimmerIsUsed) {
    DisplayRig answering(usualMonitor());
    ExternalDisplay& ready = answering.makeLoaded();
    ready.setControlMode(GetParam().mode);
    EXPECT_EQ(ready.loadState(), LoadState::ready);
    EXPECT_EQ(ready.usesSoftwareControls(), GetParam().whenReady);
    EXPECT_EQ(ready.dimmer().isActive(), GetParam().whenReady);
}

TEST_P(ExternalDisplayControlTest, TellsWhetherTheDimmerIsUsedWithoutAnAnswer) {
    DisplayRig silent(silentMonitor());
    ExternalDisplay& unavailable = silent.make();
    unavailable.setControlMode(GetParam().mode);
    silent.load();
    EXPECT_EQ(unavailable.loadState(), LoadState::unavailable);
    EXPECT_EQ(unavailable.usesSoftwareControls(), GetParam().whenUnavailable);
    EXPECT_EQ(unavailable.dimmer().isActive(), GetParam().whenUnavailable);
}

TEST_P(ExternalDisplayControlTest, NeverUsesTheDimmerWhileTheOutputIsOff) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make(Link::missing);
    display.setControlMode(GetParam().mode);
    display.setOutputEnabled(false);
    EXPECT_FALSE(display.usesSoftwareControls());
}

INSTANTIATE_TEST_SUITE_P(Modes, ExternalDisplayControlTest,
                         testing::Values(ControlCase{ControlMode::automatic, false, true},
                                         ControlCase{ControlMode::ddc, false, false},
                                         ControlCase{ControlMode::software, true, true}),
                         [](const auto& info) { return rawValue(info.param.mode); });

TEST(ExternalDisplay, UsesNoDimmerBeforeItsFirstLoadInAutomaticMode) {
    DisplayRig rig(usualMonitor());
    EXPECT_FALSE(rig.make().usesSoftwareControls());
}

TEST(ExternalDisplay, UsesNoDimmerDuringALoadInAutomaticMode) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    rig.tasks.start(display.load(ExternalDisplay::Capabilities::cachedIfAny));
    rig.runFor(200ms);
    ASSERT_EQ(display.loadState(), LoadState::loading);
    EXPECT_FALSE(display.usesSoftwareControls());
}

TEST(ExternalDisplay, SwitchingFromSoftwareToDDCGivesThePictureBackAtOnce) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make(Link::missing);
    const platform::TransferTable own = rig.transferTable();
    display.dimmer().setBrightness(0.2);
    EXPECT_NE(rig.transferTable(), own);
    display.setControlMode(ControlMode::ddc);
    EXPECT_FALSE(display.usesSoftwareControls());
    EXPECT_FALSE(display.dimmer().isActive());
    EXPECT_EQ(rig.transferTable(), own);
}

TEST(ExternalDisplay, TurningTheOutputOffAndOnStopsAndResumesTheDimming) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make(Link::missing);
    display.setOutputEnabled(false);
    EXPECT_FALSE(display.dimmer().isActive());
    display.setOutputEnabled(true);
    EXPECT_TRUE(display.dimmer().isActive());
}

TEST(ExternalDisplay, StoresTheModeWhenItChanges) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    for (const ControlMode mode : {ControlMode::software, ControlMode::ddc, ControlMode::automatic}) {
        display.setControlMode(mode);
        EXPECT_EQ(rig.defaults.value("controlMode.4242-1001-77"), DefaultsValue(rawValue(mode)));
    }
}

TEST(ExternalDisplay, CountsInputRequests) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    EXPECT_EQ(display.beginInputRequest(), 1);
    EXPECT_EQ(display.beginInputRequest(), 2);
    EXPECT_EQ(display.inputRequest(), 2);
}

TEST(ExternalDisplay, SettingShowsTheValueAtOnceAndWritesItBehindThat) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0x10), 25);
    EXPECT_EQ(rig.feature(0x10).current.get(), 25);
    EXPECT_EQ(rig.monitor().value(0x10), 60);
    rig.runFor(1s);
    EXPECT_EQ(rig.monitor().value(0x10), 25);
    EXPECT_EQ(rig.requests(), Requests{"set 10 = 25"});
}

TEST(ExternalDisplay, ValuesSetFasterThanTheMonitorTakesThemCollapse) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    for (std::uint16_t value = 1; value <= 50; ++value) display.set(rig.feature(0x10), value);
    rig.runFor(10s);
    EXPECT_EQ(rig.monitor().value(0x10), 50);
    EXPECT_LE(rig.requests().size(), 2U);
}

TEST(ExternalDisplay, SettingAnEqualValueWritesItAndWakesNobody) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    EXPECT_FALSE(test::wakes([&] { return rig.feature(0x10).current.get(); },
                             [&] { display.set(rig.feature(0x10), 60); }));
    rig.runFor(1s);
    EXPECT_EQ(rig.requests(), Requests{"set 10 = 60"});
}

TEST(ExternalDisplay, SettingAnotherValueWakesItsReaders) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    EXPECT_TRUE(test::wakes([&] { return rig.feature(0x10).current.get(); },
                            [&] { display.set(rig.feature(0x10), 61); }));
}

TEST(ExternalDisplay, SettingAContinuousValueIsNotLogged) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0x10), 25);
    rig.runFor(1s);
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{});
    EXPECT_EQ(rig.lines("ui", LogLevel::error), Lines{});
}

TEST(ExternalDisplay, SettingAChoiceLogsItsName) {
    DisplayRig rig(richMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0xD6), 4);
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{"Aurora: set Power (0xD6) to Off, output on"});
}

TEST(ExternalDisplay, SettingANamelessChoiceLogsItsDigits) {
    DisplayRig rig(richMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0xD6), 0x1A);
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{"Aurora: set Power (0xD6) to 0x1A, output on"});
}

TEST(ExternalDisplay, SettingWhileTheOutputIsOffSaysSo) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.setOutputEnabled(false);
    display.set(rig.feature(0x60), 0x11);
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{"Aurora: set Input (0x60) to HDMI 1, output off"});
}

TEST(ExternalDisplay, TheLogOfASettingUsesTheCatalogsNameOfAnInput) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.inputSettings().setAliases({{0x11, "Desk PC"}});
    display.set(rig.feature(0x60), 0x11);
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{"Aurora: set Input (0x60) to HDMI 1, output on"});
}

TEST(ExternalDisplay, SettingWithoutAServiceShowsTheValueAndLogsThatItWasDropped) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make(Link::missing);
    VCPFeature brightness(0x10, mccs::MCCS::info(0x10));
    display.set(brightness, 25);
    EXPECT_EQ(brightness.current.get(), 25);
    EXPECT_EQ(rig.lines("ui", LogLevel::error), Lines{"Aurora: no DDC service, write of 0x10 dropped"});
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{});
}

TEST(ExternalDisplay, SettingAChoiceWithoutAServiceLogsTheSettingFirst) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make(Link::missing);
    VCPFeature power(0xD6, mccs::MCCS::info(0xD6));
    display.set(power, 4);
    const std::size_t count = rig.log.lines().size();
    EXPECT_EQ(rig.log.lines()[count - 2].text, "Aurora: set Power (0xD6) to Off, output on");
    EXPECT_EQ(rig.log.lines()[count - 1].text, "Aurora: no DDC service, write of 0xD6 dropped");
}

TEST(ExternalDisplay, SettingTheInputRefreshesTheFourValuesEightSecondsLater) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0x60), 0x11);
    rig.runFor(7999ms);
    EXPECT_EQ(rig.requests(), Requests{"set 60 = 17"});
    rig.runFor(2s);
    EXPECT_EQ(rig.requests(), (Requests{"set 60 = 17", "get 10", "get 12", "get 60", "get 62"}));
    rig.runFor(1min);
    EXPECT_EQ(rig.requests().size(), 5U);
}

TEST(ExternalDisplay, SettingAnyOtherCodeRefreshesNothing) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0x10), 25);
    rig.runFor(1min);
    EXPECT_EQ(rig.requests(), Requests{"set 10 = 25"});
}

TEST(ExternalDisplay, SettingTheInputWhileReturningRefreshesNothingEvenWhenThatHasEnded) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.setReturningToMac(true);
    display.set(rig.feature(0x60), 0x11);
    display.setReturningToMac(false);
    rig.runFor(1min);
    EXPECT_EQ(rig.requests(), Requests{"set 60 = 17"});
}

TEST(ExternalDisplay, TheLateRefreshReadsNothingWhileReturning) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0x60), 0x11);
    rig.runFor(4s);
    display.setReturningToMac(true);
    rig.runFor(1min);
    EXPECT_EQ(rig.requests(), Requests{"set 60 = 17"});
}

TEST(ExternalDisplay, TheLateRefreshEndsWithTheDisplay) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.set(rig.feature(0x60), 0x11);
    rig.runFor(4s);
    rig.display.reset();
    rig.runFor(1min);
    EXPECT_EQ(rig.requests(), Requests{"set 60 = 17"});
}

TEST(ExternalDisplay, TriggeringAnActionWritesItsValueAndLogsIt) {
    DisplayRig rig(richMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.trigger(rig.feature(0x04));
    rig.runFor(1s);
    EXPECT_EQ(rig.requests(), Requests{"set 04 = 1"});
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{"Aurora: trigger Restore factory defaults"});
    EXPECT_EQ(rig.feature(0x04).current.get(), std::nullopt);
}

TEST(ExternalDisplay, TriggeringWithoutAServiceOnlyLogs) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make(Link::missing);
    display.trigger(VCPFeature(0x04, mccs::MCCS::info(0x04)));
    EXPECT_EQ(rig.lines("ui", LogLevel::standard), Lines{"Aurora: trigger Restore factory defaults"});
    EXPECT_EQ(rig.lines("ui", LogLevel::error), Lines{});
}

TEST(ExternalDisplay, GroupsTheFeaturesWithoutARowOfTheirOwnInTheOrderOfTheGroupsAndCodes) {
    using Group = mccs::VCPInfo::Group;
    using Codes = std::vector<std::pair<Group, std::vector<int>>>;
    DisplayRig rig(richMonitor());
    Codes codes;
    for (const auto& [group, features] : rig.makeLoaded().extraGroups()) {
        codes.push_back({group, {}});
        for (const auto& feature : features) codes.back().second.push_back(feature->code);
    }
    EXPECT_EQ(codes, (Codes{{Group::picture, {0x87, 0xDC}},
                            {Group::color, {0x14, 0x16, 0x1A}},
                            {Group::audio, {0x8F, 0x93}},
                            {Group::system, {0x04, 0x05, 0xD6}},
                            {Group::info, {0xC0}},
                            {Group::vendor, {0xE5, 0xF0}}}));
}

TEST(ExternalDisplay, HasNoGroupsWhenEveryFeatureHasARow) {
    DisplayRig rig(usualMonitor());
    EXPECT_TRUE(rig.makeLoaded().extraGroups().empty());
}

}  // namespace
}  // namespace vantrel::model
