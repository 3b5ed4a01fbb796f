// Waits for file descriptors to have something to read, so that nobody has to poll.
// Threads: main thread.
#pragma once

#include <functional>
#include <memory>

namespace vantrel::linux {

class Descriptors {
  public:
    // Ends the watching when it goes; what was on its way then is dropped.
    class Watch {
      public:
        virtual ~Watch() = default;
    };

    virtual ~Descriptors() = default;
    // `ready` is called on the main thread when there is something to read, again if it
    // leaves some of it, and a last time when the other end has gone. It may end the
    // watch. The descriptor stays the caller's, who keeps it open for as long as the watch.
    virtual std::unique_ptr<Watch> watch(int descriptor, std::function<void()> ready) = 0;
};

}  // namespace vantrel::linux
