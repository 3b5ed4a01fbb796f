// What is recorded on a Mac is what is recorded on a simulated computer.
#include <gtest/gtest.h>

#include "app/RecordBench.h"
#include "macos/MacBench.h"
#include "platform/simulated/ShippedDesks.h"

namespace vantrel::macos {
namespace {

TEST(MacPlatformRecording, WritesTheDeskFileThatTheSimulatedPlatformDoes) {
    for (const auto& entry : simulated::ShippedDesks::list()) {
        const auto desk = std::get<simulated::Desk>(simulated::ShippedDesks::read(std::string(entry.name)));
        const std::string expected = app::record(desk).file;
        MacBench bench(desk);
        std::ostringstream lines;
        app::ConsoleLog log(bench.time, lines, platform::LogLevel::debug);
        const app::Recorded recorded = app::record(bench.mac.platform(log), lines);
        EXPECT_EQ(bench.computer.liveServices(), 0U);
        EXPECT_EQ(recorded.file, expected) << entry.name;
    }
}

}  // namespace
}  // namespace vantrel::macos
