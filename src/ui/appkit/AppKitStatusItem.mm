#include "ui/appkit/AppKitStatusItem.h"

#include <utility>

#include "ui/appkit/DrawingImage.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {

AppKitStatusItem::AppKitStatusItem()
    : item_([NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength]), action_(nil) {}

AppKitStatusItem::~AppKitStatusItem() {
    [action_ forget];
    [NSStatusBar.systemStatusBar removeStatusItem:item_];
}

void AppKitStatusItem::setImage(const ui::Drawing& image) { button().image = templateImage(image); }

void AppKitStatusItem::setToolTip(const std::string& text) {
    button().toolTip = textOf(text);
    // A picture says nothing to who doesn't see it.
    button().accessibilityLabel = textOf(text);
}

void AppKitStatusItem::onClick(std::function<void()> action) {
    [action_ forget];
    action_ = [[VantrelAction alloc] initWithFunction:std::move(action)];
    button().target = action_;
    button().action = @selector(perform:);
}

std::optional<double> AppKitStatusItem::screenHeight() const {
    NSScreen* const screen = button().window.screen;
    if (screen == nil) return std::nullopt;
    return screen.visibleFrame.size.height;
}

}  // namespace vantrel::appkit
