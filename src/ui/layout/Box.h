// A node on the screen: its control, and the room for it and for what is in it.
//
// Sizes are made from the top down whenever the view lays itself out: widths first,
// then the heights that they lead to. They are in the toolkit's pixels.
// Threads: main thread. Lifetime: its parent's box owns it, it owns its control.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ui/Node.h"
#include "ui/Renderer.h"
#include "ui/layout/Canvas.h"
#include "ui/layout/Control.h"
#include "ui/layout/Rect.h"
#include "ui/layout/Stage.h"
#include "ui/layout/WidthShares.h"

namespace vantrel::layout {

class Box {
  public:
    // What all boxes of a view are made with.
    struct View {
        Stage& stage;
        const Canvas& canvas;
    };

    Box(const View& view, ui::ElementID element, std::unique_ptr<Control> control);
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;
    virtual ~Box() = default;

    ui::ElementID element() const { return element_; }
    Control& control() const { return *control_; }
    const std::vector<std::unique_ptr<Box>>& children() const { return children_; }

    // Shows what the node says.
    void update(const ui::Node& node);
    // Again, with everything in it: the look has changed.
    void refresh();

    void insertChild(std::size_t position, std::unique_ptr<Box> child);
    void moveChild(std::size_t position, ui::ElementID element);
    void removeChild(ui::ElementID element);

    // With the padding, or as wide and high as the node says.
    WidthRange widths() const;
    int height(int width) const;
    // Takes all the width that there is.
    bool expands() const { return node_.layout.fillsWidth || contentExpands(); }
    // What it takes of the width that there is.
    int widthIn(int available) const;
    // Takes height that is left over in a column.
    virtual bool expandsVertically() const { return false; }
    // Can do with less height than it asks for.
    virtual bool canShrink() const { return false; }
    bool reportsSize() const { return node_.layout.reportsSize; }
    // On what the parent's children lie on.
    void place(const Rect& frame);
    Rect frame() const { return frame_; }

  protected:
    const ui::Node& node() const { return node_; }
    int pixels(int points) const { return view_.canvas.pixels(points); }
    // The widest child's.
    WidthRange childrensWidths() const;

    // What is particular to the kind of node.
    virtual WidthRange contentWidths() const = 0;
    virtual int contentHeight(int width) const = 0;
    virtual bool contentExpands() const { return true; }
    // Whether the padding belongs to the control, with what it paints.
    virtual bool isPaddedInside() const { return false; }
    // After the control has got its frame: places what is in it. The rectangle is in the
    // coordinates of the children's frames, inside the padding.
    virtual void arrange(const Rect&) {}

  private:
    WidthRange measureWidths() const;
    int measureHeight(int width) const;

    View view_;
    ui::ElementID element_;
    // Without children.
    ui::Node node_;
    Rect frame_;
    // Each container asks for them more than once.
    mutable std::uint64_t measuredWidths_ = 0;
    mutable WidthRange widths_;
    mutable std::uint64_t measuredHeight_ = 0;
    mutable int heightsWidth_ = 0;
    mutable int height_ = 0;
    std::vector<std::unique_ptr<Box>> children_;
    // Destroyed first: what has the keyboard in it loses it at once, not from child to
    // child.
    std::unique_ptr<Control> control_;
};

}  // namespace vantrel::layout
