#include <algorithm>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedPlatform.h"
#include "simulated/DeskBench.h"
#include "support/SeamBenches.h"
#include "support/SeamContract.h"

namespace vantrel {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(SimulatedPlatform, SeamContract, SeamBenches<simulated::DeskBench>);

}  // namespace

namespace simulated {
namespace {

using namespace std::chrono_literals;

TEST(SimulatedPlatform, CanBeMadeAgainOnceTheOldOneIsGone) {
    { const DeskBench first; }
    DeskBench second;
    EXPECT_EQ(second.write(second.service(), get10), 0);
}

TEST(SimulatedPlatform, LetsTwoMonitorsTransferAtTheSameTime) {
    Desk desk = ordinaryDesk();
    for (const std::size_t index : {1U, 2U}) desk.displays[index].monitor->personality.byteTime = 1ms;
    DeskBench bench(desk);
    const runtime::MonotonicTime start = bench.time.now();
    for (const platform::DisplayID id : {2U, 3U}) {
        bench.time.startThread("host", runtime::QualityOfService::userInitiated, [&bench, id] {
            bench.simulated.monitor(id).write(0x37, 0x51, bytes(set10To20));
        });
    }
    bench.time.finishThreads();
    for (const platform::DisplayID id : {2U, 3U}) {
        EXPECT_EQ(bench.simulated.monitor(id).value(0x10), 20);
        EXPECT_EQ(bench.simulated.monitor(id).counters().overlaps, 0);
    }
    EXPECT_EQ(bench.time.now() - start, 6ms);
}

// Whether each of 64 transfers of a monitor was acknowledged.
std::vector<bool> acknowledged(SimulatedMonitor& monitor) {
    std::vector<bool> results(64);
    std::generate(results.begin(), results.end(),
                  [&monitor] { return monitor.write(0x37, 0x51, bytes(get10)) == 0; });
    return results;
}

Desk unreliableDesk() {
    Desk desk = ordinaryDesk();
    for (const std::size_t index : {1U, 2U}) desk.displays[index].monitor->personality.nak.probability = 0.5;
    return desk;
}

TEST(SimulatedPlatform, RepeatsItselfWithTheSameSeedWhateverOtherMonitorsDo) {
    std::vector<bool> first;
    {
        DeskBench bench(unreliableDesk());
        first = acknowledged(bench.simulated.monitor(2));
    }
    DeskBench bench(unreliableDesk());
    EXPECT_NE(acknowledged(bench.simulated.monitor(3)), first);
    EXPECT_EQ(acknowledged(bench.simulated.monitor(2)), first);
}

TEST(SimulatedPlatform, DiffersWithAnotherSeed) {
    std::vector<bool> first;
    {
        DeskBench bench(unreliableDesk());
        first = acknowledged(bench.simulated.monitor(2));
    }
    Desk desk = unreliableDesk();
    desk.seed = 2;
    DeskBench bench(desk);
    EXPECT_NE(acknowledged(bench.simulated.monitor(2)), first);
}

TEST(SimulatedPlatformDeathTest, StopsForAMonitorThatADisplayDoesNotHave) {
    DeskBench bench;
    EXPECT_DEATH(bench.simulated.monitor(1), "without a monitor");
}

}  // namespace
}  // namespace simulated
}  // namespace vantrel
