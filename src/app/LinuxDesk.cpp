#include "app/LinuxDesk.h"

#include <cstdlib>
#include <utility>

#include "platform/MemoryDefaults.h"
#include "platform/linux/NoDesktop.h"
#include "platform/linux/randr/RandRDesktop.h"
#include "platform/posix/FileDefaults.h"
#include "platform/posix/StateFolder.h"

namespace vantrel::app {
namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::unique_ptr<linux::Desktop> findDesktop(linux::Descriptors& descriptors, runtime::MainLoop& mainLoop) {
    if (const std::string display = variable("DISPLAY"); !display.empty()) {
        if (auto desktop = randr::RandRDesktop::open(display, descriptors, mainLoop)) return desktop;
    }
    return std::make_unique<linux::NoDesktop>();
}

}  // namespace

LinuxDesk::LinuxDesk(runtime::Scheduler&, runtime::MainLoop& mainLoop)
    : descriptors_(mainLoop),
      system_(linux::Bus::Kind::system, descriptors_, mainLoop),
      session_(system_),
      desktop_(findDesktop(descriptors_, mainLoop)),
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
