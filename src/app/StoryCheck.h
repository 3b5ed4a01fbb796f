// Whether a story can be played on a desk: a display that a step names is there,
// and is of the kind that the step is about.
#pragma once

#include <optional>

#include "app/Story.h"
#include "platform/simulated/Desk.h"
#include "platform/simulated/Mistake.h"

namespace vantrel::app::StoryCheck {

// The first thing that the desk doesn't have.
std::optional<simulated::Mistake> missing(const Story& story, const simulated::Desk& desk);

}  // namespace vantrel::app::StoryCheck
