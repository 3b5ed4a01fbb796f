#include "app/AppDelegate.h"

namespace vantrel::app {

void AppDelegate::applicationDidFinishLaunching() {
    statusItemController_ = std::make_unique<StatusItemController>(platform_, toolkit_, manager());
}

void AppDelegate::applicationShouldHandleReopen() {
    if (statusItemController_) statusItemController_->openPopover();
}

model::DisplayManager& AppDelegate::manager() {
    if (!manager_) manager_ = std::make_unique<model::DisplayManager>(platform_);
    return *manager_;
}

}  // namespace vantrel::app
