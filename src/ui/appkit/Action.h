// The target of a control or a menu item: calls a function. Controls don't own their
// target, so who set it keeps it.
// Threads: main thread.
#pragma once

#import <Foundation/Foundation.h>
#include <functional>

@interface VantrelAction : NSObject
- (nonnull instancetype)initWithFunction:(std::function<void()>)function;
// The action of whoever has this as its target.
- (void)perform:(nullable id)sender;
// What it calls may be gone from now on.
- (void)forget;
@end

namespace vantrel::appkit {

using Action = VantrelAction;

}  // namespace vantrel::appkit
