// A bus that hangs holds nobody up but its own monitor.
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

#include "linux/LinuxScenario.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;

constexpr std::uint8_t brightness = 0x10;

class LinuxHungBusScenario : public LinuxScenario {
  protected:
    // All transfers on Alder's bus take an hour from now on.
    void hang() { devices().delay(bus(2), 1h); }
    void heal() { devices().delay(bus(2), 0s); }
    std::vector<std::uint16_t> allTheWay() const {
        std::vector<std::uint16_t> values(100);
        std::iota(values.begin(), values.end(), std::uint16_t{1});
        return values;
    }
};

TEST_F(LinuxHungBusScenario, SlidersOfOthersGoOn) {
    hang();
    story.drags(2, brightness, {10});
    story.drags(3, brightness, allTheWay());
    story.waits(300ms);
    EXPECT_EQ(story.monitor(2).value(brightness), 50);
    EXPECT_EQ(story.monitor(3).value(brightness), 100);
}

TEST_F(LinuxHungBusScenario, TheHandIsNeverHeldUp) {
    hang();
    const auto start = story.now();
    story.drags(2, brightness, allTheWay());
    EXPECT_EQ(story.now() - start, 1s);
    story.opensThePopover();
    EXPECT_EQ(story.now() - start, 1s);
}

TEST_F(LinuxHungBusScenario, TheKernelHasOneTransferOfItAtMost) {
    hang();
    for (int round = 0; round < 10; ++round) {
        story.drags(2, brightness, allTheWay());
        story.opensThePopover();
        story.waits(10s);
    }
    EXPECT_EQ(devices().counts(bus(2)).overlaps, 0U);
}

TEST_F(LinuxHungBusScenario, ItsMonitorIsDimmedByTheComputerMeanwhile) {
    const auto own = computer.table(2);
    hang();
    story.asksAgainForControls(2);
    story.waits(2min);
    EXPECT_EQ(story.card(2), "on");
    ASSERT_TRUE(story.model(2)->usesSoftwareControls());
    story.model(2)->dimmer().setBrightness(0.5);
    EXPECT_NE(computer.table(2), own);
    heal();
    story.waits(1h);
    story.asksAgainForControls(2);
    story.waits(1min);
    EXPECT_FALSE(story.model(2)->usesSoftwareControls());
    EXPECT_EQ(computer.table(2), own);
}

TEST_F(LinuxHungBusScenario, ItsMonitorHearsAgainWhenItIsOver) {
    hang();
    story.drags(2, brightness, {10});
    story.waits(10s);
    heal();
    story.waits(1h);
    story.drags(2, brightness, {20});
    story.waits(1s);
    EXPECT_EQ(story.monitor(2).value(brightness), 20);
}

TEST_F(LinuxHungBusScenario, AReturnOfItsMonitorIsGivenUpAndTold) {
    story.picks(2, test::otherInput);
    story.waits(10s);
    hang();
    story.turnsOn(2);
    story.waits(1s);
    EXPECT_EQ(story.card(2), "on, returning");
    story.waitsForTheSpinnerToEnd(2);
    EXPECT_EQ(story.errorText(),
              "Alder did not return to the Mac's input. Try again or use the monitor's buttons.");
    EXPECT_EQ(story.card(3), "on");
}

TEST_F(LinuxHungBusScenario, TheProgramEndsAndBeginsAgain) {
    hang();
    story.drags(2, brightness, {10});
    story.quitsAndStartsAgain();
    EXPECT_EQ(story.card(2) + " " + story.card(3), "on on");
    story.drags(3, brightness, {77});
    story.waits(1s);
    EXPECT_EQ(story.monitor(3).value(brightness), 77);
}

}  // namespace
}  // namespace vantrel::linux
