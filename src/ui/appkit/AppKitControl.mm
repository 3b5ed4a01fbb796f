#include "ui/appkit/AppKitControl.h"

#include <algorithm>
#include <cmath>

#include "ui/appkit/Menus.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

// AppKit may be at work in the view further up the stack, also in a loop of its own
// that tracks the pointer: until that has ended, the view stays, unseen, in its window.
void bury(NSView* view) {
    NSWindow* const window = view.window;
    NSResponder* const focused = window.firstResponder;
    // Otherwise the keyboard would go to whatever comes next.
    if ([focused isKindOfClass:NSView.class] && [static_cast<NSView*>(focused) isDescendantOf:view]) {
        [window makeFirstResponder:nil];
    }
    view.hidden = YES;
    [view performSelector:@selector(removeFromSuperview)
               withObject:nil
               afterDelay:0
                  inModes:@[ NSDefaultRunLoopMode ]];
}

}  // namespace

AppKitControl::AppKitControl(layout::Stage& stage, ui::ElementID element, NSView* view)
    : stage_(stage), element_(element), view_(view), node_{.element = ui::Spacer{}} {}

AppKitControl::~AppKitControl() { bury(view_); }

void AppKitControl::apply(const ui::Node& node) {
    node_ = node;
    NSView* const operated = operatedView();
    operated.identifier = textOf(node.id);
    operated.accessibilityIdentifier = textOf(node.id);
    // A container without a name is no element of its own.
    if (!node.accessibility.name.empty()) operated.accessibilityLabel = textOf(node.accessibility.name);
    if (!node.accessibility.description.empty()) {
        operated.accessibilityHelp = textOf(node.accessibility.description);
    }
    setToolTip(node.help);
    if ([operated isKindOfClass:NSControl.class]) {
        static_cast<NSControl*>(operated).enabled = node.isEnabled;
    }
    showContextMenu(node.contextMenu);
    show(node);
}

bool AppKitControl::takesKeyboard() const {
    const auto* text = std::get_if<ui::Text>(&node_.element);
    return ui::isInteractive(node_) || (text != nullptr && text->isSelectable);
}

void AppKitControl::setToolTip(const std::string& text) {
    NSString* const tip = text.empty() ? nil : textOf(text);
    view_.toolTip = tip;
    operatedView().toolTip = tip;
}

void AppKitControl::showContextMenu(const std::vector<std::string>& items) {
    // An open menu stays open.
    if (items == contextMenu_) return;
    contextMenu_ = items;
    if (items.empty()) {
        view_.menu = nil;
        return;
    }
    view_.menu = menuOf(items, lifeline_.guard([this](std::size_t item) { send(ui::ContextChosen{item}); }));
}

void AppKitControl::setFrame(const layout::Rect& frame) { place(view_, frame); }

void AppKitControl::showWhole(bool isCut, const std::string& text) {
    if (node_.help.empty()) setToolTip(isCut ? text : std::string());
}

layout::WidthRange naturalWidths(NSView* view) {
    const int width = static_cast<int>(std::ceil(view.intrinsicContentSize.width));
    return {width, width};
}

int naturalHeight(NSView* view) { return static_cast<int>(std::ceil(view.intrinsicContentSize.height)); }

NSSize textSize(NSTextField* label, double width) {
    return [label.cell cellSizeForBounds:NSMakeRect(0, 0, std::min(width, unlimited), unlimited)];
}

void place(NSView* view, const layout::Rect& rectangle) {
    view.frame = [view frameForAlignmentRect:rectangleOf(rectangle)];
}

NSRect rectangleOf(const layout::Rect& rectangle) {
    return NSMakeRect(rectangle.x, rectangle.y, std::max(0, rectangle.width), std::max(0, rectangle.height));
}

}  // namespace vantrel::appkit
