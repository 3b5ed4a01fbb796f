#include <gtest/gtest.h>

#include "platform/simulated/World.h"
#include "simulated/DeskBench.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using platform::DisplayToggler::Output;
using IDs = std::vector<platform::DisplayID>;
using Calls = DeskBench::Calls;

Desk deskWith(Personality personality) {
    Desk desk = ordinaryDesk();
    desk.displays[1].monitor->personality = std::move(personality);
    return desk;
}

Desk pulsingDesk() {
    Personality personality;
    personality.inputSwitch.pulse = 2s;
    personality.inputSwitch.pulseAfter = 1s;
    return deskWith(personality);
}

TEST(World, ListsConnectedDisplaysInTheOrderOfTheDesk) {
    Desk desk = ordinaryDesk();
    desk.displays[1].isConnected = false;
    std::swap(desk.displays[0], desk.displays[2]);
    EXPECT_EQ(DeskBench(desk).online(), (IDs{3, 1}));
}

TEST(World, StartsWithTheOutputsOffThatTheDeskSays) {
    Desk desk = ordinaryDesk();
    desk.displays[1].isOn = false;
    DeskBench bench(desk);
    EXPECT_EQ(bench.online(), (IDs{1, 3}));
    EXPECT_EQ(bench.write(bench.service(), get10), 0);
    bench.world().setOutput(2, Output::on);
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
}

TEST(World, TellsOfAnUnpluggedDisplayWithABeginPhaseAndARemove) {
    DeskBench bench;
    bench.world().unplug(2);
    EXPECT_EQ(bench.online(), (IDs{1, 3}));
    EXPECT_EQ(bench.calls, Calls{});
    bench.loop.run();
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, removed}}));
}

TEST(World, TellsOfAPluggedDisplayWithABeginPhaseAndAnAdd) {
    Desk desk = ordinaryDesk();
    desk.displays[1].isConnected = false;
    DeskBench bench(desk);
    bench.world().plug(2);
    bench.loop.run();
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, added}}));
}

TEST(World, TellsNothingWhenNothingChanges) {
    DeskBench bench;
    bench.world().plug(2);
    bench.world().openLid();
    bench.world().setOutput(2, Output::on);
    bench.loop.run();
    EXPECT_EQ(bench.calls, Calls{});
    EXPECT_EQ(bench.world().reconfigurations(), 0);
}

TEST(World, TellsEveryCallback) {
    DeskBench bench;
    Calls others;
    bench.platform.displays.onReconfiguration(
        [&others](platform::DisplayID display, std::uint32_t flags) { others.emplace_back(display, flags); });
    bench.world().unplug(2);
    bench.loop.run();
    EXPECT_EQ(others, (Calls{{2, begins}, {2, removed}}));
    EXPECT_EQ(others, bench.calls);
}

TEST(World, TakesADisplayWithItsOutputOffFromTheListOnly) {
    DeskBench bench;
    bench.world().setOutput(2, Output::off);
    bench.loop.run();
    EXPECT_EQ(bench.online(), (IDs{1, 3}));
    EXPECT_TRUE(bench.world().isConnected(2));
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, removed}}));
    EXPECT_EQ(bench.write(bench.service(), get10), 0);
}

TEST(World, TurnsTheOutputOnOfADisplayThatIsPluggedBackIn) {
    DeskBench bench;
    bench.world().setOutput(2, Output::off);
    bench.world().unplug(2);
    bench.world().plug(2);
    bench.loop.run();
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, removed}, {2, begins}, {2, added}}));
}

TEST(World, TakesTheBuiltInPanelOffWithTheLid) {
    DeskBench bench;
    bench.world().closeLid();
    EXPECT_EQ(bench.online(), (IDs{2, 3}));
    bench.world().openLid();
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
    bench.loop.run();
    EXPECT_EQ(bench.calls, (Calls{{1, begins}, {1, removed}, {1, begins}, {1, added}}));
}

TEST(World, PassesTheFlagsOfAReconfigurationOn) {
    DeskBench bench;
    bench.world().reconfigure(2, 0x1002);
    bench.loop.run();
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, 0x1002}}));
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
}

TEST(World, ResetsEveryTransferTableAtAReconfiguration) {
    DeskBench bench;
    const platform::TransferTable dark{{0, 0.1F}, {0, 0.1F}, {0, 0.1F}};
    bench.platform.displays.setTransferTable(2, dark);
    bench.platform.displays.setTransferTable(3, dark);
    bench.world().unplug(3);
    EXPECT_EQ(bench.platform.displays.transferTable(2, 256), TransferTables::linear(256));
}

// Pulses.

TEST(World, TakesAPulsingMonitorOffTheListForExactlyThePulse) {
    DeskBench bench(pulsingDesk());
    bench.simulated.monitor(2).pressInputButton(0x11);
    bench.time.sleepFor(999ms);
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
    bench.time.sleepFor(1ms);
    EXPECT_EQ(bench.online(), (IDs{1, 3}));
    EXPECT_FALSE(bench.world().isConnected(2));
    EXPECT_TRUE(bench.world().isPluggedIn(2));
    bench.time.sleepFor(2s);
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
}

TEST(World, TellsOfAPulseThatAnotherThreadCausesAtItsTwoEdges) {
    DeskBench bench(pulsingDesk());
    const platform::AVService service = bench.service();
    const runtime::MonotonicTime start = bench.time.now();
    std::vector<runtime::MonotonicTime> times;
    bench.platform.displays.onReconfiguration(
        [&](platform::DisplayID, std::uint32_t) { times.push_back(bench.time.now()); });
    bench.time.startThread("worker", runtime::QualityOfService::userInitiated,
                           [&] { bench.write(service, set60To11); });
    bench.loop.run();
    bench.time.finishThreads();
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, removed}, {2, begins}, {2, added}}));
    EXPECT_EQ(times, (std::vector{start + 1s, start + 1s, start + 3s, start + 3s}));
}

TEST(World, TellsNothingOfAPulseOfAMonitorWhoseOutputIsOff) {
    DeskBench bench(pulsingDesk());
    bench.world().setOutput(2, Output::off);
    bench.loop.run();
    bench.calls.clear();
    bench.simulated.monitor(2).pressInputButton(0x11);
    bench.loop.run();
    EXPECT_EQ(bench.calls, Calls{});
}

TEST(World, TellsOnceOfADisplayThatIsUnpluggedInTheMiddleOfItsPulse) {
    DeskBench bench(pulsingDesk());
    bench.simulated.monitor(2).pressInputButton(0x11);
    bench.loop.runFor(2s);
    bench.world().unplug(2);
    bench.loop.run();
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, removed}}));
}

TEST(World, TellsOfADisplayWhoseOutputIsTurnedOnDuringItsPulseWhenThatEnds) {
    DeskBench bench(pulsingDesk());
    bench.world().setOutput(2, Output::off);
    bench.simulated.monitor(2).pressInputButton(0x11);
    bench.loop.runFor(2s);
    bench.calls.clear();
    bench.world().setOutput(2, Output::on);
    bench.loop.run();
    EXPECT_EQ(bench.calls, (Calls{{2, begins}, {2, added}}));
    EXPECT_EQ(bench.online(), (IDs{1, 2, 3}));
}

TEST(World, DropsItsWorkInTheLoopWhenItGoes) {
    VirtualTime time;
    runtime::MainLoop loop(time);
    int calls = 0;
    {
        SimulatedPlatform simulated(pulsingDesk(), time, loop);
        simulated.world().announcements().onReconfiguration(
            [&calls](platform::DisplayID, std::uint32_t) { ++calls; });
        simulated.world().announcements().onWake([&calls] { ++calls; });
        simulated.monitor(2).pressInputButton(0x11);
        loop.runDue();
        simulated.world().unplug(3);
        simulated.world().sleep();
        simulated.world().wake();
    }
    loop.run();
    EXPECT_EQ(calls, 0);
}

// Sleep.

TEST(World, TellsTheProgramOfAWake) {
    DeskBench bench;
    int wakes = 0;
    bench.platform.workspace.onWake([&wakes] { ++wakes; });
    bench.world().sleep();
    bench.world().wake();
    EXPECT_EQ(wakes, 0);
    bench.loop.run();
    EXPECT_EQ(wakes, 1);
}

TEST(World, TellsNothingOfAWakeOfAComputerThatIsAwake) {
    DeskBench bench;
    int wakes = 0;
    bench.platform.workspace.onWake([&wakes] { ++wakes; });
    bench.world().wake();
    bench.loop.run();
    EXPECT_EQ(wakes, 0);
}

TEST(World, WakesItsMonitors) {
    Personality personality;
    personality.deafAfterWake = 3s;
    DeskBench bench(deskWith(personality));
    const platform::AVService service = bench.service();
    bench.world().sleep();
    bench.world().wake();
    EXPECT_EQ(bench.write(service, set10To20), 0);
    EXPECT_EQ(bench.simulated.monitor(2).value(0x10), 50);
    bench.time.sleepFor(3s);
    EXPECT_EQ(bench.write(service, set10To20), 0);
    EXPECT_EQ(bench.simulated.monitor(2).value(0x10), 20);
}

// Panels.

TEST(World, KeepsTheLevelOfAPanelBetweenItsEnds) {
    DeskBench bench;
    EXPECT_EQ(bench.world().brightness(1), 0.5F);
    EXPECT_TRUE(bench.world().setBrightness(1, 1.5F));
    EXPECT_EQ(bench.world().brightness(1), 1.0F);
    EXPECT_TRUE(bench.world().setBrightness(1, -1.0F));
    EXPECT_EQ(bench.world().brightness(1), 0.0F);
}

TEST(World, TakesNoLevelThatIsNoNumber) {
    DeskBench bench;
    EXPECT_FALSE(bench.world().setBrightness(1, std::numeric_limits<float>::quiet_NaN()));
    EXPECT_EQ(bench.world().brightness(1), 0.5F);
}

TEST(World, HasNoLevelOfAMonitorOrOfAPanelUnderAClosedLid) {
    DeskBench bench;
    EXPECT_EQ(bench.world().brightness(2), std::nullopt);
    bench.world().closeLid();
    EXPECT_EQ(bench.world().brightness(1), std::nullopt);
    EXPECT_FALSE(bench.world().setBrightness(1, 0.7F));
}

TEST(WorldDeathTest, StopsForADisplayThatTheDeskDoesNotHave) {
    DeskBench bench;
    EXPECT_DEATH(bench.world().unplug(99), "display that the desk does not have");
}

}  // namespace
}  // namespace vantrel::simulated
