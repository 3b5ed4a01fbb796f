// What the program's two processes on a Linux desktop share: the desktop itself, the
// user's session, and the memory of what has to be undone there.
// Threads: main thread. Lifetime: scheduler and loop outlive it.
#pragma once

#include <memory>
#include <string>

#include "platform/LogSink.h"
#include "platform/linux/Bus.h"
#include "platform/linux/DescriptorThread.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/LoginManager.h"
#include "platform/linux/SessionMemory.h"
#include "platform/posix/PosixFileSystem.h"
#include "runtime/MainLoop.h"
#include "runtime/Scheduler.h"

namespace vantrel::app {

class LinuxDesk {
  public:
    // Some desktops let one program only have their transfer tables: who won't use them
    // leaves them to others.
    LinuxDesk(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop, bool wantsTables);
    LinuxDesk(const LinuxDesk&) = delete;
    LinuxDesk& operator=(const LinuxDesk&) = delete;

    linux::Descriptors& descriptors() { return descriptors_; }
    linux::Session& session() { return session_; }
    linux::Desktop& desktop() { return *desktop_; }
    // Its trouble with files goes to `log`, which outlives it.
    linux::SessionMemory memory(platform::LogSink& log);
    // A file for the guard of this desktop to lock.
    std::string guardFile() const;

  private:
    posix::PosixFileSystem files_;
    linux::DescriptorThread descriptors_;
    linux::Bus system_;
    linux::LoginManager session_;
    std::unique_ptr<linux::Desktop> desktop_;
    std::string folder_;
};

}  // namespace vantrel::app
