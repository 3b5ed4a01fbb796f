// The person in a story who uses the program: does what the interface would do at
// a click, and only where the interface would offer it. Main thread.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/StoryStep.h"
#include "model/DisplayManager.h"

namespace vantrel::app {

class StoryUser {
  public:
    // Why something could not be done.
    using Refusal = std::optional<std::string>;

    // The manager must outlive the user.
    explicit StoryUser(model::DisplayManager& manager) : manager_(manager) {}

    Refusal perform(UserAction action, const StoryStep& step);

  private:
    using Display = model::DisplayManager::Display;
    using Entry = model::DisplayManager::DisabledDisplay;

    Refusal openPopover();
    Refusal setBuiltInBrightness(const StoryStep& step);
    Refusal withDisplay(const StoryStep& step, const std::function<Refusal(const Display&)>& act);
    Refusal withEntry(const StoryStep& step, const std::function<void(const Entry&)>& act);
    static Refusal set(const Display& display, const StoryStep& step);
    static Refusal trigger(const Display& display, const StoryStep& step);
    static Refusal dim(const Display& display, const StoryStep& step);
    Refusal start(runtime::Task<> operation);

    model::DisplayManager& manager_;
};

}  // namespace vantrel::app
