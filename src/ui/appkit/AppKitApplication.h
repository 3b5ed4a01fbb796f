// The process as an application of the menu bar: no icon in the Dock, no menu of its
// own, but the keys for editing and closing that every application has.
// Threads: main thread. One at a time.
#pragma once

#include <functional>

namespace vantrel::appkit {

class AppKitApplication {
  public:
    // What the system tells an application, once each but for reopened.
    struct Life {
        // The system is ready for status items and windows.
        std::function<void()> launched;
        // Somebody started it again.
        std::function<void()> reopened;
        // The last thing that is done: the process ends when it returns.
        std::function<void()> terminating;
    };

    // Makes the process one, so that windows and screens can be asked for.
    AppKitApplication();

    // Until the user quits or logs out; the process ends with it.
    void run(Life life);
};

}  // namespace vantrel::appkit
