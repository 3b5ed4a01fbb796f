// The desktop's things, made with Qt. Needs a QtApplication.
// Threads: main thread.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/MainLoop.h"
#include "ui/Toolkit.h"

namespace vantrel::qt {

class QtToolkit : public ui::Toolkit {
  public:
    // The loop outlives what the toolkit makes.
    explicit QtToolkit(runtime::MainLoop& loop) : loop_(loop) {}

    std::unique_ptr<ui::StatusItem> makeStatusItem() override;
    // `item` was made by this toolkit.
    std::unique_ptr<ui::Popover> makePopover(ui::StatusItem& item) override;
    std::unique_ptr<ui::Window> makeWindow(const std::string& title) override;
    std::optional<double> mainScreenHeight() const override;
    void activate() override;
    void terminate() override;

  private:
    runtime::MainLoop& loop_;
};

}  // namespace vantrel::qt
