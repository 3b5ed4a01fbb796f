// Shows a tree of nodes on a toolkit's canvas: lays it out, and tells the controls.
//
// The topmost node has its natural size, or less height when the canvas has less. A
// node's size is reported when the differences have been told; the topmost node's as
// it would like it to be.
// Threads: main thread. Lifetime: the canvas outlives it.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "ui/Renderer.h"
#include "ui/layout/Box.h"
#include "ui/layout/Canvas.h"
#include "ui/layout/PixelSize.h"
#include "ui/layout/Stage.h"

namespace vantrel::layout {

class BoxRenderer : public ui::Renderer {
  public:
    explicit BoxRenderer(Canvas& canvas) : canvas_(canvas) {}
    ~BoxRenderer() override;

    void insert(ui::ElementID parent, std::size_t position, ui::ElementID element,
                const ui::Node& node) override;
    void update(ui::ElementID element, const ui::Node& node) override;
    void move(ui::ElementID parent, std::size_t position, ui::ElementID element) override;
    void remove(ui::ElementID element) override;
    void finish() override;

    void onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler);
    // After each finish, with the new fitting size laid out.
    void onFinish(std::function<void()> action) { finished_ = std::move(action); }

    PixelSize fittingSize() const;
    // Into the canvas as it is now.
    void layOut();
    // The look has changed: the fonts, or how many pixels a point is.
    void refresh();
    // Null when there is no such node.
    const Box* item(ui::ElementID element) const;
    // Null when nothing is shown.
    const Box* root() const { return root_.get(); }

  private:
    void reportSizes();

    Canvas& canvas_;
    Stage stage_;
    std::unique_ptr<Box> root_;
    std::map<ui::ElementID, Box*> boxes_;
    std::map<ui::ElementID, ui::ElementID> parents_;
    std::map<ui::ElementID, PixelSize> reported_;
    std::function<void()> finished_;
    bool isOrderNew_ = false;
    // Gone with the renderer: what it has asked to be done later isn't done then.
    std::shared_ptr<BoxRenderer*> self_ = std::make_shared<BoxRenderer*>(this);
};

}  // namespace vantrel::layout
