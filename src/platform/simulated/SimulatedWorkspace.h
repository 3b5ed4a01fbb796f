// The user's session on the simulated computer.
#pragma once

#include <utility>

#include "platform/Workspace.h"
#include "platform/simulated/World.h"

namespace vantrel::simulated {

class SimulatedWorkspace : public platform::Workspace {
  public:
    explicit SimulatedWorkspace(World& world) : world_(world) {}
    void onWake(std::function<void()> callback) override {
        world_.announcements().onWake(std::move(callback));
    }

  private:
    World& world_;
};

}  // namespace vantrel::simulated
