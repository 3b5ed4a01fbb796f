// A widget on which a tree is shown: what the layout of a tree needs of Qt.
// Threads: main thread. Lifetime: the widget outlives it.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "ui/layout/Canvas.h"
#include "ui/qt/Graveyard.h"

namespace vantrel::qt {

class QtCanvas : public layout::Canvas {
  public:
    explicit QtCanvas(QWidget& widget) : widget_(widget) {}

    std::unique_ptr<layout::Control> make(layout::Stage& stage, ui::ElementID element, const ui::Node& node,
                                          layout::Control* parent) override;
    int pixels(double points) const override;
    ui::Size points(double width, double height) const override;
    int height() const override { return widget_.height(); }
    void order(const layout::Box& root) override;
    void later(std::function<void()> work) override;

  private:
    QWidget& widget_;
    Graveyard graveyard_;
};

}  // namespace vantrel::qt
