// The program's presence on the screen: the status item, the popover that hangs
// under it, and the settings window.
//
// On a desktop that shows no status items the popover is an ordinary window, and
// closing that ends the program: it is never running out of sight.
// Threads: main thread. Lifetime: platform, toolkit and manager outlive it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/PopoverSizer.h"
#include "model/DisplayManager.h"
#include "platform/Platform.h"
#include "runtime/MainLoop.h"
#include "runtime/Observable.h"
#include "ui/Host.h"
#include "ui/Toolkit.h"
#include "views/MenuContent.h"
#include "views/SettingsView.h"

namespace vantrel::app {

class StatusItemController {
  public:
    StatusItemController(platform::Platform& platform, ui::Toolkit& toolkit, model::DisplayManager& manager);
    StatusItemController(const StatusItemController&) = delete;
    StatusItemController& operator=(const StatusItemController&) = delete;
    ~StatusItemController();

    // What a click on the status item does.
    void togglePopover();
    // Opens the popover if it is not open.
    void openPopover();
    void openSettings();

  private:
    // A view, and what keeps it up to date.
    struct Shown {
        std::unique_ptr<ui::Component> component;
        std::unique_ptr<ui::Host> host;
    };

    Shown show(ui::View& view, std::unique_ptr<ui::Component> component);
    std::unique_ptr<ui::Component> menuContent();
    views::Environment environment() const;
    double screenHeight() const;
    void resizePopover(ui::Size size);
    void applyPendingSize();
    void popoverDidClose();
    void watchForAHost();
    void beAWindow();

    platform::Platform& platform_;
    ui::Toolkit& toolkit_;
    model::DisplayManager& manager_;
    // Told to the user in the popover.
    runtime::Observable<std::string> note_;
    std::unique_ptr<ui::StatusItem> statusItem_;
    std::unique_ptr<ui::Popover> popover_;
    Shown menu_;
    // Made on first request and then kept; closing it only hides it.
    std::unique_ptr<ui::Window> settingsWindow_;
    Shown settings_;
    std::optional<PopoverSizer> sizer_;
    bool isWindow_ = false;
    std::optional<runtime::MainLoop::TimerID> hostTimer_;
    std::optional<runtime::MainLoop::TimerID> sizeTimer_;
};

}  // namespace vantrel::app
