// How a return to the computer's input is verified, reading by reading.
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ManagerRig.h"

namespace vantrel::model {
namespace {

using namespace std::chrono_literals;
using test::computersInput;
using test::deskOf;
using test::inputReads;
using test::ManagerRig;
using test::monitorPlan;
using test::otherInput;
using test::panelPlan;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Duration = ManagerRig::Duration;

const std::string attempt = "Alder: switching to Mac input 0x0F, attempt 1";
const std::string refused = "Alder: monitor did not take the Mac input, attempt 1";
const std::string settled = "Alder: monitor settled on the Mac input";

// An input that the monitor has and does not list, so that it reads as unknown.
constexpr std::uint16_t unlistedInput = 0x13;

// A monitor that shows another input and changes it by its own buttons only.
class Verification {
  public:
    enum class Elsewhere { answers, silent };

    explicit Verification(Elsewhere elsewhere = Elsewhere::answers, std::chrono::microseconds byteTime = 0us)
        : rig(deskOf({panelPlan(), plan(elsewhere, byteTime)})) {
        rig.startAndLoad();
        monitor().pressInputButton(otherInput);
        monitor().recordTrace();
    }

    simulated::SimulatedMonitor& monitor() { return rig.monitor(2); }
    void begin() {
        start = rig.now();
        rig.manager->start(rig.manager->returnToMac(rig.display(2)));
    }
    void after(Duration delay, std::function<void()> what) { rig.loop.after(delay, std::move(what)); }
    void show(std::uint16_t input) { monitor().pressInputButton(input); }
    // Off the bus and back, which a refresh in between notices.
    void pulseAfter(Duration delay) {
        after(delay, [this] { rig.world().unplug(2); });
        after(delay + 700ms, [this] { rig.world().plug(2); });
    }

    // Shows each input for exactly one reading. Nothing is no answer, which only a
    // monitor that is silent elsewhere can give.
    void answer(const std::vector<std::optional<std::uint16_t>>& answers) {
        if (rig.log.moments(attempt).empty()) begin();
        for (const auto& input : answers) {
            const std::size_t before = readings();
            show(input.value_or(otherInput));
            runWhile([&] { return readings() == before; });
            // The answer comes after 60 ms, and the next question a second later.
            rig.runFor(500ms);
        }
    }
    bool hasSettled() const { return !rig.log.moments(settled).empty(); }
    std::size_t readings() { return inputReads(monitor()).size(); }

    // For a few minutes at the most.
    void runWhile(const std::function<bool()>& condition) {
        const auto limit = rig.now() + 5min;
        while (condition() && rig.now() < limit) rig.runFor(50ms);
        EXPECT_FALSE(condition());
    }
    // Runs until the attempt has ended.
    void finish() {
        runWhile([this] { return rig.log.moments(refused).empty() && !hasSettled(); });
    }
    // From the beginning of the attempt.
    Duration gaveUp() const { return rig.log.moments(refused).at(0) - rig.log.moments(attempt).at(0); }
    Duration settledAfter() const { return rig.log.moments(settled).at(0) - rig.log.moments(attempt).at(0); }
    Duration lastReading() {
        Duration last{};
        for (const auto moment : inputReads(monitor())) {
            if (moment < rig.log.moments(refused).at(0)) last = moment - start;
        }
        return last;
    }

    ManagerRig rig;
    runtime::MonotonicTime start;

  private:
    static simulated::DisplayPlan plan(Elsewhere elsewhere, std::chrono::microseconds byteTime) {
        simulated::DisplayPlan plan = monitorPlan(2, "Alder");
        plan.monitor->inputs->available.push_back(unlistedInput);
        plan.monitor->personality.inputSwitch.ignored.every = 1;
        plan.monitor->personality.silentOnOtherInputs = elsewhere == Elsewhere::silent;
        plan.monitor->personality.byteTime = byteTime;
        return plan;
    }
};

// The streak

TEST(DisplayManagerWait, ThreeMatchingReadingsSettle) {
    Verification run;
    run.answer({computersInput, computersInput, computersInput});
    EXPECT_TRUE(run.hasSettled());
    EXPECT_EQ(run.readings(), 3U);
}

TEST(DisplayManagerWait, TwoMatchingReadingsDoNotSettle) {
    Verification run;
    run.answer({computersInput, computersInput});
    EXPECT_FALSE(run.hasSettled());
}

TEST(DisplayManagerWait, ReadingsAreASecondApart) {
    Verification run;
    run.show(computersInput);
    run.begin();
    run.finish();
    const auto reads = inputReads(run.monitor());
    ASSERT_THAT(reads, SizeIs(3));
    // One reading takes two requests, 10 ms apart, and 50 ms for the answer.
    EXPECT_EQ(reads[1] - reads[0], 1060ms);
    EXPECT_EQ(reads[2] - reads[1], 1060ms);
}

TEST(DisplayManagerWait, AMonitorThatIsThereSettlesAfterAboutTwoSeconds) {
    Verification run;
    run.show(computersInput);
    run.begin();
    run.finish();
    // The write and three readings take 60 ms each.
    EXPECT_EQ(run.settledAfter(), 2s + 4 * 60ms);
}

TEST(DisplayManagerWait, AnotherInputStartsTheStreakAgain) {
    Verification run;
    run.answer({computersInput, otherInput, computersInput, computersInput});
    EXPECT_FALSE(run.hasSettled());
    run.finish();
    EXPECT_TRUE(run.hasSettled());
    EXPECT_EQ(run.readings(), 5U);
}

TEST(DisplayManagerWait, AnotherInputAfterTwoMatchesStartsTheStreakAgain) {
    Verification run;
    run.answer({computersInput, computersInput, otherInput, computersInput, computersInput});
    EXPECT_FALSE(run.hasSettled());
    run.answer({computersInput});
    EXPECT_TRUE(run.hasSettled());
}

TEST(DisplayManagerWait, AFailedReadingDoesNotResetTheStreak) {
    Verification run(Verification::Elsewhere::silent);
    run.answer({computersInput, std::nullopt, computersInput, computersInput});
    EXPECT_TRUE(run.hasSettled());
}

TEST(DisplayManagerWait, AFailedReadingDoesNotCount) {
    Verification run(Verification::Elsewhere::silent);
    run.answer({computersInput, std::nullopt, computersInput});
    EXPECT_FALSE(run.hasSettled());
}

TEST(DisplayManagerWait, ManyFailedReadingsDoNotResetTheStreak) {
    Verification run(Verification::Elsewhere::silent);
    run.answer({computersInput, std::nullopt, std::nullopt, computersInput, std::nullopt, std::nullopt,
                std::nullopt, computersInput});
    EXPECT_TRUE(run.hasSettled());
}

TEST(DisplayManagerWait, FailedReadingsAloneNeverSettle) {
    Verification run(Verification::Elsewhere::silent);
    run.answer({std::nullopt, std::nullopt, std::nullopt, std::nullopt});
    EXPECT_FALSE(run.hasSettled());
}

TEST(DisplayManagerWait, AnUnknownReadingNeitherCountsNorResetsTheStreak) {
    Verification run;
    run.answer({computersInput, unlistedInput, computersInput});
    EXPECT_FALSE(run.hasSettled());
    run.answer({computersInput});
    EXPECT_TRUE(run.hasSettled());
}

TEST(DisplayManagerWait, OtherInputsInARowNeverSettle) {
    Verification run;
    run.answer({otherInput, otherInput, otherInput, otherInput});
    EXPECT_FALSE(run.hasSettled());
}

TEST(DisplayManagerWait, EveryAttemptStartsItsStreakAnew) {
    Verification run(Verification::Elsewhere::silent);
    run.after(37500ms, [&] { run.show(computersInput); });
    run.begin();
    run.finish();
    // Silent for the whole first attempt, which ends after 20 s, so the second has it.
    EXPECT_FALSE(run.hasSettled());
    run.runWhile([&] { return !run.hasSettled(); });
    EXPECT_GE(run.rig.now() - run.start, 39500ms);
    EXPECT_THAT(run.rig.log.moments("Alder: switching to Mac input 0x0F, attempt 2"), SizeIs(1));
}

// The limits

TEST(DisplayManagerWait, GivesUpAfter20Seconds) {
    Verification run;
    run.begin();
    run.finish();
    EXPECT_LT(run.lastReading(), 20s);
    EXPECT_GE(run.gaveUp(), 20s);
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, GivesUpAfter20SecondsWhenNothingIsHeard) {
    Verification run;
    run.monitor().setPower(simulated::SimulatedMonitor::Power::off);
    run.begin();
    run.finish();
    EXPECT_GE(run.gaveUp(), 20s);
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, GivesAMonitorThatPulsedMeanwhile28Seconds) {
    Verification run;
    run.begin();
    run.pulseAfter(2s);
    run.finish();
    EXPECT_LT(run.lastReading(), 28s);
    EXPECT_GE(run.gaveUp(), 28s);
    EXPECT_LT(run.gaveUp(), 29100ms);
}

TEST(DisplayManagerWait, APulseLateInTheWaitCountsToo) {
    Verification run;
    run.begin();
    run.pulseAfter(18s);
    run.finish();
    EXPECT_GE(run.gaveUp(), 28s);
    EXPECT_LT(run.gaveUp(), 29100ms);
}

TEST(DisplayManagerWait, SeveralPulsesGiveNoMoreTime) {
    Verification run;
    run.begin();
    for (const auto delay : {1s, 6s, 12s, 22s}) run.pulseAfter(delay);
    run.finish();
    EXPECT_GE(run.gaveUp(), 28s);
    EXPECT_LT(run.gaveUp(), 29100ms);
}

TEST(DisplayManagerWait, APulseBeforeItBeganGivesNoMoreTime) {
    Verification run;
    run.pulseAfter(0s);
    run.rig.runFor(5s);
    run.begin();
    run.finish();
    EXPECT_GE(run.gaveUp(), 20s);
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, APulseAtTheMomentItBeganGivesNoMoreTime) {
    Verification run;
    run.rig.world().unplug(2);
    run.rig.runFor(700ms);
    run.rig.world().plug(2);
    run.rig.runFor(5s);
    run.rig.world().unplug(2);
    run.rig.manager->refresh();
    run.begin();
    run.after(100ms, [&] { run.rig.world().plug(2); });
    run.finish();
    EXPECT_EQ(run.rig.log.moments(attempt).at(0), run.start);
    EXPECT_GE(run.gaveUp(), 20s);
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, APulseIsNotSeenWhenTheMonitorIsBackBeforeTheRefresh) {
    Verification run;
    run.begin();
    run.after(2s, [&] { run.rig.world().unplug(2); });
    run.after(2500ms, [&] { run.rig.world().plug(2); });
    run.finish();
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, APulseOfAnotherMonitorGivesNoMoreTime) {
    Verification run;
    run.rig.displays.onlineInstead = {1, 2, 7};
    run.rig.manager->refresh();
    run.begin();
    run.after(2s, [&] {
        run.rig.displays.onlineInstead = {1, 2};
        run.rig.manager->refresh();
    });
    run.finish();
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, AnUnreadableOnlineListIsAPulseOfEveryMonitor) {
    Verification run;
    run.begin();
    run.after(2s, [&] {
        run.rig.displays.onlineInstead.emplace();
        run.rig.manager->refresh();
        run.rig.displays.onlineInstead.reset();
        run.rig.manager->refresh();
    });
    run.finish();
    EXPECT_GE(run.gaveUp(), 28s);
    EXPECT_LT(run.gaveUp(), 29100ms);
}

TEST(DisplayManagerWait, TurningTheOutputOffIsNoPulse) {
    Verification run;
    run.begin();
    run.after(2s, [&] {
        run.rig.manager->start(run.rig.manager->disableOutput(run.rig.display(2), std::nullopt));
    });
    run.finish();
    EXPECT_THAT(run.rig.offlineIDs(), ElementsAre(2U));
    EXPECT_GE(run.gaveUp(), 20s);
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, AMonitorThatStaysAwayPulsedOnce) {
    Verification run;
    run.begin();
    run.after(2s, [&] { run.rig.world().unplug(2); });
    run.after(40s, [&] { run.rig.manager->refresh(); });
    run.finish();
    EXPECT_GE(run.gaveUp(), 28s);
    EXPECT_LT(run.gaveUp(), 29100ms);
    const std::string second = "Alder: monitor did not take the Mac input, attempt 2";
    run.runWhile([&] { return run.rig.log.moments(second).empty(); });
    const Duration took = run.rig.log.moments(second).at(0) - run.rig.log.moments(refused).at(0);
    EXPECT_LT(took, 21100ms);
}

// Grace

TEST(DisplayManagerWait, ReadsOnUntil38SecondsWhenTheLastReadingMatched) {
    Verification run(Verification::Elsewhere::silent);
    run.show(computersInput);
    run.begin();
    run.after(700ms, [&] { run.show(otherInput); });
    run.finish();
    EXPECT_LT(run.lastReading(), 38s);
    EXPECT_GE(run.gaveUp(), 38s);
    EXPECT_LT(run.gaveUp(), 39100ms);
}

TEST(DisplayManagerWait, ReadsOnUntil38SecondsAlsoAfterAPulse) {
    Verification run(Verification::Elsewhere::silent);
    run.show(computersInput);
    run.begin();
    run.after(700ms, [&] { run.show(otherInput); });
    run.pulseAfter(5s);
    run.finish();
    EXPECT_GE(run.gaveUp(), 38s);
    EXPECT_LT(run.gaveUp(), 39100ms);
}

TEST(DisplayManagerWait, SettlesInTheGraceTime) {
    Verification run(Verification::Elsewhere::silent);
    run.show(computersInput);
    run.begin();
    run.after(700ms, [&] { run.show(otherInput); });
    run.after(34s, [&] { run.show(computersInput); });
    run.finish();
    ASSERT_TRUE(run.hasSettled());
    EXPECT_GE(run.settledAfter(), 35s);
    EXPECT_LT(run.settledAfter(), 36500ms);
}

TEST(DisplayManagerWait, AnotherInputEndsTheGraceTime) {
    Verification run(Verification::Elsewhere::silent);
    run.show(computersInput);
    run.begin();
    run.after(700ms, [&] { run.show(otherInput); });
    run.after(30s, [&] {
        run.monitor().becomeHealthy();
        run.show(otherInput);
    });
    run.finish();
    EXPECT_GE(run.gaveUp(), 31s);
    EXPECT_LT(run.gaveUp(), 32200ms);
}

TEST(DisplayManagerWait, AMatchThatWasNotTheLastReadingGivesNoGrace) {
    Verification run;
    run.show(computersInput);
    run.begin();
    run.after(700ms, [&] { run.show(otherInput); });
    run.finish();
    EXPECT_LT(run.gaveUp(), 21100ms);
}

TEST(DisplayManagerWait, ASettledStreakMayEndAfterTheLimit) {
    Verification run;
    run.begin();
    run.after(18500ms, [&] { run.show(computersInput); });
    run.finish();
    ASSERT_TRUE(run.hasSettled());
    EXPECT_GE(run.settledAfter(), 21s);
}

// Many monitors, each a little slower on its bus, see to readings at all moments
// around the limit.
struct Bounds {
    Duration latestReading{};
    Duration earliestEnd = 1h;
};

Bounds boundsOverManyMonitors(Verification::Elsewhere elsewhere,
                              const std::function<void(Verification&)>& prepare) {
    Bounds bounds;
    for (int step = 0; step < 60; ++step) {
        Verification run(elsewhere, step * 45us);
        prepare(run);
        run.begin();
        run.finish();
        bounds.latestReading = std::max(bounds.latestReading, run.lastReading());
        bounds.earliestEnd = std::min(bounds.earliestEnd, run.gaveUp());
    }
    return bounds;
}

void expectLimit(const Bounds& bounds, Duration limit) {
    EXPECT_LT(bounds.latestReading, limit + 20ms);
    EXPECT_GT(bounds.latestReading, limit - 60ms);
    EXPECT_GE(bounds.earliestEnd, limit);
    EXPECT_LT(bounds.earliestEnd, limit + 60ms);
}

TEST(DisplayManagerWaitLimits, TheUsualOneIs20Seconds) {
    expectLimit(boundsOverManyMonitors(Verification::Elsewhere::answers, [](Verification&) {}), 20s);
}

TEST(DisplayManagerWaitLimits, TheOneAfterAPulseIs28Seconds) {
    expectLimit(boundsOverManyMonitors(Verification::Elsewhere::answers,
                                       [](Verification& run) { run.pulseAfter(2s); }),
                28s);
}

TEST(DisplayManagerWaitLimits, TheGraceTimeEndsAfter38Seconds) {
    expectLimit(boundsOverManyMonitors(Verification::Elsewhere::silent,
                                       [](Verification& run) {
                                           run.show(computersInput);
                                           run.after(700ms, [&run] { run.show(otherInput); });
                                       }),
                38s);
}

}  // namespace
}  // namespace vantrel::model
