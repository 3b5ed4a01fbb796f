#include "platform/macos/MacScreens.h"

#import <AppKit/AppKit.h>

namespace vantrel::macos::MacScreens {

std::optional<std::string> name(platform::DisplayID display) {
    for (NSScreen* screen in NSScreen.screens) {
        id number = screen.deviceDescription[@"NSScreenNumber"];
        if (![number isKindOfClass:NSNumber.class]) continue;
        if ([(NSNumber*)number unsignedIntValue] != display) continue;
        const char* text = screen.localizedName.UTF8String;
        if (text != nullptr) return std::string(text);
    }
    return std::nullopt;
}

}  // namespace vantrel::macos::MacScreens
