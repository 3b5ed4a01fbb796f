// The computer waking up, by the word of its login manager. Main thread.
#pragma once

#include <utility>

#include "platform/Workspace.h"
#include "platform/linux/Session.h"

namespace vantrel::linux {

class LinuxWorkspace : public platform::Workspace {
  public:
    // The session outlives it.
    explicit LinuxWorkspace(Session& session) : session_(session) {}
    void onWake(std::function<void()> woken) override { session_.onWake(std::move(woken)); }

  private:
    Session& session_;
};

}  // namespace vantrel::linux
