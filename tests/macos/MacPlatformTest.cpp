#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <variant>

#include "ddc/Probe.h"
#include "macos/MacBench.h"
#include "platform/simulated/ShippedDesks.h"
#include "support/RecordingLogSink.h"
#include "support/SeamBenches.h"
#include "support/SeamContract.h"

namespace vantrel {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(MacPlatform, SeamContract, SeamBenches<macos::MacBench>);

}  // namespace

namespace macos {
namespace {

simulated::Desk shippedDesk(const std::string& name) {
    return std::get<simulated::Desk>(simulated::ShippedDesks::read(name));
}

struct Probed {
    std::string output;
    std::vector<test::LogLine> log;
    runtime::MonotonicTime end;
    bool operator==(const Probed&) const = default;
};

Probed probeSimulated(simulated::Desk desk) {
    simulated::VirtualTime time;
    runtime::MainLoop loop(time);
    simulated::SimulatedPlatform simulated(std::move(desk), time, loop);
    test::RecordingLogSink log;
    platform::Platform platform = simulated.platform(log);
    std::ostringstream output;
    ddc::Probe::run(platform, output);
    time.finishThreads();
    return {output.str(), log.lines(), time.now()};
}

Probed probeMac(simulated::Desk desk) {
    MacBench bench(std::move(desk));
    test::RecordingLogSink log;
    platform::Platform platform = bench.mac.platform(log);
    std::ostringstream output;
    ddc::Probe::run(platform, output);
    bench.scheduler.finishThreads();
    EXPECT_EQ(bench.computer.liveServices(), 0);
    return {output.str(), log.lines(), bench.time.now()};
}

TEST(MacPlatform, HasTheSettingsThatItIsGiven) {
    MacBench bench;
    test::RecordingLogSink log;
    platform::Defaults& others = bench.fake.desk().defaults;
    others.set("number", std::int64_t(17));
    EXPECT_EQ(bench.mac.platform(log, others).defaults.value("number"),
              platform::DefaultsValue(std::int64_t(17)));
    EXPECT_EQ(bench.mac.platform(log).defaults.value("number"), std::nullopt);
}

class MacPlatformProbe : public testing::TestWithParam<std::string> {};

TEST_P(MacPlatformProbe, PrintsLogsAndTakesWhatItDoesOnTheSimulatedPlatform) {
    const Probed simulated = probeSimulated(shippedDesk(GetParam()));
    const Probed mac = probeMac(shippedDesk(GetParam()));
    EXPECT_NE(simulated.output.find("VCP 0x10"), std::string::npos);
    EXPECT_EQ(mac.output, simulated.output);
    EXPECT_EQ(mac.log, simulated.log);
    EXPECT_EQ(mac.end, simulated.end);
}

INSTANTIATE_TEST_SUITE_P(Desks, MacPlatformProbe,
                         testing::Values("default", "hostile", "inputs", "large", "slow", "stubborn", "twins",
                                         "wake"),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace macos
}  // namespace vantrel
