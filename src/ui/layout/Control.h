// What a toolkit shows for one node: the thing itself, and the room that it needs
// without its children. Lengths are in the toolkit's pixels.
// Threads: main thread. Lifetime: its Box owns it; it goes before its children's.
#pragma once

#include <vector>

#include "ui/Node.h"
#include "ui/layout/Rect.h"
#include "ui/layout/WidthShares.h"

namespace vantrel::layout {

class Control {
  public:
    virtual ~Control() = default;

    // Shows what the node says; again, with the same node, when the look has changed.
    // Called before anything else.
    virtual void apply(const ui::Node& node) = 0;
    // Its place on what its parent's children lie on. The padding of a stack, a grid, a
    // section or a disclosure belongs to it, with what it paints; of all others not.
    virtual void setFrame(const Rect& frame) = 0;

    // What it needs itself, without padding: a leaf all of it, a section or a disclosure
    // its title. A section is as wide as its rows, whatever its title needs.
    virtual WidthRange widths() const { return {}; }
    virtual int height(int /*width*/) const { return 0; }
    // A leaf: takes all the width that there is.
    virtual bool expands() const { return false; }
    // Whether what is before it in a row takes all the width that there is.
    virtual void setBehindExpanding(bool) {}

    // Containers only, after setFrame.
    // A section: where its panel is, and the tops of the lines between its rows, in its
    // own coordinates.
    virtual void showPanel(const Rect& /*panel*/, const std::vector<int>& /*lines*/) {}
    // A disclosure or a section: where its title is, in its own coordinates; of no height
    // when height() is 0.
    virtual void placeTitle(const Rect& /*title*/) {}
    // A scroll or a form: how large what lies in it is.
    virtual void setContentSize(int /*width*/, int /*height*/) {}
};

}  // namespace vantrel::layout
