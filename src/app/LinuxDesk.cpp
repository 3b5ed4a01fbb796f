#include "app/LinuxDesk.h"

#include <utility>

#include "platform/MemoryDefaults.h"
#include "platform/linux/NoDesktop.h"
#include "platform/posix/FileDefaults.h"
#include "platform/posix/StateFolder.h"

namespace vantrel::app {
namespace {

std::unique_ptr<linux::Desktop> findDesktop() { return std::make_unique<linux::NoDesktop>(); }

}  // namespace

LinuxDesk::LinuxDesk(runtime::Scheduler&, runtime::MainLoop& mainLoop)
    : descriptors_(mainLoop),
      system_(linux::Bus::Kind::system, descriptors_, mainLoop),
      session_(system_),
      desktop_(findDesktop()),
      folder_(posix::StateFolder::session(posix::StateFolder::environment()).value_or("")) {}

linux::SessionMemory LinuxDesk::memory(platform::LogSink& log) {
    const auto open = [this, &log]() -> std::unique_ptr<platform::Defaults> {
        if (folder_.empty()) return std::make_unique<platform::MemoryDefaults>();
        return std::make_unique<posix::FileDefaults>(files_, folder_, log);
    };
    return linux::SessionMemory(open, desktop_->identity());
}

std::string LinuxDesk::guardFile() const { return folder_ + "/guard-" + desktop_->identity() + ".lock"; }

}  // namespace vantrel::app
