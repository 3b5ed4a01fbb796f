// The contents of the settings window: what concerns the program, and a section
// for each external monitor that is connected and on.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "runtime/Observable.h"
#include "ui/Children.h"
#include "ui/Component.h"
#include "views/DisplaySettings.h"
#include "views/Environment.h"

namespace vantrel::views {

class SettingsView : public ui::Component {
  public:
    // Asks the system whether the program starts at login.
    explicit SettingsView(const Environment& environment);

    ui::Node body() override;

  private:
    ui::Node general();
    void setLaunchAtLogin(bool enabled);

    Environment environment_;
    // Never what the system did not accept.
    runtime::Observable<bool> launchAtLogin_;
    // Why it did not, in the system's words.
    runtime::Observable<std::optional<std::string>> loginError_;
    ui::Children<std::pair<platform::DisplayID, const model::ExternalDisplay*>, DisplaySettings> sections_;
};

}  // namespace vantrel::views
