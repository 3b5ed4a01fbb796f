// The user's session on the Mac. Main thread, whose run loop brings the news.
// What is registered is taken back when this goes.
#pragma once

#include <memory>

#include "platform/Workspace.h"

namespace vantrel::macos {

class MacWorkspace : public platform::Workspace {
  public:
    MacWorkspace();
    MacWorkspace(const MacWorkspace&) = delete;
    MacWorkspace& operator=(const MacWorkspace&) = delete;
    ~MacWorkspace() override;

    void onWake(std::function<void()> callback) override;

  private:
    struct Observers;
    std::unique_ptr<Observers> observers_;
};

}  // namespace vantrel::macos
