// A probe of a desk in virtual time, recorded or not, with all that can be seen of it.
#pragma once

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <utility>
#include <variant>

#include "app/ConsoleLog.h"
#include "app/RecordedDesk.h"
#include "ddc/Probe.h"
#include "platform/recording/RecordingPlatform.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/DeskWriter.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel::app {

struct Probed {
    std::string output;
    // Every line, with its time.
    std::string log;
    runtime::MonotonicTime end;
    bool operator==(const Probed&) const = default;
};

inline Probed probe(simulated::Desk desk) {
    simulated::VirtualTime time;
    runtime::MainLoop loop(time);
    simulated::SimulatedPlatform simulated(std::move(desk), time, loop);
    std::ostringstream lines;
    ConsoleLog log(time, lines, platform::LogLevel::debug);
    std::ostringstream output;
    platform::Platform platform = simulated.platform(log);
    ddc::Probe::run(platform, output);
    time.finishThreads();
    return {output.str(), lines.str(), time.now()};
}

struct Recorded {
    Probed probed;
    simulated::Desk desk;
    std::string file;
};

// Of a computer in virtual time that logs into these lines.
inline Recorded record(const platform::Platform& real, const std::ostringstream& lines) {
    std::ostringstream output;
    recording::RecordingPlatform recorder(real);
    platform::Platform platform = recorder.platform();
    ddc::Probe::run(platform, output);
    Recorded result;
    result.probed = {output.str(), lines.str(), real.scheduler.now()};
    result.desk = RecordedDesk::make(platform, recorder.recording());
    result.file = simulated::DeskWriter::text(result.desk);
    real.scheduler.finishThreads();
    return result;
}

inline Recorded record(simulated::Desk desk) {
    simulated::VirtualTime time;
    runtime::MainLoop loop(time);
    simulated::SimulatedPlatform simulated(std::move(desk), time, loop);
    std::ostringstream lines;
    ConsoleLog log(time, lines, platform::LogLevel::debug);
    Recorded result = record(simulated.platform(log), lines);
    EXPECT_EQ(simulated.liveServices(), 0U);
    return result;
}

// The desk that the file is about, or, after a mistake, an empty one.
inline simulated::Desk readBack(const std::string& file) {
    auto result = simulated::DeskFile::readText(file, "recording");
    if (const auto* mistake = std::get_if<simulated::DeskFileError>(&result)) {
        ADD_FAILURE() << mistake->line();
        return {};
    }
    return std::get<simulated::Desk>(std::move(result));
}

// A recording is what the recorded probe saw, and a recording of it is the same.
inline void expectToReplay(const Recorded& recorded) {
    const simulated::Desk desk = readBack(recorded.file);
    EXPECT_EQ(desk, recorded.desk);
    const Probed replayed = probe(desk);
    EXPECT_EQ(replayed.output, recorded.probed.output);
    EXPECT_EQ(replayed.log, recorded.probed.log);
    EXPECT_EQ(replayed.end, recorded.probed.end);
    EXPECT_EQ(record(desk).file, recorded.file);
}

}  // namespace vantrel::app
