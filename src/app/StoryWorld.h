// What happens in a story without the program: to the monitors, the cables and
// the computer. Main thread.
#pragma once

#include "app/StoryStep.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace vantrel::app {

class StoryWorld {
  public:
    // The platform must outlive it.
    explicit StoryWorld(simulated::SimulatedPlatform& simulated) : simulated_(simulated) {}

    void perform(MonitorAction action, const StoryStep& step);
    void perform(WorldAction action, const StoryStep& step);

  private:
    simulated::SimulatedPlatform& simulated_;
};

}  // namespace vantrel::app
