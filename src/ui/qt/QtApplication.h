// Qt itself: exists before anything that uses it, and after. Its loop ends when the
// system asks the program to end (SIGINT, SIGTERM).
// Threads: main thread.
#pragma once

#include <memory>

namespace vantrel::qt {

class QtApplication {
  public:
    // Takes Qt's own arguments out.
    QtApplication(int& argumentCount, char** arguments);
    QtApplication(const QtApplication&) = delete;
    QtApplication& operator=(const QtApplication&) = delete;
    ~QtApplication();

    // Whether there is a desktop to show something on; without one, Qt would stop
    // the program.
    static bool hasDesktop();
    // Before the application is made: for drawing into files.
    static void useNoDesktop();

  private:
    struct Parts;

    std::unique_ptr<Parts> parts_;
};

}  // namespace vantrel::qt
