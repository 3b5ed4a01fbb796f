// One external display model in virtual time, on a desk with nothing but its
// monitor: what tests of ExternalDisplay begin with.
#pragma once

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ddc/AVServiceLocator.h"
#include "model/ExternalDisplay.h"
#include "platform/MemoryDefaults.h"
#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/Fatal.h"
#include "runtime/MainLoop.h"
#include "runtime/TaskScope.h"
#include "support/RecordingLogSink.h"
#include "text/Hex.h"

namespace vantrel::test {

// "Aurora" has the model numbers of no input profile.
inline simulated::DisplayPlan aurora(simulated::MonitorPlan monitor) {
    simulated::DisplayPlan plan;
    plan.id = 2;
    plan.vendor = 4242;
    plan.product = 1001;
    plan.serial = 77;
    plan.name = "Aurora";
    plan.transferTableCapacity = 16;
    plan.monitor = std::move(monitor);
    return plan;
}

class DisplayRig {
  public:
    using Display = model::ExternalDisplay;
    using Lines = std::vector<std::string>;
    using Requests = std::vector<std::string>;
    enum class Link { found, missing };

    static constexpr platform::DisplayID id = 2;
    static inline const std::string key = "4242-1001-77";

    explicit DisplayRig(simulated::DisplayPlan plan)
        : simulated(deskOf(std::move(plan)), time, loop), platform(simulated.platform(log, defaults)) {
        monitor().recordTrace();
    }
    explicit DisplayRig(simulated::MonitorPlan plan) : DisplayRig(aurora(std::move(plan))) {}
    ~DisplayRig() {
        display.reset();
        time.finishThreads();
    }

    // Set the defaults up before.
    Display& make(Link link = Link::found, std::optional<std::string> name = "Aurora") {
        auto services = ddc::AVServiceLocator::externalServices(platform.registry, platform.functions);
        std::optional<ddc::AVServiceLocator::Entry> service;
        if (link == Link::found) service = services.front();
        display = std::make_shared<Display>(platform, id, service, std::move(name));
        return *display;
    }
    // A display that is ready, with nothing of the load in requests() and the log.
    Display& makeLoaded() {
        make();
        load();
        forgetRequests();
        return *display;
    }

    void load() { run(display->load(Display::Capabilities::cachedIfAny)); }
    void loadAfresh() { run(display->load(Display::Capabilities::fetched)); }
    void refresh() { run(display->refreshValues()); }
    std::optional<Display::Input> readInput() {
        std::optional<Display::Input> result;
        run(readInto(result));
        return result;
    }
    void run(runtime::Task<> task) {
        const runtime::TaskHandle handle = tasks.start(std::move(task));
        while (handle.isRunning()) loop.runFor(std::chrono::milliseconds(10));
    }
    void runFor(runtime::MonotonicClock::duration duration) { loop.runFor(duration); }

    simulated::SimulatedMonitor& monitor() { return simulated.monitor(id); }
    platform::TransferTable transferTable() { return platform.displays.transferTable(id, 16).value(); }
    // A code without a feature stops the test.
    model::VCPFeature& feature(std::uint8_t code) {
        const auto found = display->feature(code);
        runtime::require(found != nullptr, "the display has no feature 0x" + text::upperHex(code));
        return *found;
    }

    // What the host asked the monitor since forgetRequests(): "get 10",
    // "set 10 = 50", "capabilities 0". A host writes gets and sets twice in a
    // row; they are here once.
    Requests requests() {
        const auto trace = monitor().trace();
        Requests result;
        simulated::Bytes last;
        for (std::size_t index = forgotten_; index < trace.size(); ++index) {
            if (trace[index].direction == simulated::WireRecord::Direction::read) {
                last.clear();
            } else if (last == trace[index].bytes) {
                last.clear();
            } else {
                last = trace[index].bytes;
                result.push_back(described(last));
            }
        }
        return result;
    }
    void forgetRequests() { forgotten_ = monitor().trace().size(); }

    // The texts of a category at a level.
    Lines lines(std::string_view category, platform::LogLevel level) const {
        Lines result;
        for (const LogLine& line : log.lines()) {
            if (line.category == category && line.level == level) result.push_back(line.text);
        }
        return result;
    }
    bool logged(std::string_view category, platform::LogLevel level, std::string_view text) const {
        return std::ranges::count(lines(category, level), text) == 1;
    }
    bool mentioned(std::string_view text) const {
        return std::ranges::any_of(
            log.lines(), [text](const LogLine& line) { return line.text.find(text) != std::string::npos; });
    }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    RecordingLogSink log;
    platform::MemoryDefaults defaults;
    simulated::SimulatedPlatform simulated;
    platform::Platform platform;
    std::shared_ptr<Display> display;
    runtime::TaskScope tasks{loop};

  private:
    static simulated::Desk deskOf(simulated::DisplayPlan plan) {
        simulated::Desk desk;
        desk.displays.push_back(std::move(plan));
        desk.registry = simulated::defaultRegistry(desk.displays);
        return desk;
    }

    static std::string described(const simulated::Bytes& written) {
        const auto payload = simulated::parseRequest(simulated::hostAddress, written)->payload;
        const auto number = [&payload](std::size_t index) {
            return payload[index] * 256 + payload[index + 1];
        };
        if (payload[0] == simulated::getVCP) return "get " + text::upperHex(payload[1]);
        if (payload[0] == simulated::setVCP) {
            return "set " + text::upperHex(payload[1]) + " = " + std::to_string(number(2));
        }
        return "capabilities " + std::to_string(number(1));
    }

    runtime::Task<> readInto(std::optional<Display::Input>& result) {
        auto reading = display->readInput();
        result = co_await reading;
    }

    std::size_t forgotten_ = 0;
};

}  // namespace vantrel::test
