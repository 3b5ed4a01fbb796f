#include <gtest/gtest.h>
#include <vector>

#include "platform/simulated/AVServiceTable.h"
#include "simulated/DeskBench.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;

constexpr auto notResponding = static_cast<std::int32_t>(0xE00002EDU);
constexpr auto noDevice = static_cast<std::int32_t>(0xE00002C0U);

const void* create(DeskBench& bench, std::size_t place) {
    return bench.platform.functions.avCreate()(nullptr, bench.entry(place)->object());
}

TEST(AVServiceTable, GivesAHandleForTheProxyOfAMonitor) {
    DeskBench bench;
    const platform::AVService service = bench.service();
    ASSERT_NE(service.get(), nullptr);
    EXPECT_EQ(bench.write(service, set10To20), 0);
    EXPECT_EQ(bench.simulated.monitor(2).value(0x10), 20);
    EXPECT_EQ(bench.simulated.monitor(3).value(0x10), 50);
}

TEST(AVServiceTable, GivesNoHandleForOtherEntries) {
    DeskBench bench;
    EXPECT_EQ(create(bench, 0), nullptr);
    EXPECT_EQ(create(bench, 3), nullptr);
    EXPECT_EQ(bench.platform.functions.avCreate()(nullptr, 0), nullptr);
    EXPECT_EQ(bench.platform.functions.avCreate()(nullptr, 9999), nullptr);
}

TEST(AVServiceTable, GivesNoHandleWithoutAMonitor) {
    DeskBench bench;
    EXPECT_EQ(create(bench, 2), nullptr);
}

TEST(AVServiceTable, GivesNoHandleForADisplayThatWasUnplugged) {
    DeskBench bench;
    const auto entry = bench.entry(4);
    bench.world().unplug(2);
    EXPECT_EQ(bench.platform.functions.avCreate()(nullptr, entry->object()), nullptr);
}

TEST(AVServiceTable, CountsTheHandlesThatWereNotGivenBack) {
    DeskBench bench;
    {
        const platform::AVService first = bench.service();
        const platform::AVService second = bench.service();
        const std::vector<platform::AVService> copies(3, first);
        EXPECT_EQ(bench.simulated.liveServices(), 2);
    }
    EXPECT_EQ(bench.simulated.liveServices(), 0);
}

TEST(AVServiceTable, FailsATransferToAnUnpluggedDisplay) {
    DeskBench bench;
    const platform::AVService service = bench.service();
    bench.world().unplug(2);
    EXPECT_EQ(bench.write(service, get10), noDevice);
    bench.world().plug(2);
    EXPECT_EQ(bench.write(service, get10), 0);
}

TEST(AVServiceTable, FailsATransferOfASleepingComputer) {
    DeskBench bench;
    const platform::AVService service = bench.service();
    bench.world().sleep();
    EXPECT_EQ(bench.write(service, get10), notResponding);
}

TEST(AVServiceTable, LosesAHandleAtAReconfigurationIfThatIsTheMonitorsManner) {
    Desk desk = ordinaryDesk();
    desk.displays[1].monitor->personality.staleAfterReconfiguration = true;
    DeskBench bench(desk);
    const platform::AVService old = bench.service();
    EXPECT_EQ(bench.write(old, get10), 0);
    bench.world().reconfigure(3, 2);
    EXPECT_EQ(bench.write(old, get10), noDevice);
    Bytes read(11);
    EXPECT_EQ(bench.platform.functions.avRead()(old.get(), 0x37, 0, read.data(), 11), noDevice);
    EXPECT_EQ(bench.write(bench.service(), get10), 0);
}

TEST(AVServiceTable, KeepsAHandleOverAReconfigurationOtherwise) {
    DeskBench bench;
    const platform::AVService service = bench.service();
    bench.world().reconfigure(3, 2);
    EXPECT_EQ(bench.write(service, get10), 0);
}

TEST(AVServiceTable, ReadsThroughAHandle) {
    DeskBench bench;
    const platform::AVService service = bench.service();
    bench.write(service, get10);
    bench.time.sleepFor(50ms);
    Bytes read(11);
    EXPECT_EQ(bench.platform.functions.avRead()(service.get(), 0x37, 0, read.data(), 11), 0);
    EXPECT_EQ(read, bytes(reply10Is50));
}

TEST(AVServiceTableDeathTest, StopsForAHandleThatNobodyHolds) {
    DeskBench bench;
    const int other = 0;
    EXPECT_DEATH(bench.platform.registry.releaseService(&other), "nobody holds");
    EXPECT_DEATH(bench.platform.functions.avWrite()(&other, 0x37, 0x51, nullptr, 0), "nobody holds");
}

}  // namespace
}  // namespace vantrel::simulated
