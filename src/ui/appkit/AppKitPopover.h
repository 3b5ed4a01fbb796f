// A popover under the item in the menu bar. It closes when the user turns to something
// else; its size is what it was told, whatever its contents would like.
// Threads: main thread. Lifetime: the item outlives it.
#pragma once

#import <AppKit/AppKit.h>
#include <functional>

#include "ui/Popover.h"
#include "ui/appkit/AppKitStatusItem.h"
#include "ui/appkit/AppKitView.h"

@class VantrelPopoverDelegate;

namespace vantrel::appkit {

class AppKitPopover : public ui::Popover {
  public:
    explicit AppKitPopover(AppKitStatusItem& item);
    AppKitPopover(const AppKitPopover&) = delete;
    AppKitPopover& operator=(const AppKitPopover&) = delete;
    ~AppKitPopover() override;

    ui::View& content() override { return view_; }
    bool isShown() const override { return popover_.shown; }
    void show() override;
    void close() override;
    // A panel always: the menu bar takes every item, so nobody asks for a window.
    void setMode(ui::PopoverMode mode) override;
    void onClose(std::function<void()> action) override;
    ui::Size contentSize() const override;
    void setContentSize(ui::Size size) override;

  private:
    AppKitStatusItem& item_;
    AppKitView view_;
    NSPopover* _Nonnull popover_;
    // A popover doesn't own its delegate.
    VantrelPopoverDelegate* _Nonnull delegate_;
};

}  // namespace vantrel::appkit
