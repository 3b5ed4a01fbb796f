#include "platform/macos/MacLoginItem.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

namespace vantrel::macos {
namespace {

std::optional<std::string> reason(BOOL isDone, NSError* _Nullable error) {
    if (isDone) return std::nullopt;
    const char* text = error.localizedDescription.UTF8String;
    return text == nullptr ? "The system gave no reason." : text;
}

}  // namespace

bool MacLoginItem::isEnabled() const {
    return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
}

std::optional<std::string> MacLoginItem::enable() {
    NSError* error = nil;
    const BOOL isDone = [SMAppService.mainAppService registerAndReturnError:&error];
    return reason(isDone, error);
}

std::optional<std::string> MacLoginItem::disable() {
    NSError* error = nil;
    const BOOL isDone = [SMAppService.mainAppService unregisterAndReturnError:&error];
    return reason(isDone, error);
}

}  // namespace vantrel::macos
