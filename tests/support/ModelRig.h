// A whole computer with a simulated desk in virtual time, and the models on top:
// what most tests of models begin with.
#pragma once

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/DisplayManager.h"
#include "platform/MemoryDefaults.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/ShippedDesks.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/Fatal.h"
#include "runtime/MainLoop.h"
#include "support/RecordingLogSink.h"

namespace vantrel::test {

// A desk file's text; a mistake in it stops the test.
inline simulated::Desk deskFrom(std::string_view text) {
    auto desk = simulated::DeskFile::readText(text, "test desk");
    if (const auto* error = std::get_if<simulated::DeskFileError>(&desk)) runtime::fatal(error->line());
    return std::get<simulated::Desk>(std::move(desk));
}

inline simulated::Desk shippedDesk(std::string_view name) {
    return deskFrom(simulated::ShippedDesks::text(name).value());
}

class ModelRig {
  public:
    explicit ModelRig(simulated::Desk desk)
        : simulated(std::move(desk), time, loop), platform(simulated.platform(log, defaults)) {}
    ~ModelRig() {
        manager.reset();
        time.finishThreads();
    }

    // Makes the manager, as the program does when it starts.
    model::DisplayManager& start() {
        manager = std::make_unique<model::DisplayManager>(platform);
        return *manager;
    }
    void runFor(runtime::MonotonicClock::duration duration) { loop.runFor(duration); }

    // Runs an operation of the manager until it has ended; nothing else has to.
    void perform(runtime::Task<> operation) {
        const runtime::TaskHandle handle = manager->start(std::move(operation));
        while (handle.isRunning()) loop.runFor(std::chrono::milliseconds(50));
    }

    std::shared_ptr<model::ExternalDisplay> display(platform::DisplayID id) const {
        return manager->known(id);
    }

    std::size_t count(std::string_view text) const {
        return static_cast<std::size_t>(std::ranges::count_if(
            log.lines(), [text](const LogLine& line) { return line.text.find(text) != std::string::npos; }));
    }
    bool logged(std::string_view text) const { return count(text) > 0; }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    RecordingLogSink log;
    platform::MemoryDefaults defaults;
    simulated::SimulatedPlatform simulated;
    platform::Platform platform;
    std::unique_ptr<model::DisplayManager> manager;
};

}  // namespace vantrel::test
