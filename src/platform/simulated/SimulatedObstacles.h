// What is in the way on the simulated computer: nothing, until somebody says so.
#pragma once

#include <utility>

#include "platform/Obstacles.h"

namespace vantrel::simulated {

class SimulatedObstacles : public platform::Obstacles {
  public:
    explicit SimulatedObstacles(const std::vector<std::string>& obstacles) {
        for (const std::string& obstacle : obstacles) obstacles_.push_back(text::Text::verbatim(obstacle));
    }

    std::vector<text::Text> find() override { return obstacles_; }
    void set(std::vector<text::Text> obstacles) { obstacles_ = std::move(obstacles); }

  private:
    std::vector<text::Text> obstacles_;
};

}  // namespace vantrel::simulated
