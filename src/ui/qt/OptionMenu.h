// A button under which a menu of options opens.
// Threads: main thread.
#pragma once

#include <QMenu>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/qt/PaintedButton.h"

namespace vantrel::qt {

// What is in the menu when it opens.
struct MenuOptions {
    enum class Kind { actions, choice };

    Kind kind = Kind::actions;
    std::vector<std::string> options;
    std::optional<std::size_t> selected;
    // Shown below the options, not to be chosen.
    std::string note;
};

class OptionMenu : public PaintedButton {
  public:
    OptionMenu(QWidget* parent, std::function<void(std::size_t)> choose);

    void setOptions(MenuOptions options) { options_ = std::move(options); }
    void addState(QAccessible::State& state) const override { state.hasPopup = true; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void open();

    std::function<void(std::size_t)> choose_;
    MenuOptions options_;
};

}  // namespace vantrel::qt
