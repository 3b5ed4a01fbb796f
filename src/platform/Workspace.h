// The user's session: what happens to the computer as a whole.
// Threads: main thread.
#pragma once

#include <functional>

namespace vantrel::platform {

class Workspace {
  public:
    virtual ~Workspace() = default;
    // Called on the main thread each time the computer has woken from sleep,
    // for the life of the process.
    virtual void onWake(std::function<void()>) = 0;
};

}  // namespace vantrel::platform
