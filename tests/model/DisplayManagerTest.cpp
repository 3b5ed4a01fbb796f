#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/DisplayManager.h"
#include "support/DeathTest.h"
#include "support/ManagerRig.h"

namespace vantrel::model {
namespace {

using namespace std::chrono_literals;
using persistence::DisabledDisplay;
using platform::LogLevel;
using test::displayLine;
using test::ManagerRig;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string disabledKey = "disabledDisplays";
const DisabledDisplay gone{.id = 9, .key = "1000-29-109", .name = "Gone"};

// Initialisation

TEST(DisplayManager, KnowsTheDisplaysAsSoonAsItExists) {
    ManagerRig rig;
    const DisplayManager& manager = rig.start();
    ASSERT_TRUE(manager.builtIn());
    EXPECT_EQ(manager.builtIn()->id(), 1U);
    EXPECT_THAT(rig.externalIDs(), ElementsAre(2U, 3U));
}

TEST(DisplayManager, RefreshesOnceWhenItStarts) {
    ManagerRig rig;
    rig.startAndLoad();
    EXPECT_THAT(rig.refreshes(), ElementsAre(runtime::MonotonicTime{}));
}

TEST(DisplayManager, RestoresTheColorSyncSettingsBeforeItLooksAtAnyDisplay) {
    ManagerRig rig;
    rig.start();
    EXPECT_EQ(rig.calls.calls().front(), "restore ColorSync");
}

TEST(DisplayManager, RestoresTheColorSyncSettingsOnlyOnce) {
    ManagerRig rig;
    rig.startAndLoad().refresh();
    rig.displays.reconfigure(2, 2);
    rig.runFor(1s);
    EXPECT_EQ(rig.calls.count("restore ColorSync"), 1);
}

TEST(DisplayManager, ListensToWakingAndThenToReconfigurationsOnceItHasRefreshed) {
    ManagerRig rig;
    rig.start();
    EXPECT_THAT(rig.calls.calls(),
                ElementsAre("restore ColorSync", "online displays", "disabledDisplays = []",
                            "walk the registry", "listen to waking", "listen to reconfigurations"));
}

TEST(DisplayManager, BeginsWithoutAnErrorText) {
    ManagerRig rig;
    EXPECT_EQ(rig.start().lastError(), std::nullopt);
}

TEST(DisplayManager, BeginsWithTheStoredListOfMonitorsThatAreOff) {
    ManagerRig rig;
    persistence::Store::setDisabledDisplays(rig.defaults, {gone});
    const DisplayManager& manager = rig.start();
    EXPECT_THAT(manager.disabled(), ElementsAre(gone));
    EXPECT_THAT(rig.offlineIDs(), ElementsAre(9U));
    EXPECT_EQ(manager.offline().at(9)->name(), "Gone");
}

TEST(DisplayManager, HasNoMonitorsThatAreOffWhenNothingIsStored) {
    ManagerRig rig;
    EXPECT_THAT(rig.start().disabled(), IsEmpty());
}

TEST(DisplayManager, TakesAStoredListThatIsNoJSONForAnEmptyOne) {
    ManagerRig rig;
    rig.defaults.set(disabledKey, platform::DefaultsData{"[{\"id\":9,"});
    EXPECT_THAT(rig.start().disabled(), IsEmpty());
}

TEST(DisplayManager, TakesAStoredListOfAnotherTypeForAnEmptyOne) {
    ManagerRig rig;
    rig.defaults.set(disabledKey, std::int64_t{9});
    EXPECT_THAT(rig.start().disabled(), IsEmpty());
}

TEST(DisplayManager, DoesNotReportAStoredListThatItCannotRead) {
    ManagerRig rig;
    rig.defaults.set(disabledKey, platform::DefaultsData{"\xFF"});
    EXPECT_EQ(rig.start().lastError(), std::nullopt);
    for (const test::LogLine& line : rig.log.lines()) EXPECT_LT(line.level, LogLevel::error) << line;
}

class DisplayManagerDeathTest : public test::DeathTest {};

TEST_F(DisplayManagerDeathTest, AnIdentifierThatIsStoredTwiceStopsTheProgram) {
    const auto startWithATwin = [] {
        ManagerRig rig;
        DisabledDisplay twin = gone;
        twin.name = "Twin";
        persistence::Store::setDisabledDisplays(rig.defaults, {gone, twin});
        rig.start();
    };
    EXPECT_DEATH(startWithATwin(), "");
}

// Debounce

class DisplayManagerDebounce : public testing::Test {
  protected:
    DisplayManagerDebounce() {
        rig.startAndLoad();
        rig.calls.clear();
        rig.log.clear();
    }

    ManagerRig rig;
};

TEST_F(DisplayManagerDebounce, AReconfigurationLeadsToARefreshAfter600Milliseconds) {
    const auto before = rig.now();
    rig.displays.reconfigure(2, 0x2);
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(before + 600ms));
}

TEST_F(DisplayManagerDebounce, FiveReconfigurationsInARowLeadToOneRefreshAfterTheLast) {
    const auto before = rig.now();
    for (int index = 0; index < 5; ++index) {
        rig.loop.after(index * 100ms, [this] { rig.displays.reconfigure(2, 0x2); });
    }
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(before + 400ms + 600ms));
}

TEST_F(DisplayManagerDebounce, ReconfigurationsThatComeTooSoonPutTheRefreshOffWithoutEnd) {
    const auto before = rig.now();
    for (int index = 0; index < 20; ++index) {
        rig.loop.after(index * 599ms, [this] { rig.displays.reconfigure(2, 0x2); });
    }
    rig.runFor(20s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(before + 19 * 599ms + 600ms));
}

TEST_F(DisplayManagerDebounce, ReconfigurationsThatAreFarApartRefreshEachTime) {
    const auto before = rig.now();
    rig.displays.reconfigure(2, 0x2);
    rig.loop.after(601ms, [this] { rig.displays.reconfigure(2, 0x2); });
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(before + 600ms, before + 1201ms));
}

TEST_F(DisplayManagerDebounce, WakingLeadsToARefreshAfter600Milliseconds) {
    rig.world().sleep();
    rig.runFor(1h);
    const auto woken = rig.now();
    rig.world().wake();
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(woken + 600ms));
}

TEST_F(DisplayManagerDebounce, EveryWakingLeadsToARefresh) {
    for (int night = 0; night < 3; ++night) {
        rig.world().sleep();
        rig.runFor(1h);
        rig.world().wake();
        rig.runFor(5s);
    }
    EXPECT_EQ(rig.refreshes().size(), 3U);
}

TEST_F(DisplayManagerDebounce, WakingAndReconfigurationsShareOneRefresh) {
    rig.world().sleep();
    rig.runFor(1h);
    const auto woken = rig.now();
    rig.world().wake();
    rig.loop.after(300ms, [this] { rig.displays.reconfigure(3, 0x10); });
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(woken + 900ms));
}

TEST_F(DisplayManagerDebounce, ScheduledRefreshesReplaceEachOther) {
    const auto before = rig.now();
    rig.manager->scheduleRefresh();
    rig.loop.after(500ms, [this] { rig.manager->scheduleRefresh(); });
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(before + 1100ms));
}

TEST_F(DisplayManagerDebounce, ARefreshAtOnceDoesNotReplaceTheScheduledOne) {
    const auto before = rig.now();
    rig.manager->scheduleRefresh();
    rig.runFor(100ms);
    rig.manager->refresh();
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(before + 100ms, before + 600ms));
}

TEST_F(DisplayManagerDebounce, TheBeginPhaseDoesNothing) {
    rig.displays.reconfigure(2, 0x1);
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), IsEmpty());
    EXPECT_THAT(rig.log.lines(), IsEmpty());
}

TEST_F(DisplayManagerDebounce, TheBeginPhaseDoesNothingWhateverElseItsFlagsSay) {
    rig.displays.reconfigure(2, 0x3);
    rig.displays.reconfigure(2, 0xFFFF'FFFF);
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), IsEmpty());
    EXPECT_THAT(rig.log.lines(), IsEmpty());
}

TEST_F(DisplayManagerDebounce, TheBeginPhaseDoesNotPutAScheduledRefreshOff) {
    const auto before = rig.now();
    rig.displays.reconfigure(2, 0x2);
    rig.loop.after(500ms, [this] { rig.displays.reconfigure(2, 0x1); });
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), ElementsAre(before + 600ms));
}

TEST_F(DisplayManagerDebounce, AReconfigurationWithoutFlagsCounts) {
    rig.displays.reconfigure(2, 0);
    rig.runFor(5s);
    EXPECT_EQ(rig.refreshes().size(), 1U);
    EXPECT_THAT(rig.log.lines(),
                Contains(displayLine(LogLevel::info, "Reconfiguration: display 2, flags 0x0")));
}

TEST_F(DisplayManagerDebounce, AReconfigurationOfADisplayThatNobodyKnowsCounts) {
    rig.displays.reconfigure(4'000'000'000, 0x20);
    rig.runFor(5s);
    EXPECT_EQ(rig.refreshes().size(), 1U);
    EXPECT_THAT(rig.log.lines(),
                Contains(displayLine(LogLevel::info, "Reconfiguration: display 4000000000, flags 0x20")));
}

TEST_F(DisplayManagerDebounce, FlagsAreLoggedInLowercaseWithoutLeadingZeros) {
    rig.displays.reconfigure(3, 0xABC);
    EXPECT_THAT(rig.log.lines(),
                ElementsAre(displayLine(LogLevel::info, "Reconfiguration: display 3, flags 0xabc")));
}

TEST_F(DisplayManagerDebounce, EveryReconfigurationIsLoggedAtOnce) {
    for (const std::uint32_t flags : {0x2U, 0x10U, 0x20U}) rig.displays.reconfigure(2, flags);
    EXPECT_THAT(rig.log.lines(),
                ElementsAre(displayLine(LogLevel::info, "Reconfiguration: display 2, flags 0x2"),
                            displayLine(LogLevel::info, "Reconfiguration: display 2, flags 0x10"),
                            displayLine(LogLevel::info, "Reconfiguration: display 2, flags 0x20")));
}

TEST_F(DisplayManagerDebounce, WakingIsNoReconfiguration) {
    rig.world().sleep();
    rig.world().wake();
    rig.runFor(5s);
    for (const test::LogLine& line : rig.log.lines()) {
        EXPECT_THAT(line.text, Not(HasSubstr("Reconfiguration")));
    }
}

TEST_F(DisplayManagerDebounce, AManagerThatIsGoneIsNotCalled) {
    rig.manager->scheduleRefresh();
    rig.manager.reset();
    rig.displays.reconfigure(2, 0x2);
    rig.world().sleep();
    rig.world().wake();
    rig.runFor(5s);
    EXPECT_THAT(rig.refreshes(), IsEmpty());
    EXPECT_THAT(rig.log.lines(), IsEmpty());
}

// The error text

TEST(DisplayManagerLastError, IsNotTouchedByARefresh) {
    ManagerRig rig(test::deskOf({test::monitorPlan(2, "Alder")}));
    DisplayManager& manager = rig.startAndLoad();
    rig.perform(manager.disableOutput(rig.display(2), std::nullopt));
    manager.refresh();
    EXPECT_EQ(manager.lastError(), "The Mac's only active display can't be turned off.");
}

TEST(DisplayManagerLastError, IsClearedByTheUser) {
    ManagerRig rig(test::deskOf({test::monitorPlan(2, "Alder")}));
    DisplayManager& manager = rig.startAndLoad();
    rig.perform(manager.disableOutput(rig.display(2), std::nullopt));
    manager.clearLastError();
    EXPECT_EQ(manager.lastError(), std::nullopt);
}

TEST(DisplayManagerLastError, TellsWhoObservesIt) {
    ManagerRig rig(test::deskOf({test::monitorPlan(2, "Alder")}));
    DisplayManager& manager = rig.startAndLoad();
    int changes = 0;
    runtime::Observer observer([&changes] { ++changes; });
    observer.track([&] { return manager.lastError(); });
    rig.perform(manager.disableOutput(rig.display(2), std::nullopt));
    EXPECT_EQ(changes, 1);
}

// Forgetting

class DisplayManagerForget : public testing::Test {
  protected:
    DisplayManagerForget() {
        rig.startAndLoad();
        rig.perform(rig.manager->disableOutput(rig.display(2), std::nullopt));
        rig.perform(rig.manager->disableOutput(rig.display(3), std::nullopt));
        rig.runFor(5s);
        entry = rig.manager->disabled().at(0);
        rig.calls.clear();
    }

    ManagerRig rig;
    DisabledDisplay entry;
};

TEST_F(DisplayManagerForget, TakesTheEntryOffTheListAndSavesIt) {
    rig.manager->forget(entry);
    ASSERT_EQ(rig.manager->disabled().size(), 1U);
    EXPECT_EQ(rig.manager->disabled().at(0).id, 3U);
    EXPECT_EQ(rig.stored(), rig.manager->disabled());
}

TEST_F(DisplayManagerForget, LooksAtTheIdentifierOnly) {
    rig.manager->forget({.id = 2, .key = "another", .name = "other"});
    ASSERT_EQ(rig.manager->disabled().size(), 1U);
    EXPECT_EQ(rig.manager->disabled().at(0).id, 3U);
}

TEST_F(DisplayManagerForget, OfAMonitorThatIsNotOnTheListSavesTheListAsItIs) {
    const std::vector<DisabledDisplay> before = rig.manager->disabled();
    rig.manager->forget({.id = 99, .key = entry.key, .name = entry.name});
    EXPECT_EQ(rig.manager->disabled(), before);
    EXPECT_EQ(rig.calls.calls().size(), 1U);
    EXPECT_EQ(rig.stored(), before);
}

TEST_F(DisplayManagerForget, LeavesTheCardUntilTheNextRefresh) {
    rig.manager->forget(entry);
    rig.runFor(5s);
    EXPECT_THAT(rig.offlineIDs(), ElementsAre(2U, 3U));
    rig.manager->refresh();
    EXPECT_THAT(rig.offlineIDs(), ElementsAre(3U));
}

TEST_F(DisplayManagerForget, DoesNotTouchTheOutput) {
    rig.manager->forget(entry);
    rig.runFor(5s);
    EXPECT_FALSE(rig.world().isOnline(2));
    EXPECT_EQ(rig.calls.count("begin configuration"), 0);
}

TEST_F(DisplayManagerForget, KeepsTheModelForALaterReturn) {
    const auto model = rig.display(2);
    rig.manager->forget(entry);
    rig.manager->refresh();
    EXPECT_EQ(rig.display(2), model);
    rig.world().setOutput(2, simulated::World::Output::on);
    rig.runFor(1s);
    EXPECT_EQ(rig.manager->externals().at(0), model);
}

TEST_F(DisplayManagerForget, LastsOverARestart) {
    rig.manager->forget(entry);
    rig.restart();
    EXPECT_THAT(rig.offlineIDs(), ElementsAre(3U));
}

// Loading

TEST(DisplayManagerLoadAll, RefreshesTheValuesOfMonitorsThatAreLoaded) {
    ManagerRig rig;
    DisplayManager& manager = rig.startAndLoad();
    rig.monitor(2).adjust(0x10, 33);
    rig.monitor(3).adjust(0x10, 44);
    manager.loadAll();
    rig.runFor(5s);
    EXPECT_EQ(rig.display(2)->feature(0x10)->current.get(), 33);
    EXPECT_EQ(rig.display(3)->feature(0x10)->current.get(), 44);
    EXPECT_EQ(rig.monitor(2).counters().overlaps, 0U);
}

}  // namespace
}  // namespace vantrel::model
