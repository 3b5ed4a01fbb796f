// What every view may use. A plain bundle of references, to be copied; what it
// refers to outlives the views. Threads: main thread.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/DisplayManager.h"
#include "platform/Localizer.h"
#include "platform/LoginItem.h"

namespace vantrel::views {

struct Environment {
    using Display = std::shared_ptr<model::ExternalDisplay>;

    model::DisplayManager& manager;
    platform::Localizer& localizer;
    platform::LoginItem& loginItem;

    // In the user's language.
    std::string shown(const text::Text& text) const { return localizer.shown(text); }
    // The same for an English key, each "%@" of which takes the next argument.
    std::string translated(std::string key, std::vector<std::string> arguments = {}) const;

    // Finds out what the monitor can do, in the background. The model lives until
    // that has ended.
    runtime::TaskHandle load(Display display, model::ExternalDisplay::Capabilities from) const;
};

}  // namespace vantrel::views
