// Brings the program to life when its platform and its toolkit have been made.
//
// Threads: main thread. Lifetime: platform and toolkit outlive it.
#pragma once

#include <memory>

#include "app/StatusItemController.h"
#include "model/DisplayManager.h"
#include "platform/Platform.h"
#include "ui/Toolkit.h"

namespace vantrel::app {

class AppDelegate {
  public:
    AppDelegate(platform::Platform& platform, ui::Toolkit& toolkit)
        : platform_(platform), toolkit_(toolkit) {}

    // Once.
    void applicationDidFinishLaunching();
    // Somebody started the program again.
    void applicationShouldHandleReopen();

    // Null before the launch has finished.
    StatusItemController* statusItemController() { return statusItemController_.get(); }
    // The one display manager, made when it is first asked for.
    model::DisplayManager& manager();

  private:
    platform::Platform& platform_;
    ui::Toolkit& toolkit_;
    std::unique_ptr<model::DisplayManager> manager_;
    std::unique_ptr<StatusItemController> statusItemController_;
};

}  // namespace vantrel::app
