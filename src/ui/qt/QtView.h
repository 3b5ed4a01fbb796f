// Where a tree of nodes is shown: a widget for a window, and its renderer.
// Threads: main thread.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "ui/View.h"
#include "ui/qt/QtRenderer.h"

namespace vantrel::qt {

class QtView : public ui::View {
  public:
    explicit QtView(QWidget* parent);
    ~QtView() override;

    ui::Renderer& renderer() override { return *renderer_; }
    void onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) override;
    ui::Size fittingSize() const override;

    QWidget& widget();
    std::vector<std::string> cutTexts() const { return renderer_->cutTexts(); }
    QSize fittingPixels() const { return renderer_->fittingSize(); }
    void onFinish(std::function<void()> action) { renderer_->onFinish(std::move(action)); }
    const Item* item(ui::ElementID element) const { return renderer_->item(element); }

  private:
    class Canvas;

    std::unique_ptr<Canvas> canvas_;
    std::unique_ptr<QtRenderer> renderer_;
};

}  // namespace vantrel::qt
