#include "platform/macos/MacWorkspace.h"

#import <AppKit/AppKit.h>
#include <utility>
#include <vector>

namespace vantrel::macos {

struct MacWorkspace::Observers {
    std::vector<id<NSObject>> tokens;
    // A notification may be on its way while the observers are taken back.
    std::shared_ptr<int> existence = std::make_shared<int>(0);
};

MacWorkspace::MacWorkspace() : observers_(std::make_unique<Observers>()) {}

MacWorkspace::~MacWorkspace() {
    NSNotificationCenter* center = NSWorkspace.sharedWorkspace.notificationCenter;
    for (id<NSObject> token : observers_->tokens) [center removeObserver:token];
}

void MacWorkspace::onWake(std::function<void()> callback) {
    const std::weak_ptr<int> existence = observers_->existence;
    id<NSObject> token =
        [NSWorkspace.sharedWorkspace.notificationCenter addObserverForName:NSWorkspaceDidWakeNotification
                                                                    object:nil
                                                                     queue:NSOperationQueue.mainQueue
                                                                usingBlock:^(NSNotification*) {
                                                                  if (!existence.expired()) callback();
                                                                }];
    observers_->tokens.push_back(token);
}

}  // namespace vantrel::macos
