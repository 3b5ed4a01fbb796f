#include <chrono>
#include <gtest/gtest.h>
#include <optional>

#include "support/ModelRig.h"

namespace vantrel::test {
namespace {

using namespace std::chrono_literals;

// A program that nobody uses must not keep a laptop's processor awake.
TEST(Idle, LeavesNoTimerBehindOnAnyShippedDesk) {
    for (const auto& desk : simulated::ShippedDesks::list()) {
        ModelRig rig(shippedDesk(desk.name));
        rig.start();
        rig.loop.run();
        EXPECT_EQ(rig.loop.nextDue(), std::nullopt) << desk.name;
        EXPECT_EQ(rig.manager->runningTasks(), 0U) << desk.name;
    }
}

TEST(Idle, KeepsOneModelPerMonitorOverManyHotPlugs) {
    ModelRig rig(shippedDesk("default"));
    rig.start();
    rig.loop.run();
    const auto display = rig.display(2);
    const std::size_t services = rig.simulated.liveServices();
    for (int cycle = 0; cycle < 100; ++cycle) {
        rig.simulated.world().unplug(2);
        rig.runFor(2s);
        rig.simulated.world().plug(2);
        rig.runFor(2s);
    }
    EXPECT_EQ(rig.display(2), display);
    EXPECT_EQ(rig.simulated.liveServices(), services);
}

}  // namespace
}  // namespace vantrel::test
