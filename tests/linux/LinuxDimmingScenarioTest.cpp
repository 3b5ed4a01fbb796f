// Dimming on the computer's side, which Linux doesn't undo by itself.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linux/LinuxScenario.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

class LinuxDimmingScenario : public LinuxScenario {
  protected:
    // No DDC/CI passes to Alder.
    LinuxDimmingScenario() : LinuxScenario(desk()) {}

    static simulated::Desk desk() {
        simulated::DisplayPlan alder = test::monitorPlan(2, "Alder");
        alder.monitor.reset();
        return test::deskOf({test::panelPlan(), alder, test::monitorPlan(3, "Birch")});
    }
    void dim(double brightness) { story.model(2)->dimmer().setBrightness(brightness); }
    float white() { return computer.table(2)->red.back(); }
};

TEST_F(LinuxDimmingScenario, TakesTheControlsOfAMonitorWithoutABus) {
    ASSERT_TRUE(story.model(2)->usesSoftwareControls());
    dim(0.5);
    EXPECT_NEAR(white(), 0.55, 0.001);
}

// Its neighbour resembles it, and is the only one with a way to it.
TEST_F(LinuxDimmingScenario, LeavesTheNeighbourItsOwnBus) {
    EXPECT_EQ(story.monitor(3).value(0x10), 50);
    story.drags(3, 0x10, {77});
    dim(0.5);
    story.waits(1s);
    EXPECT_EQ(story.monitor(3).value(0x10), 77);
    story.picks(2, test::otherInput);
    story.turnsOff(2);
    story.waits(10s);
    EXPECT_EQ(story.shown(3), test::computersInput);
}

TEST_F(LinuxDimmingScenario, EndsWithTheProgram) {
    const auto own = computer.table(2);
    dim(0.5);
    story.quits();
    computer.startAgain();
    EXPECT_EQ(computer.table(2), own);
    EXPECT_THAT(memory().tables(), IsEmpty());
}

TEST_F(LinuxDimmingScenario, ACrashDoesNotMakeItTheMonitorsOwn) {
    const auto own = computer.table(2);
    dim(0.5);
    story.quits();
    // A program that is killed gives nothing back.
    desktop().refusesTables = true;
    computer.startAgain();
    EXPECT_NE(computer.table(2), own);
    desktop().refusesTables = false;
    story.quitsAndStartsAgain();
    EXPECT_NEAR(white(), 0.55, 0.001);
    dim(1);
    EXPECT_EQ(computer.table(2), own);
}

TEST_F(LinuxDimmingScenario, EndsWithAnOutputThatIsTurnedOffAndComesBackWithIt) {
    dim(0.5);
    story.turnsOff(2);
    story.waits(1s);
    ASSERT_EQ(story.card(2), "off");
    story.turnsOn(2);
    story.waits(10s);
    EXPECT_EQ(story.card(2), "on");
    EXPECT_NEAR(white(), 0.55, 0.001);
}

TEST_F(LinuxDimmingScenario, IsPutBackWhenTheDesktopForgetsIt) {
    dim(0.5);
    desktop().setTable(outputName(2), FakeDesktop::straightTable(256));
    computer.output(2).place = "1280x720+0+0";
    desktop().changed();
    story.waits(1s);
    EXPECT_NEAR(white(), 0.55, 0.001);
}

TEST_F(LinuxDimmingScenario, DoesNothingWhereTheDesktopHasNoTables) {
    desktop().refusesTables = true;
    const auto own = computer.table(2);
    dim(0.5);
    story.waits(1s);
    EXPECT_EQ(computer.table(2), own);
    EXPECT_EQ(story.card(2), "on");
}

}  // namespace
}  // namespace vantrel::linux
