#include "app/LinuxDesk.h"

#include <cstdlib>
#include <utility>

#include "platform/MemoryDefaults.h"
#include "platform/linux/DesktopChoice.h"
#include "platform/linux/mutter/MutterDesktop.h"
#include "platform/linux/randr/RandRDesktop.h"
#include "platform/linux/wayland/WaylandDesktop.h"
#include "platform/posix/FileDefaults.h"
#include "platform/posix/StateFolder.h"

namespace vantrel::app {
namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

// Where a Wayland compositor answers, the X server is a guest on it, whose outputs are
// the compositor's inventions.
std::unique_ptr<linux::Desktop> findDesktop(linux::Descriptors& descriptors, runtime::MainLoop& mainLoop,
                                            const runtime::Clock& clock, bool wantsTables) {
    bool isWayland = false;
    const auto onWayland = [&]() -> std::unique_ptr<linux::Desktop> {
        const std::string display = variable("WAYLAND_DISPLAY");
        if (display.empty()) return nullptr;
        auto desktop = wayland::WaylandDesktop::open({display, variable("XDG_CURRENT_DESKTOP"), wantsTables},
                                                     descriptors, clock);
        isWayland = desktop != nullptr;
        return desktop;
    };
    const auto onX = [&]() -> std::unique_ptr<linux::Desktop> {
        const std::string display = variable("DISPLAY");
        if (isWayland || display.empty()) return nullptr;
        return randr::RandRDesktop::open(display, descriptors, mainLoop);
    };
    const auto onMutter = [&] { return mutter::MutterDesktop::open(descriptors, mainLoop); };
    return linux::DesktopChoice::choose({onWayland, onX, onMutter});
}

}  // namespace

LinuxDesk::LinuxDesk(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop, bool wantsTables)
    : descriptors_(mainLoop),
      system_(linux::Bus::Kind::system, descriptors_, mainLoop),
      session_(system_),
      desktop_(findDesktop(descriptors_, mainLoop, scheduler, wantsTables)),
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
