// A story on the Linux platform.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "linux/LinuxBench.h"
#include "support/StoryComputer.h"

namespace vantrel::linux {

class LinuxStoryComputer : public test::StoryComputer {
  public:
    explicit LinuxStoryComputer(const simulated::Desk& desk) : bench_(desk) {
        for (const simulated::DisplayPlan& plan : desk.displays) {
            if (const auto id = bench_.id(plan.id)) ids_[plan.id] = *id;
            if (hardware().hasMonitor(plan.id)) pulseWith(plan.id);
        }
    }

    LinuxBench& bench() { return bench_; }
    LinuxHardware& hardware() { return bench_.hardware; }
    Desktop::Output& output(DisplayID display) {
        return hardware().desktop.output(hardware().place(display).output);
    }

    simulated::VirtualTime& time() override { return bench_.time; }
    platform::Platform& platform() override { return *platform_; }
    const test::RecordingLogSink& log() const override { return bench_.log; }
    void startAgain() override {
        bench_.time.finishThreads();
        bench_.linux.reset();
        bench_.linux.emplace(bench_.parts, bench_.log, bench_.time, bench_.loop);
        platform_.emplace(bench_.linux->platform());
    }

    DisplayID id(DisplayID display) const override { return ids_.at(display); }
    simulated::SimulatedMonitor& monitor(DisplayID display) override { return hardware().monitor(display); }
    bool hasPicture(DisplayID display) override { return output(display).isLit; }
    std::optional<platform::TransferTable> table(DisplayID display) override {
        return hardware().desktop.table(hardware().place(display).output);
    }
    std::size_t liveServices() const override { return bench_.linux->liveServices(); }

    void plug(DisplayID display) override { hardware().plug(display); }
    void unplug(DisplayID display) override { hardware().unplug(display); }
    void openLid() override { hardware().session.openLid(); }
    void closeLid() override { hardware().session.closeLid(); }
    void sleep() override { hardware().sleep(); }
    void wake() override { hardware().wake(); }
    void refuse(simulated::Refusal refusal) override {
        hardware().desktop.refuses = refusal != simulated::Refusal::nothing;
    }

  private:
    // Pulses come on the threads of the buses.
    void pulseWith(DisplayID display) {
        hardware().monitor(display).onPulse(
            [this, display, loop = bench_.loop.poster()](const simulated::Pulse& pulse) {
                loop.post([this, display, pulse] {
                    const auto now = bench_.time.now();
                    bench_.loop.after(std::max(pulse.from - now, runtime::MonotonicClock::duration(0)),
                                      [this, display] { hardware().beginPulse(display); });
                    bench_.loop.after(std::max(pulse.to - now, runtime::MonotonicClock::duration(0)),
                                      [this, display] { hardware().endPulse(display); });
                });
            });
    }

    LinuxBench bench_;
    std::optional<platform::Platform> platform_{bench_.platform};
    std::map<DisplayID, DisplayID> ids_;
};

}  // namespace vantrel::linux
