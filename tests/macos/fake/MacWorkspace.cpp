#include "platform/macos/MacWorkspace.h"

#include "macos/fake/FakeMac.h"

namespace vantrel::macos {

struct MacWorkspace::Observers {
    std::shared_ptr<int> existence = std::make_shared<int>(0);
};

MacWorkspace::MacWorkspace() : observers_(std::make_unique<Observers>()) {}
MacWorkspace::~MacWorkspace() = default;

void MacWorkspace::onWake(std::function<void()> callback) {
    fake::FakeMac::current().desk().workspace.onWake(
        [callback = std::move(callback), existence = std::weak_ptr(observers_->existence)] {
            if (!existence.expired()) callback();
        });
}

}  // namespace vantrel::macos
