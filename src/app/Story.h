// What happens on a simulated desk, step by step: what a story file says. Plain
// data; StoryFile reads it, StoryPlayer plays it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/StoryStep.h"

namespace vantrel::app {

struct Story {
    std::string title;
    std::string description;
    // The shipped desk that it is made for, by name.
    std::optional<std::string> desk;
    // In the order of their times.
    std::vector<StoryStep> steps;
    // When the story is over; no step comes later.
    simulated::Duration end{0};
};

}  // namespace vantrel::app
