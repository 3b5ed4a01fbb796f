// Where a tree of nodes is shown: a widget for a window, and its renderer.
// Threads: main thread.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ui/View.h"
#include "ui/layout/BoxRenderer.h"
#include "ui/qt/QtCanvas.h"

namespace vantrel::qt {

class QtView : public ui::View {
  public:
    explicit QtView(QWidget* parent);
    ~QtView() override;

    ui::Renderer& renderer() override { return renderer_; }
    void onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) override;
    ui::Size fittingSize() const override;

    QWidget& widget();
    // Texts that were cut because there is no room for them.
    std::vector<std::string> cutTexts() const;
    QSize fittingPixels() const;
    void onFinish(std::function<void()> action) { renderer_.onFinish(std::move(action)); }

  private:
    class Ground;

    std::unique_ptr<Ground> ground_;
    QtCanvas canvas_;
    layout::BoxRenderer renderer_;
};

}  // namespace vantrel::qt
