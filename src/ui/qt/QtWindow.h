// An ordinary window that has the size of its contents.
// Threads: main thread.
#pragma once

#include <memory>
#include <string>

#include "ui/Window.h"
#include "ui/qt/QtView.h"

namespace vantrel::qt {

class QtWindow : public ui::Window {
  public:
    explicit QtWindow(const std::string& title);
    ~QtWindow() override;

    ui::View& content() override;
    void show() override;

    QWidget& window();

  private:
    class Frame;

    void fit();

    std::unique_ptr<Frame> frame_;
    std::unique_ptr<QtView> view_;
    bool wasShown_ = false;
};

}  // namespace vantrel::qt
