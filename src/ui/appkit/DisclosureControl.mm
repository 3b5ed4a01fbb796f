#include "ui/appkit/DisclosureControl.h"

#include <algorithm>

#include "ui/appkit/FlippedView.h"
#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"

@interface VantrelUnfocusedButton : NSButton
@end

@implementation VantrelUnfocusedButton

- (BOOL)acceptsFirstResponder {
    return NO;
}

@end

namespace vantrel::appkit {
namespace {

constexpr int titleGap = 4;

}  // namespace

DisclosureControl::DisclosureControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[FlippedView alloc] initWithFrame:NSZeroRect]),
      triangle_([[NSButton alloc] initWithFrame:NSZeroRect]),
      title_([[VantrelUnfocusedButton alloc] initWithFrame:NSZeroRect]),
      action_([[VantrelAction alloc] initWithFunction:[this] {
          send(ui::Toggled{!std::get<ui::Disclosure>(this->node().element).isOpen});
      }]) {
    triangle_.bezelStyle = NSBezelStyleDisclosure;
    triangle_.buttonType = NSButtonTypePushOnPushOff;
    triangle_.title = @"";
    title_.bordered = NO;
    title_.alignment = NSTextAlignmentLeft;
    title_.font = Look::font(ui::Font::body);
    title_.accessibilityElement = NO;
    for (NSButton* const button in @[ triangle_, title_ ]) {
        button.target = action_;
        button.action = @selector(perform:);
        [view() addSubview:button];
    }
}

DisclosureControl::~DisclosureControl() { [action_ forget]; }

void DisclosureControl::show(const ui::Node& node) {
    title_.title = textOf(std::get<ui::Disclosure>(node.element).title);
    showState();
}

void DisclosureControl::showState() {
    const bool isOpen = std::get<ui::Disclosure>(node().element).isOpen;
    triangle_.state = isOpen ? NSControlStateValueOn : NSControlStateValueOff;
}

layout::WidthRange DisclosureControl::widths() const {
    const int triangle = naturalWidths(triangle_).natural;
    return {triangle, triangle + titleGap + naturalWidths(title_).natural};
}

int DisclosureControl::height(int) const { return std::max(naturalHeight(triangle_), naturalHeight(title_)); }

void DisclosureControl::placeTitle(const layout::Rect& title) {
    const int triangle = naturalWidths(triangle_).natural;
    place(triangle_, {title.x, title.y, triangle, title.height});
    place(title_, {title.x + triangle + titleGap, title.y, title.width - triangle - titleGap, title.height});
}

}  // namespace vantrel::appkit
