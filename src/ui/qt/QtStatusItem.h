// The icon in a desktop's tray. The tray may appear after the program.
// Threads: main thread. Lifetime: the loop outlives it.
#pragma once

#include <QColor>
#include <QPalette>
#include <QRect>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "runtime/MainLoop.h"
#include "ui/StatusItem.h"

namespace vantrel::qt {

class QtStatusItem : public ui::StatusItem {
  public:
    explicit QtStatusItem(runtime::MainLoop& loop);
    ~QtStatusItem() override;

    bool hasButton() const override { return true; }
    bool isHosted() const override;
    void setImage(const ui::Drawing& image) override;
    void setToolTip(const std::string& text) override;
    void onClick(std::function<void()> action) override;
    std::optional<double> screenHeight() const override;

    // Empty where the desktop keeps it to itself.
    QRect geometry() const;
    // What comes now belongs to a click that has had its effect.
    void ignoreClicksForAMoment();
    // What a click on the icon does.
    void click();

  private:
    class Tray;

    std::unique_ptr<Tray> tray_;
};

// Trays have the colours of the palette, except for desktops whose panel is always
// dark. `desktop` is what XDG_CURRENT_DESKTOP says: names with colons between.
QColor trayInk(const QPalette& palette, const std::string& desktop);

}  // namespace vantrel::qt
