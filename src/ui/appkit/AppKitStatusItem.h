// The program's item in the menu bar.
// Threads: main thread.
#pragma once

#import <AppKit/AppKit.h>
#include <functional>
#include <optional>
#include <string>

#include "ui/StatusItem.h"
#include "ui/appkit/Action.h"

namespace vantrel::appkit {

class AppKitStatusItem : public ui::StatusItem {
  public:
    AppKitStatusItem();
    AppKitStatusItem(const AppKitStatusItem&) = delete;
    AppKitStatusItem& operator=(const AppKitStatusItem&) = delete;
    ~AppKitStatusItem() override;

    bool hasButton() const override { return button() != nil; }
    // The menu bar takes every item.
    bool isHosted() const override { return true; }
    void setImage(const ui::Drawing& image) override;
    void setToolTip(const std::string& text) override;
    void onClick(std::function<void()> action) override;
    std::optional<double> screenHeight() const override;

    NSStatusBarButton* _Nullable button() const { return item_.button; }

  private:
    NSStatusItem* _Nonnull item_;
    Action* _Nullable action_;
};

}  // namespace vantrel::appkit
