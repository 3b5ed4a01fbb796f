#include <functional>
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
using test::has;
using test::hasAll;
using test::hasInputs;
using test::monitorThatLists;
using test::neverAnswers;
using test::quietMonitor;
using test::usualMonitor;
using Link = DisplayRig::Link;
using LoadState = ExternalDisplay::LoadState;
using Lines = DisplayRig::Lines;
using Requests = DisplayRig::Requests;
using Values = std::vector<std::uint16_t>;
using Codes = std::vector<int>;

const std::string cacheKey = "capabilities." + DisplayRig::key;

Codes codes(const ExternalDisplay& display) {
    Codes result;
    for (const auto& [code, feature] : display.features()) result.push_back(code);
    return result;
}

DefaultsValue cached(const std::string& text) {
    platform::MemoryDefaults defaults;
    persistence::Store::setCapabilities(defaults, mccs::MonitorCapabilities::parse(text), "");
    return defaults.value("capabilities.").value();
}

// Every attempt to get the capabilities of a monitor that doesn't send any.
const Requests vainFetch(5, "capabilities 0");

Requests afterVainFetch(const Requests& requests) {
    Requests result = vainFetch;
    result.insert(result.end(), requests.begin(), requests.end());
    return result;
}

void startLoading(DisplayRig& rig, ExternalDisplay::Capabilities from) {
    rig.tasks.start(rig.display->load(from));
    rig.runFor(100ms);
    ASSERT_EQ(rig.display->loadState(), LoadState::loading);
}

TEST(ExternalDisplayLoading, GivesTheFeaturesTheirValues) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.makeLoaded();
    EXPECT_EQ(display.loadState(), LoadState::ready);
    EXPECT_EQ(codes(display), (Codes{0x10, 0x12, 0x60, 0x62}));
    EXPECT_EQ(rig.feature(0x10).current.get(), 60);
    EXPECT_EQ(rig.feature(0x10).maximum.get(), 100);
    EXPECT_EQ(rig.feature(0x12).current.get(), 70);
    EXPECT_EQ(rig.feature(0x60).current.get(), 0x0F);
    EXPECT_EQ(rig.feature(0x62).current.get(), 30);
}

TEST(ExternalDisplayLoading, KeepsTheMaximumThatTheMonitorReports) {
    simulated::MonitorPlan plan = monitorThatLists("10");
    has(plan, 0x10, 300, 1023);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x10).current.get(), 300);
    EXPECT_EQ(rig.feature(0x10).maximum.get(), 1023);
}

TEST(ExternalDisplayLoading, AMaximumOfZeroBecomesOne) {
    simulated::MonitorPlan plan = monitorThatLists("10");
    has(plan, 0x10, 0, 0);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x10).maximum.get(), 1);
}

TEST(ExternalDisplayLoading, LogsItsBeginningAndItsEnd) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    Lines lines = rig.lines("display", LogLevel::standard);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[1], "Aurora: loading features (force capabilities: false)");
    EXPECT_EQ(lines[2], "Aurora: assuming Mac input is 0x0F");
    EXPECT_EQ(lines[3], "Aurora: loaded 4 features, inputs 0x0F, 0x11, current input 0x0F");
}

TEST(ExternalDisplayLoading, LogsThatItIsForced) {
    DisplayRig rig(usualMonitor());
    rig.make();
    rig.loadAfresh();
    EXPECT_TRUE(
        rig.logged("display", LogLevel::standard, "Aurora: loading features (force capabilities: true)"));
}

TEST(ExternalDisplayLoading, LogsAnUnknownInputAsSuch) {
    simulated::MonitorPlan plan = monitorThatLists("10");
    has(plan, 0x10, 60, 100);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.lines("display", LogLevel::standard).back(),
              "Aurora: loaded 1 features, inputs , current input unknown");
}

TEST(ExternalDisplayLoading, ReadsTheDefaultCodesFirstAndTheOthersInTheOrderOfTheCapabilities) {
    simulated::MonitorPlan plan = monitorThatLists("E5 87 62 16 60(0F) 12 10 14(05)");
    hasAll(plan, {0xE5, 0x87, 0x62, 0x16, 0x12, 0x10, 0x14}, 5, 100);
    hasInputs(plan, {0x0F});
    DisplayRig rig(plan);
    rig.make();
    rig.load();
    EXPECT_EQ(rig.requests(),
              (Requests{"capabilities 0", "capabilities 32", "capabilities 38", "get 10", "get 12", "get 60",
                        "get 62", "get E5", "get 87", "get 16", "get 14"}));
}

TEST(ExternalDisplayLoading, ReadsOnlyThoseDefaultCodesThatAreListed) {
    simulated::MonitorPlan plan = monitorThatLists("87 12");
    hasAll(plan, {0x87, 0x12, 0x10, 0x62}, 5, 100);
    hasInputs(plan, {0x0F});
    DisplayRig rig(plan);
    rig.defaults.set(cacheKey, cached("vcp(87 12)"));
    const ExternalDisplay& display = rig.make();
    rig.load();
    EXPECT_EQ(rig.requests(), (Requests{"get 12", "get 87"}));
    EXPECT_EQ(codes(display), (Codes{0x12, 0x87}));
}

TEST(ExternalDisplayLoading, DropsHiddenCodesWithoutReadingThem) {
    simulated::MonitorPlan plan = monitorThatLists("02 03 0B 10 52 AC B2 B6 C6 C8 DF F3");
    hasAll(plan, {0x02, 0x03, 0x0B, 0x10, 0x52, 0xAC, 0xB2, 0xB6, 0xC6, 0xC8, 0xDF, 0xF3}, 1, 100);
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.make();
    rig.load();
    EXPECT_EQ(codes(display), Codes{0x10});
    EXPECT_EQ(rig.requests().back(), "get 10");
    EXPECT_EQ(rig.monitor().counters().getRequests, 2U);
}

TEST(ExternalDisplayLoading, AnActionBecomesAFeatureWithoutARead) {
    simulated::MonitorPlan plan = monitorThatLists("04(01 02) 10");
    has(plan, 0x04, 0, 1);
    has(plan, 0x10, 60, 100);
    DisplayRig rig(plan);
    rig.make();
    rig.load();
    EXPECT_TRUE(rig.feature(0x04).options.get().empty());
    EXPECT_EQ(rig.feature(0x04).current.get(), std::nullopt);
    EXPECT_EQ(rig.feature(0x04).maximum.get(), 100);
    EXPECT_EQ(rig.requests().back(), "get 10");
    EXPECT_FALSE(rig.mentioned("read 0x04"));
}

TEST(ExternalDisplayLoading, FeaturesAppearOneByOneInTheOrderOfTheReads) {
    simulated::MonitorPlan plan = monitorThatLists("04 87 62 60(0F) 10");
    hasAll(plan, {0x87, 0x62, 0x10}, 5, 100);
    hasInputs(plan, {0x0F});
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.make();
    std::vector<Codes> seen;
    std::function<void()> note;
    runtime::Observer observer([&note] { note(); });
    note = [&] {
        seen.push_back(observer.track([&display] { return codes(display); }));
        EXPECT_NE(display.loadState(), LoadState::ready);
    };
    note();
    rig.load();
    EXPECT_EQ(seen, (std::vector<Codes>{{},
                                        {0x10},
                                        {0x10, 0x60},
                                        {0x10, 0x60, 0x62},
                                        {0x04, 0x10, 0x60, 0x62},
                                        {0x04, 0x10, 0x60, 0x62, 0x87}}));
}

TEST(ExternalDisplayLoading, AFeatureOfAnUnsupportedCodeIsNotMade) {
    simulated::MonitorPlan plan = monitorThatLists("10 12 14(05 08) E5(01 02)");
    has(plan, 0x10, 60, 100);
    DisplayRig rig(plan);
    EXPECT_EQ(codes(rig.makeLoaded()), Codes{0x10});
}

TEST(ExternalDisplayLoading, TheInputIsNotMadeWhenItIsUnsupported) {
    simulated::MonitorPlan plan = monitorThatLists("10 60(0F 11)");
    has(plan, 0x10, 60, 100);
    DisplayRig rig(plan);
    EXPECT_EQ(codes(rig.makeLoaded()), Codes{0x10});
}

TEST(ExternalDisplayLoading, TheInputIsMadeWhenItsReadFailed) {
    simulated::MonitorPlan plan = usualMonitor();
    neverAnswers(plan, {0x60});
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.makeLoaded();
    ASSERT_NE(display.feature(0x60), nullptr);
    EXPECT_EQ(display.inputs(), (Values{0x0F, 0x11}));
    EXPECT_EQ(rig.feature(0x60).current.get(), std::nullopt);
    EXPECT_EQ(rig.feature(0x60).maximum.get(), 100);
    EXPECT_EQ(display.inputSettings().macInput(), std::nullopt);
    EXPECT_EQ(display.loadState(), LoadState::ready);
}

TEST(ExternalDisplayLoading, TheInputIsMadeWithoutCapabilitiesWhenItsReadFailed) {
    simulated::MonitorPlan plan = quietMonitor();
    neverAnswers(plan, {0x60});
    DisplayRig rig(plan);
    EXPECT_EQ(rig.makeLoaded().inputs(), (Values{0x0F, 0x10, 0x11, 0x12, 0x1B}));
}

TEST(ExternalDisplayLoading, TheMaximumOfTheInputIsTheUsualOneAndNotTheReportedOne) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x60).maximum.get(), 100);
}

TEST(ExternalDisplayLoading, AContinuousFeatureWhoseReadFailedIsNotMade) {
    simulated::MonitorPlan plan = usualMonitor();
    neverAnswers(plan, {0x12});
    DisplayRig rig(plan);
    EXPECT_EQ(codes(rig.makeLoaded()), (Codes{0x10, 0x60, 0x62}));
}

TEST(ExternalDisplayLoading, AReadOnlyFeatureWhoseReadFailedIsNotMade) {
    simulated::MonitorPlan plan = monitorThatLists("10 AA(01 02)");
    has(plan, 0x10, 60, 100);
    has(plan, 0xAA, 1, 4);
    neverAnswers(plan, {0xAA});
    DisplayRig rig(plan);
    EXPECT_EQ(codes(rig.makeLoaded()), Codes{0x10});
}

TEST(ExternalDisplayLoading, AChoiceWhoseReadFailedKeepsTheListedValues) {
    simulated::MonitorPlan plan = monitorThatLists("14(08 05)");
    has(plan, 0x14, 6, 11);
    neverAnswers(plan, {0x14});
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.makeLoaded();
    ASSERT_EQ(codes(display), Codes{0x14});
    EXPECT_EQ(rig.feature(0x14).options.get(), (Values{8, 5}));
    EXPECT_EQ(rig.feature(0x14).current.get(), std::nullopt);
    EXPECT_EQ(rig.feature(0x14).maximum.get(), 100);
}

TEST(ExternalDisplayLoading, AChoiceWhoseReadFailedKeepsTheNamedValuesWhenNoneAreListed) {
    simulated::MonitorPlan plan = monitorThatLists("D6");
    has(plan, 0xD6, 1, 5);
    neverAnswers(plan, {0xD6});
    DisplayRig rig(plan);
    ASSERT_EQ(codes(rig.makeLoaded()), Codes{0xD6});
    EXPECT_EQ(rig.feature(0xD6).options.get(), (Values{1, 2, 3, 4, 5}));
}

TEST(ExternalDisplayLoading, AnUnknownCodeWithListedValuesIsAChoiceToo) {
    simulated::MonitorPlan plan = monitorThatLists("E5(02 01)");
    has(plan, 0xE5, 1, 2);
    neverAnswers(plan, {0xE5});
    DisplayRig rig(plan);
    ASSERT_EQ(codes(rig.makeLoaded()), Codes{0xE5});
    EXPECT_EQ(rig.feature(0xE5).info.kind, mccs::VCPInfo::Kind::choice);
    EXPECT_EQ(rig.feature(0xE5).options.get(), (Values{2, 1}));
}

TEST(ExternalDisplayLoading, AChoiceOffersTheListedValuesInTheirOrder) {
    simulated::MonitorPlan plan = monitorThatLists("14(0B 05 08)");
    has(plan, 0x14, 5, 11);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x14).options.get(), (Values{0x0B, 0x05, 0x08}));
    EXPECT_EQ(rig.feature(0x14).current.get(), 5);
    EXPECT_EQ(rig.feature(0x14).maximum.get(), 11);
}

TEST(ExternalDisplayLoading, AChoiceOffersAnUnlistedCurrentValueLast) {
    simulated::MonitorPlan plan = monitorThatLists("14(0B 05 08)");
    has(plan, 0x14, 6, 11);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x14).options.get(), (Values{0x0B, 0x05, 0x08, 0x06}));
}

TEST(ExternalDisplayLoading, AChoiceWithoutListedValuesOffersTheNamedOnesAscending) {
    simulated::MonitorPlan plan = monitorThatLists("DC");
    has(plan, 0xDC, 3, 240);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0xDC).options.get(), (Values{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 240}));
}

TEST(ExternalDisplayLoading, AChoiceWithoutListedValuesDoesNotOfferANamelessCurrentValue) {
    simulated::MonitorPlan plan = monitorThatLists("D6");
    has(plan, 0xD6, 9, 9);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0xD6).options.get(), (Values{1, 2, 3, 4, 5}));
    EXPECT_EQ(rig.feature(0xD6).current.get(), 9);
}

TEST(ExternalDisplayLoading, AFeatureThatIsNoChoiceKeepsTheListedValuesAlone) {
    simulated::MonitorPlan plan = monitorThatLists("10(0A 05) AA(01 02)");
    has(plan, 0x10, 60, 100);
    has(plan, 0xAA, 4, 4);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_EQ(rig.feature(0x10).options.get(), (Values{0x0A, 0x05}));
    EXPECT_EQ(rig.feature(0xAA).options.get(), (Values{0x01, 0x02}));
}

TEST(ExternalDisplayLoading, AFeatureThatIsNoChoiceOffersNothingWithoutListedValues) {
    simulated::MonitorPlan plan = monitorThatLists("10 AA");
    has(plan, 0x10, 60, 100);
    has(plan, 0xAA, 4, 4);
    DisplayRig rig(plan);
    rig.makeLoaded();
    EXPECT_TRUE(rig.feature(0x10).options.get().empty());
    EXPECT_TRUE(rig.feature(0xAA).options.get().empty());
}

TEST(ExternalDisplayLoading, TriesEachReadFourTimes) {
    simulated::MonitorPlan plan = monitorThatLists("10 14(05)");
    has(plan, 0x10, 60, 100);
    has(plan, 0x14, 5, 11);
    neverAnswers(plan, {0x14});
    DisplayRig rig(plan);
    rig.defaults.set(cacheKey, cached("vcp(10 14(05))"));
    rig.make();
    rig.load();
    EXPECT_EQ(rig.requests(), (Requests{"get 10", "get 14", "get 14", "get 14", "get 14"}));
}

TEST(ExternalDisplayLoading, FetchedCapabilitiesAreKeptAndStored) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.make();
    rig.load();
    EXPECT_EQ(display.capabilities(), mccs::MonitorCapabilities::parse("(vcp(10 12 60(0F 11) 62))"));
    EXPECT_EQ(rig.defaults.value(cacheKey), cached("(vcp(10 12 60(0F 11) 62))"));
}

TEST(ExternalDisplayLoading, StoredCapabilitiesAreUsedWithoutFetching) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set(cacheKey, cached("vcp(12)"));
    const ExternalDisplay& display = rig.make();
    rig.load();
    EXPECT_EQ(rig.requests(), Requests{"get 12"});
    EXPECT_EQ(display.capabilities(), mccs::MonitorCapabilities::parse("vcp(12)"));
    EXPECT_EQ(codes(display), Codes{0x12});
}

TEST(ExternalDisplayLoading, CapabilitiesAreReadFromTheStoreWhenItLoadsAndNotBefore) {
    DisplayRig rig(usualMonitor());
    rig.make();
    rig.defaults.set(cacheKey, cached("vcp(12)"));
    rig.load();
    EXPECT_EQ(rig.requests(), Requests{"get 12"});
}

TEST(ExternalDisplayLoading, UnreadableStoredCapabilitiesAreFetchedAndReplaced) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set(cacheKey, DefaultsData{"{"});
    rig.make();
    rig.load();
    EXPECT_EQ(rig.requests().front(), "capabilities 0");
    EXPECT_EQ(rig.defaults.value(cacheKey), cached("(vcp(10 12 60(0F 11) 62))"));
}

TEST(ExternalDisplayLoading, AForcedLoadFetchesThemAlthoughTheyAreStored) {
    DisplayRig rig(usualMonitor());
    rig.defaults.set(cacheKey, cached("vcp(12)"));
    const ExternalDisplay& display = rig.make();
    rig.loadAfresh();
    EXPECT_EQ(rig.requests().front(), "capabilities 0");
    EXPECT_EQ(codes(display), (Codes{0x10, 0x12, 0x60, 0x62}));
    EXPECT_EQ(rig.defaults.value(cacheKey), cached("(vcp(10 12 60(0F 11) 62))"));
}

TEST(ExternalDisplayLoading, AForcedLoadThatGetsNoneUsesNoneAndKeepsTheStoredOnes) {
    DisplayRig rig(quietMonitor());
    rig.defaults.set(cacheKey, cached("vcp(12)"));
    const ExternalDisplay& display = rig.make();
    rig.loadAfresh();
    EXPECT_EQ(display.capabilities(), std::nullopt);
    EXPECT_EQ(codes(display), (Codes{0x10, 0x12, 0x60, 0x62}));
    EXPECT_EQ(rig.defaults.value(cacheKey), cached("vcp(12)"));
}

TEST(ExternalDisplayLoading, AForcedLoadForgetsTheCapabilitiesOfTheOneBefore) {
    DisplayRig rig(quietMonitor());
    rig.defaults.set(cacheKey, cached("vcp(12)"));
    const ExternalDisplay& display = rig.make();
    rig.load();
    ASSERT_NE(display.capabilities(), std::nullopt);
    rig.loadAfresh();
    EXPECT_EQ(display.capabilities(), std::nullopt);
}

TEST(ExternalDisplayLoading, CapabilitiesWithoutACodeRemoveTheStoredOnesAndCountAsNone) {
    simulated::MonitorPlan plan = usualMonitor();
    plan.capabilities = "(model(X))";
    DisplayRig rig(plan);
    rig.defaults.set(cacheKey, cached("vcp(12)"));
    const ExternalDisplay& display = rig.make();
    rig.loadAfresh();
    EXPECT_EQ(display.capabilities(), std::nullopt);
    EXPECT_EQ(rig.defaults.value(cacheKey), std::nullopt);
    EXPECT_EQ(codes(display), (Codes{0x10, 0x12, 0x60, 0x62}));
}

TEST(ExternalDisplayLoading, WithoutCapabilitiesItProbesBrightnessAndThenReadsTheDefaultCodes) {
    DisplayRig rig(quietMonitor());
    const ExternalDisplay& display = rig.make();
    rig.load();
    EXPECT_EQ(rig.requests(), afterVainFetch({"get 10", "get 10", "get 12", "get 60", "get 62"}));
    EXPECT_EQ(codes(display), (Codes{0x10, 0x12, 0x60, 0x62}));
    EXPECT_EQ(display.loadState(), LoadState::ready);
    EXPECT_EQ(rig.defaults.value(cacheKey), std::nullopt);
}

TEST(ExternalDisplayLoading, AnUnsupportedProbeIsAnAnswer) {
    simulated::MonitorPlan plan = quietMonitor();
    plan.features.erase(0x10);
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.makeLoaded();
    EXPECT_EQ(display.loadState(), LoadState::ready);
    EXPECT_EQ(codes(display), (Codes{0x12, 0x60, 0x62}));
}

TEST(ExternalDisplayLoading, WithoutAnAnswerToTheProbeItIsUnavailable) {
    simulated::MonitorPlan plan = quietMonitor();
    neverAnswers(plan, {0x10});
    DisplayRig rig(plan);
    ExternalDisplay& display = rig.make();
    rig.load();
    EXPECT_EQ(rig.requests(), afterVainFetch({"get 10", "get 10", "get 10", "get 10"}));
    EXPECT_EQ(display.loadState(), LoadState::unavailable);
    EXPECT_TRUE(display.features().empty());
    EXPECT_TRUE(display.dimmer().isActive());
    EXPECT_TRUE(rig.logged("display", LogLevel::error, "Aurora: no DDC answer, marking unavailable"));
    EXPECT_FALSE(rig.mentioned("loaded"));
}

TEST(ExternalDisplayLoading, WithCapabilitiesItNeedsNoAnswerToBeReady) {
    simulated::MonitorPlan plan = usualMonitor();
    neverAnswers(plan, {0x10, 0x12, 0x60, 0x62});
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.makeLoaded();
    EXPECT_EQ(display.loadState(), LoadState::ready);
    EXPECT_EQ(codes(display), Codes{0x60});
}

TEST(ExternalDisplayLoading, WhileUnavailableAnOrdinaryLoadDoesNothing) {
    simulated::MonitorPlan plan = quietMonitor();
    neverAnswers(plan, {0x10});
    DisplayRig rig(plan);
    const ExternalDisplay& display = rig.makeLoaded();
    rig.monitor().becomeHealthy();
    rig.load();
    EXPECT_EQ(rig.requests(), Requests{});
    EXPECT_EQ(display.loadState(), LoadState::unavailable);
}

TEST(ExternalDisplayLoading, AForcedLoadBringsAnUnavailableDisplayBackAndEndsTheDimming) {
    simulated::MonitorPlan plan = quietMonitor();
    neverAnswers(plan, {0x10});
    DisplayRig rig(plan);
    ExternalDisplay& display = rig.makeLoaded();
    ASSERT_TRUE(display.dimmer().isActive());
    rig.monitor().becomeHealthy();
    rig.loadAfresh();
    EXPECT_EQ(display.loadState(), LoadState::ready);
    EXPECT_FALSE(display.dimmer().isActive());
}

TEST(ExternalDisplayLoading, AForcedLoadThatGetsNoAnswerMakesAReadyDisplayUnavailable) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    rig.monitor().setPower(simulated::SimulatedMonitor::Power::off);
    rig.loadAfresh();
    EXPECT_EQ(display.loadState(), LoadState::unavailable);
    EXPECT_TRUE(display.features().empty());
    EXPECT_TRUE(display.dimmer().isActive());
}

TEST(ExternalDisplayLoading, WithoutAServiceItDoesNothing) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.make(Link::missing);
    rig.load();
    rig.loadAfresh();
    EXPECT_EQ(display.loadState(), LoadState::unavailable);
    EXPECT_EQ(rig.requests(), Requests{});
    EXPECT_FALSE(rig.mentioned("loading features"));
}

TEST(ExternalDisplayLoading, WhileReturningItDoesNothing) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.make();
    display.setReturningToMac(true);
    rig.load();
    rig.loadAfresh();
    EXPECT_EQ(display.loadState(), LoadState::idle);
    EXPECT_EQ(rig.requests(), Requests{});
}

TEST(ExternalDisplayLoading, WhileReturningAReadyDisplayIsNotRefreshed) {
    DisplayRig rig(usualMonitor());
    ExternalDisplay& display = rig.makeLoaded();
    display.setReturningToMac(true);
    rig.load();
    EXPECT_EQ(rig.requests(), Requests{});
}

TEST(ExternalDisplayLoading, WhileLoadingAnotherLoadDoesNothing) {
    DisplayRig rig(usualMonitor());
    rig.make();
    startLoading(rig, ExternalDisplay::Capabilities::cachedIfAny);
    rig.load();
    rig.loadAfresh();
    EXPECT_EQ(rig.display->loadState(), LoadState::loading);
    rig.runFor(10s);
    EXPECT_EQ(rig.display->loadState(), LoadState::ready);
    EXPECT_EQ(rig.requests(),
              (Requests{"capabilities 0", "capabilities 25", "get 10", "get 12", "get 60", "get 62"}));
}

TEST(ExternalDisplayLoading, AReadyDisplayOnlyRefreshesItsValues) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.makeLoaded();
    const auto brightness = display.feature(0x10);
    rig.load();
    EXPECT_EQ(rig.requests(), (Requests{"get 10", "get 12", "get 60", "get 62"}));
    EXPECT_EQ(display.feature(0x10), brightness);
    EXPECT_TRUE(
        rig.logged("display", LogLevel::standard, "Aurora: loading features (force capabilities: false)"));
}

TEST(ExternalDisplayLoading, AForcedLoadOfAReadyDisplayBeginsWithoutFeatures) {
    DisplayRig rig(usualMonitor());
    const ExternalDisplay& display = rig.makeLoaded();
    startLoading(rig, ExternalDisplay::Capabilities::fetched);
    EXPECT_TRUE(display.features().empty());
    rig.runFor(10s);
    EXPECT_EQ(codes(display), (Codes{0x10, 0x12, 0x60, 0x62}));
}

TEST(ExternalDisplayLoading, RefreshingReadsTheFourCodesInTheirOrderAndNoOthers) {
    simulated::MonitorPlan plan = monitorThatLists("87 62 60(0F) 12 10");
    hasAll(plan, {0x87, 0x62, 0x12, 0x10}, 5, 100);
    hasInputs(plan, {0x0F});
    DisplayRig rig(plan);
    rig.makeLoaded();
    rig.refresh();
    EXPECT_EQ(rig.requests(), (Requests{"get 10", "get 12", "get 60", "get 62"}));
}

TEST(ExternalDisplayLoading, RefreshingReadsOnlyCodesThatHaveAFeature) {
    simulated::MonitorPlan plan = monitorThatLists("87 12");
    hasAll(plan, {0x87, 0x12, 0x10}, 5, 100);
    DisplayRig rig(plan);
    rig.makeLoaded();
    rig.refresh();
    EXPECT_EQ(rig.requests(), Requests{"get 12"});
}

TEST(ExternalDisplayLoading, RefreshingTakesANewValue) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    rig.monitor().adjust(0x62, 75);
    rig.refresh();
    EXPECT_EQ(rig.feature(0x62).current.get(), 75);
}

TEST(ExternalDisplayLoading, RefreshingTakesANewMaximum) {
    simulated::MonitorPlan plan = monitorThatLists("10 62");
    has(plan, 0x10, 60, 200);
    has(plan, 0x62, 30, 100);
    // The first answer for the volume repeats that for brightness.
    plan.personality.replyFaults.push_back(
        {.kind = simulated::ReplyFault::Kind::lastValue, .when = {.first = 1}, .codes = {0x62}});
    DisplayRig rig(plan);
    rig.makeLoaded();
    ASSERT_EQ(rig.feature(0x62).maximum.get(), 200);
    rig.refresh();
    EXPECT_EQ(rig.feature(0x62).maximum.get(), 100);
}

TEST(ExternalDisplayLoading, RefreshingUnchangedValuesWakesNobody) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    const auto readEverything = [&rig] {
        for (const auto& [code, feature] : rig.display->features()) {
            feature->current.get();
            feature->maximum.get();
            feature->options.get();
        }
        return rig.display->loadState();
    };
    EXPECT_FALSE(test::wakes(readEverything, [&rig] { rig.refresh(); }));
}

TEST(ExternalDisplayLoading, RefreshingWakesTheReadersOfAChangedValueOnly) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    rig.monitor().adjust(0x10, 75);
    EXPECT_FALSE(test::wakes([&rig] { return rig.feature(0x12).current.get(); }, [&rig] { rig.refresh(); }));
    rig.monitor().adjust(0x10, 76);
    EXPECT_TRUE(test::wakes([&rig] { return rig.feature(0x10).current.get(); }, [&rig] { rig.refresh(); }));
}

TEST(ExternalDisplayLoading, RefreshingTriesEachReadTwiceAndLeavesWhatFailedAsItWas) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded();
    rig.monitor().setPower(simulated::SimulatedMonitor::Power::off);
    rig.refresh();
    for (const char* code : {"10", "12", "60", "62"}) {
        EXPECT_TRUE(rig.mentioned("Aurora read 0x" + std::string(code) + " failed after 2 attempts"));
    }
    EXPECT_EQ(rig.feature(0x10).current.get(), 60);
    EXPECT_EQ(rig.feature(0x60).current.get(), 0x0F);
}

TEST(ExternalDisplayLoading, ALateAnswerIsStillAnAnswer) {
    simulated::MonitorPlan plan = usualMonitor();
    plan.personality.replyFaults.push_back(
        {.kind = simulated::ReplyFault::Kind::nullMessage, .when = {.first = 3}, .codes = {0x10}});
    DisplayRig rig(plan);
    rig.defaults.set(cacheKey, cached("vcp(10)"));
    rig.make();
    rig.load();
    EXPECT_EQ(rig.requests(), (Requests{"get 10", "get 10", "get 10", "get 10"}));
    EXPECT_EQ(rig.feature(0x10).current.get(), 60);
}

TEST(ExternalDisplayLoading, RefreshingLeavesWhatBecameUnsupportedAsItWas) {
    simulated::MonitorPlan plan = usualMonitor();
    plan.features[0x62] = {.unsupported = true};
    plan.personality.unsupported = simulated::UnsupportedReply::zeros;
    DisplayRig rig(plan);
    rig.makeLoaded();
    ASSERT_EQ(rig.feature(0x62).current.get(), 0);
    rig.monitor().becomeHealthy();
    rig.refresh();
    EXPECT_TRUE(rig.mentioned("Aurora read 0x62: unsupported"));
    EXPECT_EQ(rig.feature(0x62).current.get(), 0);
    EXPECT_EQ(rig.feature(0x62).maximum.get(), 1);
}

TEST(ExternalDisplayLoading, RefreshingADisplayThatNeverLoadedReadsNothing) {
    DisplayRig rig(usualMonitor());
    rig.make();
    rig.refresh();
    EXPECT_EQ(rig.requests(), Requests{});
}

TEST(ExternalDisplayLoading, RefreshingWithoutAServiceReadsNothing) {
    DisplayRig rig(usualMonitor());
    rig.make(Link::missing);
    rig.refresh();
    EXPECT_EQ(rig.requests(), Requests{});
}

TEST(ExternalDisplayLoading, RefreshingWhileReturningReadsNothing) {
    DisplayRig rig(usualMonitor());
    rig.makeLoaded().setReturningToMac(true);
    rig.refresh();
    EXPECT_EQ(rig.requests(), Requests{});
}

}  // namespace
}  // namespace vantrel::model
