// Where a tree is shown, as a toolkit makes it.
// Threads: main thread.
#pragma once

#include <functional>
#include <memory>

#include "ui/Node.h"
#include "ui/Renderer.h"
#include "ui/Size.h"
#include "ui/layout/Control.h"
#include "ui/layout/Stage.h"

namespace vantrel::layout {

class Box;

class Canvas {
  public:
    virtual ~Canvas() = default;

    // The control of a node's kind, every kind; on the canvas itself when it has no
    // parent. The caller lets it apply the node. A picker stays with or without a symbol,
    // and a text selectable or not, as it was first.
    virtual std::unique_ptr<Control> make(Stage& stage, ui::ElementID element, const ui::Node& node,
                                          Control* parent) = 0;
    virtual int pixels(double points) const = 0;
    // Of pixels.
    virtual ui::Size points(double width, double height) const = 0;
    // The height that there is for the tree, in pixels.
    virtual int height() const = 0;
    // Keyboard and assistive technology go through the controls in the order of this tree.
    virtual void order(const Box& root) = 0;
    // Runs it on the main thread after what is being done now; never when the canvas is
    // gone.
    virtual void later(std::function<void()> work) = 0;
};

}  // namespace vantrel::layout
