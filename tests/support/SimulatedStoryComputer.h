// A story on the simulated platform.
#pragma once

#include <utility>

#include "platform/simulated/SimulatedPlatform.h"
#include "support/StoryComputer.h"

namespace vantrel::test {

class SimulatedStoryComputer : public StoryComputer {
  public:
    explicit SimulatedStoryComputer(simulated::Desk desk) : simulated_(std::move(desk), time_, loop_) {}
    ~SimulatedStoryComputer() override { time_.finishThreads(); }

    simulated::VirtualTime& time() override { return time_; }
    platform::Platform& platform() override { return platform_; }
    const RecordingLogSink& log() const override { return log_; }
    void startAgain() override {}

    DisplayID id(DisplayID display) const override { return display; }
    simulated::SimulatedMonitor& monitor(DisplayID display) override { return simulated_.monitor(display); }
    bool hasPicture(DisplayID display) override { return simulated_.world().isOnline(display); }
    std::optional<platform::TransferTable> table(DisplayID display) override {
        return platform_.displays.transferTable(display, platform_.displays.transferTableCapacity(display));
    }
    std::size_t liveServices() const override { return simulated_.liveServices(); }

    void plug(DisplayID display) override { simulated_.world().plug(display); }
    void unplug(DisplayID display) override { simulated_.world().unplug(display); }
    void openLid() override { simulated_.world().openLid(); }
    void closeLid() override { simulated_.world().closeLid(); }
    void sleep() override { simulated_.world().sleep(); }
    void wake() override { simulated_.world().wake(); }
    void refuse(simulated::Refusal refusal) override { simulated_.refuse(refusal); }

  private:
    simulated::VirtualTime time_;
    runtime::MainLoop loop_{time_};
    RecordingLogSink log_;
    simulated::SimulatedPlatform simulated_;
    platform::Platform platform_ = simulated_.platform(log_);
};

}  // namespace vantrel::test
