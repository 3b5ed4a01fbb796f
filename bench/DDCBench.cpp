// What the transport adds to the pauses that the protocol demands, in real time
// on a simulated monitor. Judge the ratios, not the times.
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "ddc/AVServiceLocator.h"
#include "ddc/DDCChannel.h"
#include "ddc/DDCWorker.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "runtime/RealScheduler.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;

constexpr auto readPauses = 60ms;
constexpr auto fragmentPause = 50ms;
constexpr std::size_t fragmentSize = 32;
constexpr std::size_t capabilitiesSize = 400;
constexpr std::uint8_t codes[] = {0x10, 0x12, 0x62};

class Silence : public platform::LogSink {
  public:
    void write(std::string_view, std::string_view, platform::LogLevel, std::string_view) override {}
};

std::string capabilitiesOfSize(std::size_t size) {
    std::string text = "(prot(monitor)type(lcd)model(Bench)vcp(10 12 60(0F 11)";
    while (text.size() + 2 < size) text += " 62";
    text.resize(size - 2, ' ');
    return text + "))";
}

simulated::Desk deskWithOneGoodMonitor() {
    simulated::MonitorPlan monitor;
    for (const std::uint8_t code : codes) monitor.features[code] = {0, 50, 100, false};
    monitor.capabilities = capabilitiesOfSize(capabilitiesSize);
    simulated::DisplayPlan display;
    display.id = 2;
    display.name = "Bench";
    display.monitor = monitor;
    simulated::Desk desk;
    desk.displays.push_back(display);
    desk.registry.push_back({simulated::RegistryEntryPlan::Kind::proxy,
                             "DCPAVServiceProxy",
                             2,
                             {{"Location", std::string("External")}}});
    return desk;
}

struct Rig {
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    simulated::SimulatedPlatform simulated{deskWithOneGoodMonitor(), scheduler, loop};
    Silence log;
    platform::Platform platform = simulated.platform(log);

    ~Rig() { scheduler.finishThreads(); }

    ddc::DDCChannel channel() {
        auto entries = ddc::AVServiceLocator::externalServices(platform.registry, platform.functions);
        return ddc::DDCChannel(ddc::Transport(platform), entries.at(0), "Bench");
    }
};

template <class Operation>
void measureOver(benchmark::State& state, std::chrono::milliseconds pauses, Operation operation) {
    std::chrono::steady_clock::duration total{};
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        operation();
        total += std::chrono::steady_clock::now() - start;
    }
    state.counters["over_pauses"] =
        std::chrono::duration<double>(total).count() /
        (std::chrono::duration<double>(pauses).count() * static_cast<double>(state.iterations()));
}

void readOverItsPauses(benchmark::State& state) {
    Rig rig;
    ddc::DDCChannel channel = rig.channel();
    measureOver(state, readPauses, [&channel, &state] {
        if (channel.read(0x10, 4).kind != ddc::DDCChannel::ReadResult::Kind::value) {
            state.SkipWithError("the monitor did not answer");
        }
    });
}
BENCHMARK(readOverItsPauses)->UseRealTime()->Unit(benchmark::kMillisecond);

void capabilitiesOverTheirPauses(benchmark::State& state) {
    Rig rig;
    ddc::DDCChannel channel = rig.channel();
    // The last request gets the empty fragment that ends the string.
    constexpr auto requests = (capabilitiesSize + fragmentSize - 1) / fragmentSize + 1;
    measureOver(state, fragmentPause * requests, [&channel, &state] {
        const auto text = channel.capabilities();
        if (!text || text->size() != capabilitiesSize) state.SkipWithError("the string is not whole");
    });
}
BENCHMARK(capabilitiesOverTheirPauses)->UseRealTime()->Unit(benchmark::kMillisecond);

// What a caller pays for a write while a transfer is running.
void writeDuringATransfer(benchmark::State& state) {
    Rig rig;
    ddc::DDCWorker worker(rig.scheduler, rig.loop, rig.channel(), "2");
    worker.write(0x10, 0);
    std::uint16_t value = 0;
    for (auto _ : state) worker.write(0x10, ++value % 100);
}
BENCHMARK(writeDuringATransfer)->UseRealTime();

// Transfers that 10,000 writes over three codes cost when they fall into one.
void transfersOfManyWrites(benchmark::State& state) {
    double transfers = 0;
    for (auto _ : state) {
        Rig rig;
        {
            ddc::DDCWorker worker(rig.scheduler, rig.loop, rig.channel(), "2");
            worker.write(0x10, 1);
            std::this_thread::sleep_for(20ms);  // into the first transfer
            for (unsigned i = 0; i < 10'000; ++i)
                worker.write(codes[i % 3], static_cast<std::uint16_t>(i % 100));
        }
        rig.scheduler.finishThreads();
        // Each transfer writes its packet twice.
        transfers += static_cast<double>(rig.simulated.monitor(2).counters().writes) / 2.0 - 1.0;
    }
    state.counters["further_transfers"] = transfers / static_cast<double>(state.iterations());
}
BENCHMARK(transfersOfManyWrites)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace vantrel
