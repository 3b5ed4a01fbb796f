// People dim a monitor that no DDC/CI passes to.
#include <gtest/gtest.h>
#include <string>

#include "scenarios/Stories.h"
#include "support/ShippedDesk.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;
using model::ControlMode;
using test::DeskStory;
using test::shippedDesk;

// The dead one of the desk "default".
constexpr platform::DisplayID dead = 5;

// How much of its own table a display shows at full white.
float white(DeskStory& story) { return story.computer().table(dead)->red.back(); }

TEST_P(DimmingStory, TheComputerDimsAMonitorThatNeverAnswers) {
    DeskStory story = at(shippedDesk("default"));
    ASSERT_TRUE(story.model(dead)->usesSoftwareControls());
    const auto own = story.computer().table(dead);
    story.model(dead)->dimmer().setBrightness(0.5);
    EXPECT_NEAR(white(story), 0.55, 0.001);
    story.model(dead)->dimmer().setBrightness(0);
    EXPECT_NEAR(white(story), 0.1, 0.001);
    story.model(dead)->dimmer().setBrightness(1);
    EXPECT_EQ(story.computer().table(dead), own);
}

TEST_P(DimmingStory, TheOthersStayAsTheyAre) {
    DeskStory story = at(shippedDesk("default"));
    const auto own = story.computer().table(2);
    story.model(dead)->dimmer().setBrightness(0.3);
    story.waits(10s);
    EXPECT_EQ(story.computer().table(2), own);
}

TEST_P(DimmingStory, ItEndsWithTheUsersWish) {
    DeskStory story = at(shippedDesk("default"));
    const auto own = story.computer().table(dead);
    story.model(dead)->dimmer().setBrightness(0.3);
    story.model(dead)->dimmer().setContrast(0.8);
    EXPECT_NE(story.computer().table(dead), own);
    story.model(dead)->setControlMode(ControlMode::ddc);
    EXPECT_EQ(story.computer().table(dead), own);
    story.model(dead)->setControlMode(ControlMode::automatic);
    EXPECT_NE(story.computer().table(dead), own);
}

TEST_P(DimmingStory, ItEndsWhenTheMonitorAnswersAfterAll) {
    DeskStory story = at(test::usualDesk());
    const auto own = story.computer().table(2);
    story.monitor(2).setPower(simulated::SimulatedMonitor::Power::off);
    story.asksAgainForControls(2);
    story.waits(1min);
    ASSERT_TRUE(story.model(2)->usesSoftwareControls());
    story.model(2)->dimmer().setBrightness(0.5);
    EXPECT_NE(story.computer().table(2), own);
    story.monitor(2).setPower(simulated::SimulatedMonitor::Power::on);
    story.asksAgainForControls(2);
    story.waits(1min);
    EXPECT_FALSE(story.model(2)->usesSoftwareControls());
    EXPECT_EQ(story.computer().table(2), own);
}

TEST_P(DimmingStory, ItIsThereAgainAfterTheCableWasOut) {
    DeskStory story = at(shippedDesk("default"));
    story.model(dead)->dimmer().setBrightness(0.5);
    story.computer().unplug(dead);
    story.waits(10s);
    story.computer().plug(dead);
    story.waits(10s);
    EXPECT_NEAR(white(story), 0.55, 0.001);
}

TEST_P(DimmingStory, ItIsThereAgainAfterARestartAndNotTwice) {
    DeskStory story = at(shippedDesk("default"));
    story.model(dead)->dimmer().setBrightness(0.5);
    for (int run = 0; run < 3; ++run) {
        story.quitsAndStartsAgain();
        EXPECT_NEAR(white(story), 0.55, 0.001);
    }
    story.model(dead)->dimmer().setBrightness(1);
    EXPECT_NEAR(white(story), 1, 0.001);
}

}  // namespace
}  // namespace vantrel
