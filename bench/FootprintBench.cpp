// What a day of use costs in memory: heap that 1,000 hot-plug cycles leave behind,
// and the resident size with sixteen monitors loaded. In virtual time.
#include <benchmark/benchmark.h>
#include <chrono>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <unistd.h>

#include "model/DisplayManager.h"
#include "platform/simulated/ShippedDesks.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;

class Silence : public platform::LogSink {
  public:
    void write(std::string_view, std::string_view, platform::LogLevel, std::string_view) override {}
};

struct Rig {
    explicit Rig(std::string_view desk)
        : simulated(std::get<simulated::Desk>(simulated::ShippedDesks::read(desk)), time, loop) {
        manager = std::make_unique<model::DisplayManager>(platform);
        loop.runFor(10min);
    }
    ~Rig() {
        manager.reset();
        time.finishThreads();
    }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    simulated::SimulatedPlatform simulated;
    Silence log;
    platform::Platform platform = simulated.platform(log);
    std::unique_ptr<model::DisplayManager> manager;
};

double heapBytes() { return static_cast<double>(mallinfo2().uordblks); }

double residentKiB() {
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

void heapAfterHotPlugs(benchmark::State& state) {
    constexpr int cycles = 1000;
    Rig rig("default");
    const auto cycle = [&rig] {
        rig.simulated.world().unplug(2);
        rig.loop.runFor(5s);
        rig.simulated.world().plug(2);
        rig.loop.runFor(5s);
    };
    // The first cycles fill what is kept by rule: caches, containers' spare room.
    for (int i = 0; i < 10; ++i) cycle();
    const double before = heapBytes();
    for (auto _ : state) {
        for (int i = 0; i < cycles; ++i) cycle();
    }
    state.counters["growth_bytes"] = heapBytes() - before;
    state.counters["timers_when_idle"] = rig.loop.nextDue() ? 1 : 0;
}
BENCHMARK(heapAfterHotPlugs)->Iterations(1)->Unit(benchmark::kMillisecond);

void residentWithSixteenMonitors(benchmark::State& state) {
    for (auto _ : state) {
        const Rig rig("large");
        state.counters["resident_KiB"] = residentKiB();
    }
}
BENCHMARK(residentWithSixteenMonitors)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel
