// What the models add to the pauses that the protocol demands, in real time on
// simulated monitors. Judge the ratios and the longest pass, not the times.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "model/DisplayManager.h"
#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "runtime/RealScheduler.h"
#include "text/Hex.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto requestPauses = 60ms;
constexpr auto fragmentPause = 50ms;
constexpr std::size_t fragmentSize = 32;
constexpr int featureCount = 40;

class Silence : public platform::LogSink {
  public:
    void write(std::string_view, std::string_view, platform::LogLevel, std::string_view) override {}
};

// Codes of the manufacturer's range and below: none of them hidden, none an action.
std::vector<std::uint8_t> manyCodes() {
    std::vector<std::uint8_t> codes{0x10, 0x12, 0x62};
    for (unsigned code = 0xE0; code <= 0xFE; ++code) {
        if (code != 0xF3) codes.push_back(static_cast<std::uint8_t>(code));
    }
    for (unsigned code = 0x40; static_cast<int>(codes.size()) < featureCount; ++code) {
        if (code != 0x52) codes.push_back(static_cast<std::uint8_t>(code));
    }
    return codes;
}

std::string capabilitiesListing(const std::vector<std::uint8_t>& codes) {
    return "(prot(monitor)type(lcd)model(Bench)vcp(" + text::hexBytes(codes) + ")mccs_ver(2.1))";
}

simulated::DisplayPlan monitorWithManyFeatures(platform::DisplayID id) {
    simulated::MonitorPlan monitor;
    const auto codes = manyCodes();
    for (const std::uint8_t code : codes) monitor.features[code] = {0, 50, 100, false};
    monitor.capabilities = capabilitiesListing(codes);
    simulated::DisplayPlan display;
    display.id = id;
    display.vendor = 1;
    display.product = id;
    display.serial = id;
    display.name = "Bench " + std::to_string(id);
    display.monitor = monitor;
    return display;
}

simulated::Desk deskOf(platform::DisplayID monitors) {
    simulated::Desk desk;
    for (platform::DisplayID id = 1; id <= monitors; ++id)
        desk.displays.push_back(monitorWithManyFeatures(id));
    desk.registry = simulated::defaultRegistry(desk.displays);
    return desk;
}

// The mandated pauses of one load: the string with the empty fragment that ends
// it, and a reading a feature.
Milliseconds loadPauses() {
    const std::size_t size = capabilitiesListing(manyCodes()).size();
    const auto requests = static_cast<long>((size + fragmentSize - 1) / fragmentSize + 1);
    return Milliseconds(fragmentPause * requests + requestPauses * featureCount);
}

struct Rig {
    explicit Rig(simulated::Desk desk) : simulated(std::move(desk), scheduler, loop) {}
    ~Rig() {
        manager.reset();
        scheduler.finishThreads();
    }

    void start() { manager = std::make_unique<model::DisplayManager>(platform); }

    // Passes of the loop until nothing is left to do; the longest one is noted.
    void runUntilDone() {
        while (manager->runningTasks() > 0) {
            const auto start = scheduler.now();
            loop.runDue();
            longestPass = std::max<Milliseconds>(longestPass, scheduler.now() - start);
            scheduler.sleepFor(500us);
        }
    }

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    simulated::SimulatedPlatform simulated;
    Silence log;
    platform::Platform platform = simulated.platform(log);
    std::unique_ptr<model::DisplayManager> manager;
    Milliseconds longestPass{0};
};

Milliseconds loadTime(platform::DisplayID monitors, Milliseconds& longestPass) {
    Rig rig(deskOf(monitors));
    const auto start = rig.scheduler.now();
    rig.start();
    rig.runUntilDone();
    longestPass = std::max(longestPass, rig.longestPass);
    return rig.scheduler.now() - start;
}

void loadOfEightOverOne(benchmark::State& state) {
    Milliseconds one{0};
    Milliseconds eight{0};
    Milliseconds longestPass{0};
    for (auto _ : state) {
        one += loadTime(1, longestPass);
        eight += loadTime(8, longestPass);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["over_one"] = eight / one;
    state.counters["over_pauses"] = one / (loadPauses() * runs);
    state.counters["longest_pass_ms"] = longestPass.count();
}
BENCHMARK(loadOfEightOverOne)->Iterations(2)->UseRealTime()->Unit(benchmark::kMillisecond);

// From a slider's move until its value is in the monitor.
Milliseconds sliderTime(Rig& rig, platform::DisplayID id) {
    constexpr int moves = 10;
    const auto display = rig.manager->known(id);
    const auto feature = display->feature(0x10);
    const auto start = rig.scheduler.now();
    for (std::uint16_t value = 1; value <= moves; ++value) {
        display->set(*feature, value);
        while (rig.simulated.monitor(id).value(0x10) != value) {
            rig.loop.runDue();
            rig.scheduler.sleepFor(100us);
        }
        // The next move finds the queue idle.
        rig.scheduler.sleepFor(70ms);
    }
    return (rig.scheduler.now() - start - Milliseconds(70ms * moves)) / moves;
}

// The other monitor's transfers take a second each.
void sliderBesideAHangingMonitor(benchmark::State& state) {
    Milliseconds alone{0};
    Milliseconds beside{0};
    for (auto _ : state) {
        {
            Rig rig(deskOf(1));
            rig.start();
            rig.runUntilDone();
            alone += sliderTime(rig, 1);
        }
        simulated::Desk desk = deskOf(2);
        desk.displays[1].monitor->personality.byteTime = 250ms;
        Rig rig(std::move(desk));
        rig.start();
        while (rig.manager->known(1)->loadState() != model::ExternalDisplay::LoadState::ready) {
            rig.loop.runDue();
            rig.scheduler.sleepFor(500us);
        }
        beside += sliderTime(rig, 1);
        rig.simulated.monitor(2).becomeHealthy();
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["alone_ms"] = alone.count() / runs;
    state.counters["beside_ms"] = beside.count() / runs;
}
BENCHMARK(sliderBesideAHangingMonitor)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

// Each monitor leaves for its other input, without a picture from the computer but
// for the last one, and is brought back.
void switchesOfEight(benchmark::State& state) {
    constexpr std::uint16_t ours = 0x0F;
    constexpr std::uint16_t other = 0x11;
    simulated::Desk desk = deskOf(8);
    for (auto& display : desk.displays) {
        display.monitor->inputs =
            simulated::InputPlan{.computer = ours, .shown = ours, .available = {ours, other}};
        display.monitor->capabilities = "(vcp(10 60(0F 11)))";
    }
    Rig rig(std::move(desk));
    rig.start();
    rig.runUntilDone();
    rig.longestPass = {};
    for (auto _ : state) {
        const auto displays = rig.manager->externals();
        for (const auto& display : displays) rig.manager->start(rig.manager->selectInput(other, display));
        rig.runUntilDone();
        for (const auto& display : displays) rig.manager->start(rig.manager->selectInput(ours, display));
        for (const auto& entry : rig.manager->disabled()) rig.manager->enableOutput(entry);
        rig.runUntilDone();
    }
    state.counters["longest_pass_ms"] = rig.longestPass.count();
}
BENCHMARK(switchesOfEight)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

void refreshOfSixteenMonitors(benchmark::State& state) {
    Rig rig(deskOf(16));
    rig.start();
    rig.runUntilDone();
    for (auto _ : state) rig.manager->refresh();
    state.counters["longest_pass_ms"] = rig.longestPass.count();
}
BENCHMARK(refreshOfSixteenMonitors)->UseRealTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel
