// The popover and the settings of a storm's program, on a screen that only lists
// what it shows. Whatever happens, that has to be what the views would say if they
// were made anew.
//
// Lifetime: the program's manager and platform outlive it.
#pragma once

#include "model/DisplayManager.h"
#include "platform/Platform.h"
#include "platform/simulated/Random.h"
#include "storms/Verdict.h"
#include "ui/Host.h"
#include "ui/outline/OutlineRenderer.h"
#include "views/MenuContent.h"
#include "views/SettingsView.h"

namespace vantrel::storms {

class StormScreen {
  public:
    StormScreen(model::DisplayManager& manager, platform::Platform& platform);
    StormScreen(const StormScreen&) = delete;
    StormScreen& operator=(const StormScreen&) = delete;

    // Opens or closes something, or asks for something and thinks better of it.
    void look(simulated::Random& random);
    // Between two passes of the main loop. True when there was something to compare.
    bool check(Verdict& verdict);

  private:
    struct Shown {
        Shown(runtime::MainLoop& loop, ui::Component& view) : component(view), host(loop, view, renderer) {}

        ui::Component& component;
        outline::OutlineRenderer renderer;
        ui::Host host;
    };

    views::MenuContent menu_;
    views::SettingsView settings_;
    Shown shownMenu_;
    Shown shownSettings_;
};

}  // namespace vantrel::storms
