#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ManagerRig.h"

namespace vantrel::model {
namespace {

using namespace std::chrono_literals;
using persistence::DisabledDisplay;
using test::deskOf;
using test::ManagerRig;
using test::monitorPlan;
using test::panelPlan;
using test::standardLine;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using World = simulated::World;

using Ids = std::vector<platform::DisplayID>;

const DisabledDisplay gone{.id = 9, .key = "1000-29-109", .name = "Gone"};

// A monitor whose cable passes no DDC/CI.
simulated::DisplayPlan muteMonitorPlan(platform::DisplayID id, std::string name) {
    simulated::DisplayPlan plan = monitorPlan(id, std::move(name));
    plan.monitor.reset();
    return plan;
}

void store(ManagerRig& rig, const std::vector<DisabledDisplay>& entries) {
    persistence::Store::setDisabledDisplays(rig.defaults, entries);
}

void turnOff(ManagerRig& rig, platform::DisplayID id) {
    rig.perform(rig.manager->disableOutput(rig.display(id), std::nullopt));
    rig.runFor(2s);
}

std::ptrdiff_t walks(const ManagerRig& rig) { return rig.calls.count("walk the registry"); }

std::size_t loads(const ManagerRig& rig, const std::string& name) {
    return rig.log.moments(name + ": loading features (force capabilities: false)").size();
}

// The online list and the built-in panel

TEST(DisplayManagerRefresh, KeepsTheSystemsOrderOfExternals) {
    ManagerRig rig(
        deskOf({monitorPlan(7, "Cedar"), panelPlan(), monitorPlan(2, "Alder"), monitorPlan(5, "Birch")}));
    rig.start();
    EXPECT_THAT(rig.externalIDs(), ElementsAre(7U, 2U, 5U));
}

TEST(DisplayManagerRefresh, FollowsAChangeOfTheSystemsOrder) {
    ManagerRig rig;
    rig.start();
    rig.displays.onlineInstead = Ids{3, 1, 2};
    rig.manager->refresh();
    EXPECT_THAT(rig.externalIDs(), ElementsAre(3U, 2U));
}

TEST(DisplayManagerRefresh, WithoutAnOnlineListEveryDisplayLeaves) {
    ManagerRig rig;
    rig.start();
    rig.displays.onlineInstead = Ids{};
    rig.manager->refresh();
    EXPECT_THAT(rig.externalIDs(), IsEmpty());
    EXPECT_FALSE(rig.manager->builtIn());
}

TEST(DisplayManagerRefresh, WithoutAnOnlineListMonitorsThatAreOffStayOff) {
    ManagerRig rig;
    rig.startAndLoad();
    turnOff(rig, 2);
    rig.displays.onlineInstead = Ids{};
    rig.manager->refresh();
    EXPECT_THAT(rig.offlineIDs(), ElementsAre(2U));
}

TEST(DisplayManagerRefresh, KeepsThePanelsModel) {
    ManagerRig rig;
    const auto panel = rig.start().builtIn();
    rig.manager->refresh();
    EXPECT_EQ(rig.manager->builtIn(), panel);
}

TEST(DisplayManagerRefresh, HasNoPanelWhenTheLidIsClosed) {
    ManagerRig rig;
    rig.start();
    rig.world().closeLid();
    rig.runFor(1s);
    EXPECT_FALSE(rig.manager->builtIn());
    EXPECT_THAT(rig.externalIDs(), ElementsAre(2U, 3U));
}

TEST(DisplayManagerRefresh, HasThePanelAgainWhenTheLidIsOpened) {
    ManagerRig rig;
    rig.start();
    rig.world().closeLid();
    rig.runFor(1s);
    rig.world().openLid();
    rig.runFor(1s);
    ASSERT_TRUE(rig.manager->builtIn());
    EXPECT_EQ(rig.manager->builtIn()->id(), 1U);
}

TEST(DisplayManagerRefresh, KeepsThePanelsModelWhenTheLidWasOpenedInTime) {
    ManagerRig rig;
    const auto panel = rig.start().builtIn();
    rig.world().closeLid();
    rig.runFor(500ms);
    rig.world().openLid();
    rig.runFor(5s);
    EXPECT_EQ(rig.manager->builtIn(), panel);
}

TEST(DisplayManagerRefresh, MakesANewPanelForAnotherIdentifier) {
    simulated::DisplayPlan second = panelPlan();
    second.id = 4;
    second.isBuiltIn = false;
    ManagerRig rig(deskOf({panelPlan(), second}));
    rig.displays.alsoBuiltIn = {4};
    rig.displays.onlineInstead = Ids{1};
    const auto panel = rig.start().builtIn();
    rig.displays.onlineInstead = Ids{4};
    rig.manager->refresh();
    ASSERT_TRUE(rig.manager->builtIn());
    EXPECT_NE(rig.manager->builtIn(), panel);
    EXPECT_EQ(rig.manager->builtIn()->id(), 4U);
}

TEST(DisplayManagerRefresh, TakesTheFirstOfTwoPanelsAndNoneOfThemForAnExternal) {
    simulated::DisplayPlan second = panelPlan();
    second.id = 4;
    second.isBuiltIn = false;
    ManagerRig rig(deskOf({second, panelPlan(), monitorPlan(2, "Alder")}));
    rig.displays.alsoBuiltIn = {4};
    EXPECT_EQ(rig.start().builtIn()->id(), 4U);
    EXPECT_THAT(rig.externalIDs(), ElementsAre(2U));
}

TEST(DisplayManagerRefresh, HasNoPanelWhoseLevelCannotBeRead) {
    simulated::Desk desk = test::usualDesk();
    desk.missingSymbols = {"DisplayServicesGetBrightness"};
    ManagerRig rig(desk);
    EXPECT_FALSE(rig.start().builtIn());
    EXPECT_THAT(rig.externalIDs(), ElementsAre(2U, 3U));
}

// Pruning

TEST(DisplayManagerRefresh, TakesAMonitorThatIsOnlineUnderItsIdentifierOffTheList) {
    ManagerRig rig;
    store(rig, {{.id = 2, .key = "another", .name = "Alder"}, gone});
    rig.start();
    EXPECT_THAT(rig.manager->disabled(), ElementsAre(gone));
    EXPECT_THAT(rig.stored(), ElementsAre(gone));
}

TEST(DisplayManagerRefresh, TakesAMonitorThatIsOnlineUnderAnotherIdentifierOffTheList) {
    ManagerRig rig;
    store(rig, {{.id = 77, .key = "1000-22-102", .name = "Alder"}, gone});
    rig.start();
    EXPECT_THAT(rig.manager->disabled(), ElementsAre(gone));
    EXPECT_THAT(rig.stored(), ElementsAre(gone));
}

TEST(DisplayManagerRefresh, DoesNotRecogniseAMonitorWithoutASerialNumberByItsKey) {
    ManagerRig rig;
    rig.displays.serialInstead[2] = 0;
    const DisabledDisplay twin{.id = 77, .key = "1000-22-0", .name = "Twin"};
    store(rig, {twin});
    rig.start();
    EXPECT_EQ(rig.display(2)->key(), "1000-22-0");
    EXPECT_THAT(rig.manager->disabled(), ElementsAre(twin));
}

TEST(DisplayManagerRefresh, RecognisesAMonitorWithoutASerialNumberByItsIdentifier) {
    ManagerRig rig;
    rig.displays.serialInstead[2] = 0;
    store(rig, {{.id = 2, .key = "1000-22-0", .name = "Alder"}});
    EXPECT_THAT(rig.start().disabled(), IsEmpty());
}

TEST(DisplayManagerRefresh, ASerialNumberThatEndsInZeroIsOne) {
    ManagerRig rig;
    rig.displays.serialInstead[2] = 10;
    store(rig, {{.id = 77, .key = "1000-22-10", .name = "Alder"}});
    EXPECT_THAT(rig.start().disabled(), IsEmpty());
}

TEST(DisplayManagerRefresh, ThePanelsKeyCountsAmongThoseOnline) {
    ManagerRig rig;
    rig.displays.serialInstead[1] = 5;
    store(rig, {{.id = 77, .key = "1552-7-5", .name = "Panel"}});
    EXPECT_THAT(rig.start().disabled(), IsEmpty());
}

TEST(DisplayManagerRefresh, SavesTheListEveryTimeChangedOrNot) {
    ManagerRig rig;
    rig.start();
    rig.calls.clear();
    rig.manager->refresh();
    rig.manager->refresh();
    EXPECT_EQ(rig.calls.count("disabledDisplays = []"), 2);
}

TEST(DisplayManagerRefresh, KeepsTheListInItsOrder) {
    ManagerRig rig;
    const DisabledDisplay older{.id = 30, .key = "1-2-3", .name = "Older"};
    const DisabledDisplay newer{.id = 20, .key = "1-2-4", .name = "Newer"};
    store(rig, {older, gone, newer});
    EXPECT_THAT(rig.start().disabled(), ElementsAre(older, gone, newer));
    EXPECT_THAT(rig.stored(), ElementsAre(older, gone, newer));
}

TEST(DisplayManagerRefresh, AMonitorThatIsOnlineAgainIsOneOfTheExternalsAndNotOff) {
    ManagerRig rig;
    rig.startAndLoad();
    const auto model = rig.display(2);
    turnOff(rig, 2);
    rig.world().setOutput(2, World::Output::on);
    rig.runFor(1s);
    EXPECT_THAT(rig.externalIDs(), ElementsAre(2U, 3U));
    EXPECT_THAT(rig.offlineIDs(), IsEmpty());
    EXPECT_EQ(rig.manager->externals().at(0), model);
    EXPECT_TRUE(model->isOutputEnabled());
}

// Which models are used again

TEST(DisplayManagerRefresh, KeepsTheModelsOfMonitorsThatStay) {
    ManagerRig rig;
    const auto before = rig.startAndLoad().externals();
    rig.manager->refresh();
    EXPECT_EQ(rig.manager->externals(), before);
}

TEST(DisplayManagerRefresh, KeepsTheModelOfAMonitorThatIsUnpluggedAndReplugged) {
    ManagerRig rig;
    rig.startAndLoad();
    const auto model = rig.display(2);
    rig.world().unplug(2);
    rig.runFor(1min);
    EXPECT_THAT(rig.externalIDs(), ElementsAre(3U));
    rig.world().plug(2);
    rig.runFor(1min);
    EXPECT_EQ(rig.manager->externals().at(0), model);
    EXPECT_TRUE(model->hasWorker());
    EXPECT_EQ(model->features().size(), 4U);
    EXPECT_EQ(loads(rig, "Alder"), 1U);
}

TEST(DisplayManagerRefresh, MakesANewModelForAnotherMonitorUnderAKnownIdentifier) {
    ManagerRig rig;
    rig.startAndLoad();
    const auto model = rig.display(2);
    rig.displays.serialInstead[2] = 555;
    rig.manager->refresh();
    EXPECT_NE(rig.display(2), model);
    EXPECT_EQ(rig.display(2)->key(), "1000-22-555");
    EXPECT_EQ(rig.manager->externals().at(0), rig.display(2));
}

TEST(DisplayManagerRefresh, LoadsTheNewModelOfAnotherMonitorUnderAKnownIdentifier) {
    ManagerRig rig;
    rig.startAndLoad();
    rig.displays.serialInstead[2] = 555;
    rig.manager->refresh();
    rig.runFor(10s);
    EXPECT_TRUE(rig.display(2)->hasWorker());
    EXPECT_EQ(rig.display(2)->features().size(), 4U);
    EXPECT_EQ(loads(rig, "Alder"), 2U);
}

TEST(DisplayManagerRefresh, KeepsTheModelOfAnIdentifierThatIsOfflineWhateverItsKeySays) {
    ManagerRig rig;
    rig.startAndLoad();
    const auto model = rig.display(2);
    turnOff(rig, 2);
    rig.displays.serialInstead[2] = 555;
    rig.manager->refresh();
    EXPECT_EQ(rig.manager->offline().at(2), model);
}

TEST(DisplayManagerRefresh, RemembersModelsOfMonitorsThatAreGone) {
    ManagerRig rig;
    rig.startAndLoad();
    const auto model = rig.display(2);
    rig.world().unplug(2);
    rig.runFor(1s);
    rig.manager->refresh();
    EXPECT_EQ(rig.display(2), model);
}

TEST(DisplayManagerRefresh, EveryModelShownIsTheOneThatIsKnown) {
    ManagerRig rig;
    rig.startAndLoad();
    turnOff(rig, 2);
    for (const auto& external : rig.manager->externals()) {
        EXPECT_EQ(rig.display(external->id()), external);
    }
    for (const auto& [id, model] : rig.manager->offline()) EXPECT_EQ(rig.display(id), model);
}

TEST(DisplayManagerRefresh, KnowsNoModelOfADisplayThatNeverWas) {
    ManagerRig rig;
    rig.start();
    EXPECT_FALSE(rig.display(99));
    EXPECT_FALSE(rig.display(1));
}

// Services

TEST(DisplayManagerRefresh, DoesNotLookForServicesWithoutExternalMonitors) {
    ManagerRig rig(deskOf({panelPlan()}));
    rig.start();
    EXPECT_EQ(walks(rig), 0);
    EXPECT_THAT(rig.log.lines(),
                ElementsAre(standardLine("Refresh: online 1, externals , output off , new DDC matches 0")));
}

TEST(DisplayManagerRefresh, LooksForServicesOnceForAllMonitors) {
    ManagerRig rig;
    rig.start();
    EXPECT_EQ(walks(rig), 1);
    EXPECT_TRUE(rig.display(2)->hasWorker());
    EXPECT_TRUE(rig.display(3)->hasWorker());
}

TEST(DisplayManagerRefresh, DoesNotLookForServicesWhenEveryMonitorHasOne) {
    ManagerRig rig;
    rig.startAndLoad();
    turnOff(rig, 2);
    rig.calls.clear();
    rig.manager->refresh();
    EXPECT_EQ(walks(rig), 0);
}

TEST(DisplayManagerRefresh, LooksForServicesAgainAsLongAsAMonitorHasNone) {
    ManagerRig rig(deskOf(
        {panelPlan(), monitorPlan(2, "Alder"), muteMonitorPlan(3, "Mute"), muteMonitorPlan(4, "Silent")}));
    rig.start();
    rig.calls.clear();
    rig.manager->refresh();
    EXPECT_EQ(walks(rig), 1);
}

TEST(DisplayManagerRefresh, LooksForServicesAsLongAsAMonitorThatIsOffHasNone) {
    ManagerRig rig(deskOf({panelPlan(), muteMonitorPlan(2, "Mute")}));
    rig.startAndLoad();
    turnOff(rig, 2);
    rig.calls.clear();
    rig.manager->refresh();
    EXPECT_EQ(walks(rig), 1);
}

TEST(DisplayManagerRefresh, DoesNotLookForServicesForMonitorsThatAreGone) {
    ManagerRig rig(deskOf({panelPlan(), monitorPlan(2, "Alder"), muteMonitorPlan(3, "Mute")}));
    rig.startAndLoad();
    rig.world().unplug(3);
    rig.runFor(1s);
    rig.calls.clear();
    rig.manager->refresh();
    EXPECT_EQ(walks(rig), 0);
}

TEST(DisplayManagerRefresh, MonitorsThatAreOnlineChooseTheirServiceBeforeThoseThatAreOff) {
    ManagerRig rig(deskOf({panelPlan(), monitorPlan(2, "Alder")}));
    store(rig, {gone});
    rig.start();
    EXPECT_TRUE(rig.display(2)->hasWorker());
    EXPECT_FALSE(rig.display(9)->hasWorker());
}

TEST(DisplayManagerRefresh, FindsTheServiceOfAMonitorThatIsOff) {
    ManagerRig rig;
    rig.startAndLoad();
    turnOff(rig, 2);
    rig.restart();
    EXPECT_TRUE(rig.manager->offline().at(2)->hasWorker());
}

TEST(DisplayManagerRefresh, ReplacesAModelWithoutDDCAsSoonAsThereIsAService) {
    ManagerRig rig;
    rig.registry.isEmpty = true;
    rig.startAndLoad();
    const auto model = rig.display(2);
    ASSERT_FALSE(model->hasWorker());
    rig.registry.isEmpty = false;
    rig.manager->refresh();
    EXPECT_NE(rig.display(2), model);
    EXPECT_TRUE(rig.display(2)->hasWorker());
    EXPECT_EQ(rig.manager->externals().at(0), rig.display(2));
}

TEST(DisplayManagerRefresh, LoadsTheModelThatReplacedOneWithoutDDC) {
    ManagerRig rig;
    rig.registry.isEmpty = true;
    rig.startAndLoad();
    EXPECT_EQ(loads(rig, "Alder"), 0U);
    rig.registry.isEmpty = false;
    rig.manager->refresh();
    rig.runFor(10s);
    EXPECT_EQ(loads(rig, "Alder"), 1U);
    EXPECT_EQ(rig.display(2)->loadState(), ExternalDisplay::LoadState::ready);
}

TEST(DisplayManagerRefresh, KeepsAModelWithoutDDCAsLongAsThereIsNoService) {
    ManagerRig rig;
    rig.registry.isEmpty = true;
    rig.startAndLoad();
    const auto model = rig.display(2);
    rig.manager->refresh();
    EXPECT_EQ(rig.display(2), model);
}

TEST(DisplayManagerRefresh, KeepsAModelWithDDCWhenItsServiceCannotBeFoundAnyMore) {
    ManagerRig rig;
    rig.startAndLoad();
    const auto model = rig.display(2);
    rig.registry.isEmpty = true;
    rig.manager->refresh();
    EXPECT_EQ(rig.display(2), model);
}

TEST(DisplayManagerRefresh, ReplacesTheModelOfAMonitorThatIsOffToo) {
    ManagerRig rig;
    rig.startAndLoad();
    turnOff(rig, 2);
    rig.registry.isEmpty = true;
    rig.restart();
    const auto model = rig.display(2);
    ASSERT_FALSE(model->hasWorker());
    rig.registry.isEmpty = false;
    rig.manager->refresh();
    EXPECT_NE(rig.display(2), model);
    EXPECT_TRUE(rig.manager->offline().at(2)->hasWorker());
    EXPECT_FALSE(rig.manager->offline().at(2)->isOutputEnabled());
}

TEST(DisplayManagerRefresh, LoadsEveryNewModelOnce) {
    ManagerRig rig;
    rig.startAndLoad().refresh();
    rig.runFor(10s);
    EXPECT_EQ(loads(rig, "Alder"), 1U);
    EXPECT_EQ(loads(rig, "Birch"), 1U);
}

TEST(DisplayManagerRefresh, LoadsANewModelOnlyAfterItIsDone) {
    ManagerRig rig;
    rig.start();
    EXPECT_EQ(loads(rig, "Alder"), 0U);
    EXPECT_EQ(rig.display(2)->loadState(), ExternalDisplay::LoadState::idle);
}

// What the models are told

TEST(DisplayManagerRefresh, NamesExternalsAsTheirScreens) {
    ManagerRig rig;
    store(rig, {{.id = 2, .key = "1000-22-102", .name = "Old name"}});
    rig.start();
    EXPECT_EQ(rig.display(2)->name(), "Alder");
}

TEST(DisplayManagerRefresh, NamesMonitorsThatAreOffAsTheListDoes) {
    ManagerRig rig;
    store(rig, {gone});
    rig.start();
    EXPECT_EQ(rig.manager->offline().at(9)->name(), "Gone");
}

TEST(DisplayManagerRefresh, DoesNotRenameAModelThatIsUsedAgain) {
    ManagerRig rig;
    store(rig, {gone});
    rig.start();
    const auto model = rig.display(9);
    rig.displays.onlineInstead = Ids{1, 2, 3};
    rig.manager->forget(gone);
    rig.manager->refresh();
    ASSERT_THAT(rig.offlineIDs(), IsEmpty());
    EXPECT_EQ(rig.display(9), model);
    EXPECT_EQ(model->name(), "Gone");
}

TEST(DisplayManagerRefresh, TellsTheModelsWhetherTheirOutputIsOn) {
    ManagerRig rig;
    rig.startAndLoad();
    turnOff(rig, 2);
    EXPECT_FALSE(rig.display(2)->isOutputEnabled());
    EXPECT_TRUE(rig.display(3)->isOutputEnabled());
}

TEST(DisplayManagerRefresh, TellsThemAgainEachTime) {
    ManagerRig rig;
    rig.startAndLoad();
    turnOff(rig, 2);
    rig.display(2)->setOutputEnabled(true);
    rig.display(3)->setOutputEnabled(false);
    rig.manager->refresh();
    EXPECT_FALSE(rig.display(2)->isOutputEnabled());
    EXPECT_TRUE(rig.display(3)->isOutputEnabled());
}

TEST(DisplayManagerRefresh, TellsObserversOfTheOutputOnlyWhenItChanged) {
    ManagerRig rig;
    rig.startAndLoad();
    int changes = 0;
    runtime::Observer observer([&changes] { ++changes; });
    const auto watch = [&] { observer.track([&] { return rig.display(2)->isOutputEnabled(); }); };
    watch();
    rig.manager->refresh();
    EXPECT_EQ(changes, 0);
    turnOff(rig, 2);
    EXPECT_EQ(changes, 1);
}

TEST(DisplayManagerRefresh, HasEveryModelLookWhetherItDimsAgain) {
    ManagerRig rig;
    rig.startAndLoad();
    rig.display(2)->setControlMode(ControlMode::software);
    rig.display(2)->dimmer().setActive(false);
    rig.manager->refresh();
    EXPECT_TRUE(rig.display(2)->dimmer().isActive());
}

TEST(DisplayManagerRefresh, StopsTheDimmerOfAMonitorThatIsOff) {
    ManagerRig rig;
    rig.startAndLoad();
    rig.display(2)->setControlMode(ControlMode::software);
    turnOff(rig, 2);
    EXPECT_FALSE(rig.display(2)->dimmer().isActive());
}

TEST(DisplayManagerRefresh, AMonitorThatIsUnpluggedIsNotTurnedOff) {
    ManagerRig rig;
    rig.startAndLoad();
    rig.world().unplug(2);
    rig.runFor(1s);
    EXPECT_THAT(rig.offlineIDs(), IsEmpty());
    EXPECT_THAT(rig.manager->disabled(), IsEmpty());
}

// Its log line

TEST(DisplayManagerRefresh, LogsWhatItFound) {
    ManagerRig rig;
    rig.start();
    EXPECT_THAT(rig.log.lines(),
                Contains(standardLine(
                    "Refresh: online 1,2,3, externals Alder,Birch, output off , new DDC matches 2")));
}

TEST(DisplayManagerRefresh, LogsMonitorsThatAreOff) {
    ManagerRig rig(
        deskOf({panelPlan(), monitorPlan(2, "Alder"), monitorPlan(3, "Birch"), monitorPlan(4, "Cedar")}));
    rig.startAndLoad();
    turnOff(rig, 2);
    turnOff(rig, 3);
    rig.log.clear();
    rig.manager->refresh();
    EXPECT_THAT(rig.log.lines(),
                ElementsAre(standardLine(
                    "Refresh: online 1,4, externals Cedar, output off Alder,Birch, new DDC matches 0")));
}

TEST(DisplayManagerRefresh, CountsOnlyTheMatchesOfThisTime) {
    simulated::DisplayPlan later = monitorPlan(4, "Cedar");
    later.isConnected = false;
    ManagerRig rig(deskOf({panelPlan(), monitorPlan(2, "Alder"), later}));
    rig.startAndLoad();
    rig.log.clear();
    rig.world().plug(4);
    rig.runFor(1s);
    EXPECT_THAT(rig.log.lines(),
                Contains(standardLine(
                    "Refresh: online 1,2,4, externals Alder,Cedar, output off , new DDC matches 1")));
}

TEST(DisplayManagerRefresh, LogsNothingOfDisplaysWhenThereAreNone) {
    ManagerRig rig(deskOf({}));
    rig.start();
    EXPECT_THAT(rig.log.lines(),
                ElementsAre(standardLine("Refresh: online , externals , output off , new DDC matches 0")));
}

// Dimmers

class DisplayManagerDimming : public testing::Test {
  protected:
    DisplayManagerDimming() {
        rig.startAndLoad();
        rig.display(2)->setControlMode(ControlMode::software);
    }
    void dim(double brightness, double contrast) {
        rig.display(2)->dimmer().setBrightness(brightness);
        rig.display(2)->dimmer().setContrast(contrast);
        rig.calls.clear();
    }
    std::ptrdiff_t applied() const { return rig.calls.count("set table of 2"); }

    ManagerRig rig;
};

TEST_F(DisplayManagerDimming, IsAppliedAgainAfterAReconfiguration) {
    dim(0.5, 0.5);
    const auto dimmed = rig.displays.transferTable(2, 256);
    rig.world().reconfigure(3, 0x2);
    EXPECT_NE(rig.displays.transferTable(2, 256), dimmed);
    rig.runFor(1s);
    EXPECT_EQ(applied(), 1);
    EXPECT_EQ(rig.displays.transferTable(2, 256), dimmed);
}

TEST_F(DisplayManagerDimming, IsNotAppliedAgainWhenItIsNeutral) {
    dim(1, 0.5);
    rig.manager->refresh();
    EXPECT_EQ(applied(), 0);
}

TEST_F(DisplayManagerDimming, IsNeutralFrom999Thousandths) {
    dim(0.999, 0.5);
    rig.manager->refresh();
    EXPECT_EQ(applied(), 0);
}

TEST_F(DisplayManagerDimming, IsAppliedAgainBelow999Thousandths) {
    dim(0.9989, 0.5);
    rig.manager->refresh();
    EXPECT_EQ(applied(), 1);
}

TEST_F(DisplayManagerDimming, IsAppliedAgainForContrastAlone) {
    dim(1, 0.502);
    rig.manager->refresh();
    EXPECT_EQ(applied(), 1);
}

TEST_F(DisplayManagerDimming, IsAppliedAgainForLowContrastAlone) {
    dim(1, 0.498);
    rig.manager->refresh();
    EXPECT_EQ(applied(), 1);
}

TEST_F(DisplayManagerDimming, IsNotAppliedAgainForContrastWithinAThousandth) {
    dim(1, 0.5005);
    rig.manager->refresh();
    dim(1, 0.4995);
    rig.manager->refresh();
    EXPECT_EQ(applied(), 0);
}

TEST_F(DisplayManagerDimming, IsNotAppliedAgainWhenTheMonitorDimsByItself) {
    dim(0.5, 0.5);
    rig.display(2)->setControlMode(ControlMode::ddc);
    rig.calls.clear();
    rig.manager->refresh();
    EXPECT_EQ(applied(), 0);
}

TEST_F(DisplayManagerDimming, IsNotAppliedAgainWhileTheOutputIsOff) {
    dim(0.5, 0.5);
    turnOff(rig, 2);
    rig.calls.clear();
    rig.manager->refresh();
    EXPECT_EQ(applied(), 0);
}

TEST_F(DisplayManagerDimming, LeavesOtherDisplaysAlone) {
    dim(0.5, 0.5);
    rig.manager->refresh();
    EXPECT_EQ(rig.calls.count("set table of 3"), 0);
    EXPECT_EQ(rig.calls.count("set table of 1"), 0);
}

TEST_F(DisplayManagerDimming, ComesBackWithTheMonitor) {
    dim(0.5, 0.5);
    const auto dimmed = rig.displays.transferTable(2, 256);
    rig.world().unplug(2);
    rig.runFor(1s);
    rig.world().plug(2);
    rig.runFor(1s);
    EXPECT_EQ(rig.displays.transferTable(2, 256), dimmed);
}

}  // namespace
}  // namespace vantrel::model
