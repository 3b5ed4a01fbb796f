// The things of the Mac's desktop. Needs an AppKitApplication.
// Threads: main thread.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ui/Toolkit.h"

namespace vantrel::appkit {

class AppKitToolkit : public ui::Toolkit {
  public:
    std::unique_ptr<ui::StatusItem> makeStatusItem() override;
    // `item` was made by this toolkit.
    std::unique_ptr<ui::Popover> makePopover(ui::StatusItem& item) override;
    std::unique_ptr<ui::Window> makeWindow(const std::string& title) override;
    std::optional<double> mainScreenHeight() const override;
    void activate() override;
    void terminate() override;
};

}  // namespace vantrel::appkit
