// A node's view, and what all kinds of nodes have in common: name, help, whether it
// can be used, the menu that a secondary click opens, and its place.
//
// Threads: main thread. Lifetime: the stage outlives it. Its view lives on until
// AppKit has done with it, but nothing that happens to it is an event any more.
#pragma once

#import <AppKit/AppKit.h>
#include <string>

#include "ui/Node.h"
#include "ui/appkit/Action.h"
#include "ui/appkit/Lifeline.h"
#include "ui/layout/Control.h"
#include "ui/layout/Stage.h"

namespace vantrel::appkit {

class AppKitControl : public layout::Control {
  public:
    AppKitControl(layout::Stage& stage, ui::ElementID element, NSView* _Nonnull view);
    AppKitControl(const AppKitControl&) = delete;
    AppKitControl& operator=(const AppKitControl&) = delete;
    ~AppKitControl() override;

    NSView* _Nonnull view() const { return view_; }
    // What the children's views lie on.
    virtual NSView* _Nonnull childrenView() const { return view_; }
    // What the keyboard goes to and assistive technology names.
    virtual NSView* _Nonnull operatedView() const { return view_; }

    // Whether the keyboard can go to it.
    bool takesKeyboard() const;

    void apply(const ui::Node& node) final;
    void setFrame(const layout::Rect& frame) override;

  protected:
    // What is particular to the kind of node.
    virtual void show(const ui::Node& node) = 0;

    const ui::Node& node() const { return node_; }
    void send(const ui::Event& event) const { stage_.send(element_, event); }
    const Lifeline& lifeline() const { return lifeline_; }
    // A text that has no room is its own help, unless the node has another.
    void showWhole(bool isCut, const std::string& text);

  private:
    void setToolTip(const std::string& text);
    void showContextMenu(const std::vector<std::string>& items);

    layout::Stage& stage_;
    ui::ElementID element_;
    NSView* _Nonnull view_;
    // Without children.
    ui::Node node_;
    std::vector<std::string> contextMenu_;
    Lifeline lifeline_;
};

// Of a control that AppKit draws: its size without the room for its shadow.
layout::WidthRange naturalWidths(NSView* _Nonnull view);
int naturalHeight(NSView* _Nonnull view);
// Of a label's text and the margin that the label keeps around it, in lines of a width.
NSSize textSize(NSTextField* _Nonnull label, double width);
// More than any text is wide or high.
inline constexpr double unlimited = 10'000;
// The view's place so that what is seen of it fills the rectangle.
void place(NSView* _Nonnull view, const layout::Rect& rectangle);
NSRect rectangleOf(const layout::Rect& rectangle);

}  // namespace vantrel::appkit
