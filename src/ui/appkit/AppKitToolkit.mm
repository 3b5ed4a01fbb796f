#include "ui/appkit/AppKitToolkit.h"

#import <AppKit/AppKit.h>

#include "ui/appkit/AppKitPopover.h"
#include "ui/appkit/AppKitStatusItem.h"
#include "ui/appkit/AppKitWindow.h"

namespace vantrel::appkit {

std::unique_ptr<ui::StatusItem> AppKitToolkit::makeStatusItem() {
    return std::make_unique<AppKitStatusItem>();
}

std::unique_ptr<ui::Popover> AppKitToolkit::makePopover(ui::StatusItem& item) {
    return std::make_unique<AppKitPopover>(static_cast<AppKitStatusItem&>(item));
}

std::unique_ptr<ui::Window> AppKitToolkit::makeWindow(const std::string& title) {
    return std::make_unique<AppKitWindow>(title);
}

std::optional<double> AppKitToolkit::mainScreenHeight() const {
    NSScreen* const screen = NSScreen.mainScreen;
    if (screen == nil) return std::nullopt;
    return screen.visibleFrame.size.height;
}

void AppKitToolkit::activate() { [NSApplication.sharedApplication activateIgnoringOtherApps:YES]; }

// Not inside what is being done now: the process ends in there.
void AppKitToolkit::terminate() {
    dispatch_async(dispatch_get_main_queue(), ^{
      [NSApplication.sharedApplication terminate:nil];
    });
}

}  // namespace vantrel::appkit
