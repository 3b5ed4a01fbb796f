// Another session with a record of who listens to it.
#pragma once

#include "platform/Workspace.h"
#include "support/CallRecord.h"

namespace vantrel::test {

class WatchedWorkspace : public platform::Workspace {
  public:
    WatchedWorkspace(platform::Workspace& real, CallRecord& record) : real_(real), record_(record) {}

    void onWake(std::function<void()> callback) override {
        record_.add("listen to waking");
        real_.onWake(std::move(callback));
    }

  private:
    platform::Workspace& real_;
    CallRecord& record_;
};

}  // namespace vantrel::test
