#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macos/MacBench.h"
#include "model/DisplayManager.h"
#include "simulated/DeskBench.h"

namespace vantrel::macos {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using Calls = simulated::DeskBench::Calls;

class MacPlatformManager : public testing::Test {
  protected:
    void waits(runtime::MonotonicClock::duration duration) { bench.loop.runFor(duration); }
    std::vector<platform::DisplayID> externals() const {
        std::vector<platform::DisplayID> ids;
        for (const auto& external : manager.externals()) ids.push_back(external->id());
        return ids;
    }

    MacBench bench;
    model::DisplayManager manager{bench.platform};
};

TEST_F(MacPlatformManager, LoadsTheMonitorsOfTheDesk) {
    manager.loadAll();
    waits(10s);
    EXPECT_THAT(externals(), ElementsAre(2, 3));
    ASSERT_TRUE(manager.builtIn());
    for (const auto& external : manager.externals()) {
        EXPECT_EQ(external->loadState(), model::ExternalDisplay::LoadState::ready);
        EXPECT_TRUE(external->feature(0x10));
    }
}

TEST_F(MacPlatformManager, FollowsAMonitorThatIsUnpluggedAndPluggedIn) {
    Calls heard;
    bench.platform.displays.onReconfiguration(
        [&](platform::DisplayID display, std::uint32_t flags) { heard.emplace_back(display, flags); });
    bench.computer.world().unplug(3);
    waits(5s);
    EXPECT_THAT(externals(), ElementsAre(2));
    bench.computer.world().plug(3);
    waits(5s);
    EXPECT_THAT(externals(), ElementsAre(2, 3));
    EXPECT_EQ(
        heard,
        (Calls{
            {3, simulated::begins}, {3, simulated::removed}, {3, simulated::begins}, {3, simulated::added}}));
}

TEST_F(MacPlatformManager, LooksAgainWhenTheComputerHasWoken) {
    waits(5s);
    bench.fake.calls().forget();
    bench.computer.world().sleep();
    bench.computer.world().wake();
    waits(5s);
    EXPECT_THAT(bench.fake.calls().made(), Contains("CGGetOnlineDisplayList"));
}

TEST_F(MacPlatformManager, TurnsAnOutputOffAndOnAgain) {
    manager.start(manager.disableOutput(manager.known(2), std::nullopt));
    waits(10s);
    EXPECT_FALSE(bench.computer.world().isOnline(2));
    ASSERT_EQ(manager.disabled().size(), 1);
    manager.enableOutput(manager.disabled().front());
    waits(20s);
    EXPECT_TRUE(bench.computer.world().isOnline(2));
    EXPECT_THAT(manager.disabled(), IsEmpty());
    EXPECT_EQ(bench.computer.openConfigurations(), 0);
}

TEST_F(MacPlatformManager, DimsAPictureAndGivesItBack) {
    waits(10s);
    const auto before = bench.platform.displays.transferTable(2, 256);
    const auto display = manager.known(2);
    display->setControlMode(model::ControlMode::software);
    display->dimmer().setBrightness(0.5);
    const auto dimmed = bench.fake.desk().displays.transferTable(2, 256);
    ASSERT_TRUE(before && dimmed);
    EXPECT_LT(dimmed->red.back(), before->red.back());
    display->dimmer().setBrightness(1);
    EXPECT_EQ(bench.fake.desk().displays.transferTable(2, 256), before);
}

TEST_F(MacPlatformManager, KnowsTheLoginItem) {
    auto& item = bench.platform.loginItem;
    EXPECT_EQ(item.enable(), std::nullopt);
    EXPECT_TRUE(item.isEnabled());
    bench.computer.refuseLoginItem("No.");
    EXPECT_EQ(item.disable(), "No.");
}

}  // namespace
}  // namespace vantrel::macos
