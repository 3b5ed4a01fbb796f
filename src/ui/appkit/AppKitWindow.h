// An ordinary window, as large as its contents, but not larger than the screen.
// Threads: main thread.
#pragma once

#import <AppKit/AppKit.h>
#include <string>

#include "ui/Window.h"
#include "ui/appkit/AppKitView.h"

namespace vantrel::appkit {

class AppKitWindow : public ui::Window {
  public:
    explicit AppKitWindow(const std::string& title);
    AppKitWindow(const AppKitWindow&) = delete;
    AppKitWindow& operator=(const AppKitWindow&) = delete;
    ~AppKitWindow() override;

    ui::View& content() override { return view_; }
    void show() override;

  private:
    void fit();

    AppKitView view_;
    NSWindow* _Nonnull window_;
    bool wasShown_ = false;
};

}  // namespace vantrel::appkit
