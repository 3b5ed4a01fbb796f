// The same work on the same desk gives the same events at the same times, every
// run. With VANTREL_TRACES set to a folder, the events are also written there, one
// file a desk, so that two runs of the whole suite can be compared.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <vector>

#include "ddc/AVServiceLocator.h"
#include "ddc/DDCWorker.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/ShippedDesks.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/MainLoop.h"
#include "runtime/Task.h"
#include "runtime/TaskScope.h"
#include "text/Hex.h"

namespace vantrel::ddc {
namespace {

using namespace std::chrono_literals;

class EventTrace : public platform::LogSink {
  public:
    explicit EventTrace(const runtime::Clock& clock) : clock_(clock) {}

    void write(std::string_view, std::string_view category, platform::LogLevel level,
               std::string_view text) override {
        const std::lock_guard lock(mutex_);
        events_ << clock_.now().time_since_epoch().count() << " " << category << static_cast<int>(level)
                << " " << text << "\n";
    }

    void add(platform::DisplayID display, const simulated::WireRecord& record) {
        const bool isWrite = record.direction == simulated::WireRecord::Direction::write;
        events_ << record.time.time_since_epoch().count() << (isWrite ? " > " : " < ") << display << " "
                << text::hexBytes(record.bytes) << " " << record.status << "\n";
    }

    std::string text() const { return events_.str(); }

  private:
    const runtime::Clock& clock_;
    std::mutex mutex_;
    std::ostringstream events_;
};

runtime::Task<> readEverything(DDCWorker& worker) {
    auto fetching = worker.run([](DDCChannel& channel) { return channel.capabilities(); });
    co_await fetching;
    for (int code = 0; code < 0x100; code += 0x11) {
        const auto vcp = static_cast<std::uint8_t>(code);
        auto reading = worker.run([vcp](DDCChannel& channel) { return channel.read(vcp, 2); });
        co_await reading;
        worker.write(0x10, static_cast<std::uint16_t>(code % 100));
    }
}

// All monitors of the desk at once, each on its own queue, while the computer
// sleeps, wakes and is reconfigured.
std::string eventsOf(const simulated::Desk& desk) {
    simulated::VirtualTime time;
    runtime::MainLoop loop(time);
    simulated::SimulatedPlatform simulated(desk, time, loop);
    EventTrace trace(time);
    platform::Platform platform = simulated.platform(trace);
    for (const simulated::DisplayPlan& display : desk.displays) {
        if (display.monitor) simulated.monitor(display.id).recordTrace();
    }
    {
        std::vector<std::unique_ptr<DDCWorker>> workers;
        runtime::TaskScope tasks(loop);
        for (auto& entry : AVServiceLocator::externalServices(platform.registry, platform.functions)) {
            const std::string label = std::to_string(workers.size());
            DDCChannel channel(Transport(platform), std::move(entry), "monitor " + label);
            workers.push_back(std::make_unique<DDCWorker>(time, loop, std::move(channel), label));
            tasks.start(readEverything(*workers.back()));
        }
        loop.after(1s, [&simulated] { simulated.world().sleep(); });
        loop.after(3s, [&simulated] { simulated.world().wake(); });
        loop.run();
        EXPECT_EQ(tasks.running(), 0U);
    }
    time.finishThreads();
    for (const simulated::DisplayPlan& display : desk.displays) {
        if (!display.monitor) continue;
        for (const auto& record : simulated.monitor(display.id).trace()) trace.add(display.id, record);
    }
    return trace.text();
}

TEST(EventTrace, IsTheSameInEveryRun) {
    const char* folder = std::getenv("VANTREL_TRACES");
    for (const auto& shipped : simulated::ShippedDesks::list()) {
        const auto desk = simulated::ShippedDesks::read(shipped.name);
        ASSERT_TRUE(std::holds_alternative<simulated::Desk>(desk)) << shipped.name;
        const std::string events = eventsOf(std::get<simulated::Desk>(desk));
        EXPECT_GT(events.size(), 1000U) << shipped.name;
        EXPECT_TRUE(events == eventsOf(std::get<simulated::Desk>(desk))) << shipped.name;
        if (folder == nullptr) continue;
        std::filesystem::create_directories(folder);
        std::ofstream(std::filesystem::path(folder) / (std::string(shipped.name) + ".trace")) << events;
    }
}

}  // namespace
}  // namespace vantrel::ddc
