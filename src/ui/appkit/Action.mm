#include "ui/appkit/Action.h"

#include <utility>

@implementation VantrelAction {
    std::function<void()> _function;
}

- (instancetype)initWithFunction:(std::function<void()>)function {
    self = [super init];
    if (self != nil) _function = std::move(function);
    return self;
}

- (void)perform:(id)sender {
    (void)sender;
    // What it does may be the end of this.
    const auto function = _function;
    if (function) function();
}

- (void)forget {
    _function = nullptr;
}

@end
