// A panel under the icon in the tray, wholly on the screen; or an ordinary window.
// As a panel it closes on Escape, a click outside of it, and when another window
// gets the keyboard.
// Threads: main thread. Lifetime: the item outlives it.
#pragma once

#include <functional>
#include <memory>

#include "ui/Popover.h"
#include "ui/qt/QtStatusItem.h"
#include "ui/qt/QtView.h"

namespace vantrel::qt {

class QtPopover : public ui::Popover {
  public:
    explicit QtPopover(QtStatusItem& item);
    ~QtPopover() override;

    ui::View& content() override;
    bool isShown() const override;
    void show() override;
    void close() override;
    void setMode(ui::PopoverMode mode) override;
    void onClose(std::function<void()> action) override;
    ui::Size contentSize() const override { return contentSize_; }
    void setContentSize(ui::Size size) override;

    QWidget& window();

  private:
    class Panel;

    void place();

    QtStatusItem& item_;
    ui::Size contentSize_;
    QRect anchor_;
    std::unique_ptr<Panel> panel_;
    std::unique_ptr<QtView> view_;
};

}  // namespace vantrel::qt
