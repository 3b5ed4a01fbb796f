// Where a tree of nodes is shown: a view for a window or a popover.
// Threads: main thread.
#pragma once

#import <AppKit/AppKit.h>
#include <functional>

#include "ui/View.h"
#include "ui/appkit/FlippedView.h"
#include "ui/appkit/Lifeline.h"
#include "ui/layout/BoxRenderer.h"
#include "ui/layout/Canvas.h"

namespace vantrel::appkit {

class AppKitView : public ui::View, private layout::Canvas {
  public:
    AppKitView();
    AppKitView(const AppKitView&) = delete;
    AppKitView& operator=(const AppKitView&) = delete;
    ~AppKitView() override;

    ui::Renderer& renderer() override { return renderer_; }
    void onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) override;
    ui::Size fittingSize() const override;

    NSView* _Nonnull view() const { return view_; }
    // For a window that has made an order of its own.
    void orderKeys();
    // After each time that its contents have changed.
    void onFinish(std::function<void()> action) { renderer_.onFinish(std::move(action)); }

  private:
    std::unique_ptr<layout::Control> make(layout::Stage& stage, ui::ElementID element, const ui::Node& node,
                                          layout::Control* _Nullable parent) override;
    int pixels(double points) const override;
    ui::Size points(double width, double height) const override { return {width, height}; }
    int height() const override;
    void order(const layout::Box& root) override;
    void later(std::function<void()> work) override;

    FlippedView* _Nonnull view_;
    layout::BoxRenderer renderer_;
    Lifeline lifeline_;
    id<NSObject> _Nonnull colorsObserver_;
};

}  // namespace vantrel::appkit
