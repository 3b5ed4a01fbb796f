// A monitor that was recorded: what its tape says goes before what it says itself.
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedMonitor.h"
#include "simulated/MonitorBench.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using platform::Transfer;

constexpr std::int32_t oddStatus = 4711;

// An ordinary monitor that was seen to answer brightness 20, once and after a failure.
MonitorPlan recordedMonitor() {
    MonitorPlan plan = ordinaryMonitor();
    plan.recording = {
        {0us, 3ms, Transfer::Direction::write, 0x37, 0x51, bytes(get10), 4, oddStatus},
        {9ms, 2ms, Transfer::Direction::write, 0x37, 0x51, bytes(get10), 4, 0},
        {60ms, 7ms, Transfer::Direction::read, 0x37, 0, bytes(reply10Is20), 11, 0},
        {70ms, 0us, Transfer::Direction::write, 0x37, 0x51, bytes(get12), 4, 0},
        {80ms, 5ms, Transfer::Direction::read, 0x37, 0, {}, 11, oddStatus},
    };
    return plan;
}

TEST(SimulatedMonitorRecording, IsAnsweredWithItsBytesAndStatuses) {
    MonitorBench bench(recordedMonitor());
    EXPECT_EQ(bench.write(get10), oddStatus);
    EXPECT_EQ(bench.write(get10), 0);
    EXPECT_EQ(bench.read(), bytes(reply10Is20));
    EXPECT_EQ(bench.write(get12), 0);
    Bytes untouched(11, 0xCC);
    EXPECT_EQ(bench.monitor.read(0x37, untouched), oddStatus);
    EXPECT_EQ(untouched, Bytes(11, 0xCC));
    EXPECT_EQ(bench.monitor.counters().notAcknowledged, 2U);
}

TEST(SimulatedMonitorRecording, TakesAsLongAsItTook) {
    MonitorBench bench(recordedMonitor());
    const auto start = bench.time.now();
    bench.write(get10);
    EXPECT_EQ(bench.time.now() - start, 3ms);
    bench.write(get10);
    bench.read();
    EXPECT_EQ(bench.time.now() - start, 12ms);
}

TEST(SimulatedMonitorRecording, LeavesTheRestToTheMonitor) {
    MonitorBench bench(recordedMonitor());
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is0F));
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is20));
    bench.write(set10To40);
    bench.wait(50ms);
    EXPECT_EQ(bench.ask(get10), bytes("6E 88 02 00 10 00 00 64 00 28 E8"));
}

TEST(SimulatedMonitorRecording, IsHeardByTheMonitorToo) {
    MonitorPlan plan = ordinaryMonitor();
    plan.recording = {{0us, 0us, Transfer::Direction::write, 0x37, 0x51, bytes(set10To20), 6, 0}};
    MonitorBench bench(plan);
    bench.write(set10To20);
    EXPECT_EQ(bench.monitor.value(0x10), 20);
}

TEST(SimulatedMonitorRecording, DoesNotKnowWhatTheMonitorsOwnMenuChanges) {
    MonitorBench bench(recordedMonitor());
    bench.monitor.adjust(0x10, 50);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

TEST(SimulatedMonitorRecording, DoesNotKnowWhatTheMonitorsInputButtonChanges) {
    MonitorPlan plan = ordinaryMonitor();
    plan.recording = {{0us, 0us, Transfer::Direction::write, 0x37, 0x51, bytes(get60), 4, oddStatus}};
    MonitorBench bench(plan);
    bench.monitor.pressInputButton(0x11);
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is11));
}

TEST(SimulatedMonitorRecording, SaysNothingForAMonitorThatIsOff) {
    MonitorBench bench(recordedMonitor());
    bench.write(get10);
    bench.monitor.setPower(SimulatedMonitor::Power::off);
    EXPECT_EQ(bench.write(get10), static_cast<std::int32_t>(0xE00002EDU));
    EXPECT_EQ(bench.read(), Bytes());
    bench.monitor.setPower(SimulatedMonitor::Power::on);
    EXPECT_EQ(bench.write(get10), 0);
}

TEST(SimulatedMonitorRecording, EndsWhenTheMonitorBecomesHealthy) {
    MonitorBench bench(recordedMonitor());
    bench.monitor.becomeHealthy();
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

TEST(SimulatedMonitorRecording, AnswersForADeadMonitorToo) {
    MonitorPlan plan = recordedMonitor();
    plan.personality.dead = true;
    MonitorBench bench(plan);
    bench.write(get10);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is20));
    EXPECT_EQ(bench.write(get60), static_cast<std::int32_t>(0xE00002EDU));
}

}  // namespace
}  // namespace vantrel::simulated
