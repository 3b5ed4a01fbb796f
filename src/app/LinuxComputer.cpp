// A computer that runs Linux.
#include <filesystem>
#include <system_error>
#include <utility>

#include "app/CommandLine.h"
#include "app/LinuxDesk.h"
#include "app/LinuxGuard.h"
#include "app/ThisComputer.h"
#include "platform/EnglishLocalizer.h"
#include "platform/MemoryDefaults.h"
#include "platform/linux/GuardProcess.h"
#include "platform/linux/JournalLog.h"
#include "platform/linux/KernelI2C.h"
#include "platform/linux/KernelNodes.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/UdevEvents.h"
#include "platform/posix/AutostartEntry.h"
#include "platform/posix/FileDefaults.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/StateFolder.h"

namespace vantrel::app {
namespace {

// Wherever it was started from, and whatever it is called there.
std::string ownPath() {
    std::error_code error;
    const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? "vantrel" : path.string();
}

class LinuxComputer : public Computer {
  public:
    LinuxComputer(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop)
        : scheduler_(scheduler),
          mainLoop_(mainLoop),
          desk_(scheduler, mainLoop, true),
          events_(desk_.descriptors()) {}

    platform::LogSink* systemLog() override { return &journal_; }

    platform::Platform platform(platform::LogSink& log) override {
        const auto environment = posix::StateFolder::environment();
        if (const auto folder = posix::StateFolder::real(environment)) {
            defaults_ = std::make_unique<posix::FileDefaults>(files_, *folder, log);
        } else {
            defaults_ = std::make_unique<platform::MemoryDefaults>();
        }
        loginItem_ = std::make_unique<posix::AutostartEntry>(files_, environment, localizer_, ownPath());
        memory_ = std::make_unique<linux::SessionMemory>(desk_.memory(log));
        platform_ = std::make_unique<linux::LinuxPlatform>(
            linux::LinuxPlatform::Parts{sysfs_, devices_, nodes_, events_, desk_.session(), desk_.desktop(),
                                        *memory_, guard_, *defaults_, localizer_, *loginItem_},
            log, scheduler_, mainLoop_);
        return platform_->platform();
    }

  private:
    runtime::Scheduler& scheduler_;
    runtime::MainLoop& mainLoop_;
    linux::JournalLog journal_;
    LinuxDesk desk_;
    const linux::Sysfs sysfs_;
    linux::KernelI2C devices_;
    linux::KernelNodes nodes_;
    linux::UdevEvents events_;
    linux::GuardProcess guard_{{ownPath(), CommandLine::guardOutputs}};
    posix::PosixFileSystem files_;
    platform::EnglishLocalizer localizer_;
    std::unique_ptr<platform::Defaults> defaults_;
    std::unique_ptr<platform::LoginItem> loginItem_;
    std::unique_ptr<linux::SessionMemory> memory_;
    std::unique_ptr<linux::LinuxPlatform> platform_;
};

}  // namespace

std::unique_ptr<Computer> ThisComputer::make(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop) {
    return std::make_unique<LinuxComputer>(scheduler, mainLoop);
}

bool ThisComputer::isKnown() { return true; }

int ThisComputer::guardOutputs() { return LinuxGuard::run(); }

}  // namespace vantrel::app
