#include <chrono>
#include <gtest/gtest.h>
#include <optional>

#include "scenarios/Stories.h"
#include "support/ShippedDesk.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;
using test::DeskStory;
using test::shippedDesk;

// A program that nobody uses must not keep a laptop's processor awake.
TEST_P(Idle, LeavesNoTimerBehindOnAnyShippedDesk) {
    for (const auto& desk : simulated::ShippedDesks::list()) {
        DeskStory story = at(shippedDesk(desk.name));
        story.loop().run();
        EXPECT_EQ(story.loop().nextDue(), std::nullopt) << desk.name;
        EXPECT_EQ(story.manager().runningTasks(), 0U) << desk.name;
    }
}

TEST_P(Idle, KeepsOneModelPerMonitorOverManyHotPlugs) {
    DeskStory story = at(shippedDesk("default"));
    story.loop().run();
    const auto display = story.model(2);
    const std::size_t services = story.computer().liveServices();
    for (int cycle = 0; cycle < 100; ++cycle) {
        story.computer().unplug(2);
        story.waits(2s);
        story.computer().plug(2);
        story.waits(2s);
    }
    EXPECT_EQ(story.model(2), display);
    EXPECT_EQ(story.computer().liveServices(), services);
}

}  // namespace
}  // namespace vantrel
