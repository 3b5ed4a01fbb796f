#include <array>
#include <memory>
#include <string>

#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/ConsoleLog.h"
#include "app/ExitStatus.h"
#include "app/Interface.h"
#include "app/Pictures.h"
#include "platform/posix/FileDefaults.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/StateFolder.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "runtime/RealScheduler.h"
#include "runtime/WakingScheduler.h"
#include "ui/qt/QtApplication.h"
#include "ui/qt/QtLoop.h"
#include "ui/qt/QtToolkit.h"
#include "ui/qt/SingleInstance.h"

namespace vantrel::app {

namespace {

// Qt keeps references to what a program was called with.
struct Arguments {
    std::string program = "vantrel";
    std::array<char*, 2> values{program.data(), nullptr};
    int count = 1;
};

// Where a simulated desk's settings are kept; apart from those for real monitors.
std::unique_ptr<platform::Defaults> makeDefaults(const CommandLine& line, posix::FileSystem& files,
                                                 platform::LogSink& log) {
    const auto folder =
        line.state ? line.state : posix::StateFolder::simulated(posix::StateFolder::environment());
    if (!folder) return std::make_unique<platform::MemoryDefaults>();
    return std::make_unique<posix::FileDefaults>(files, *folder, log);
}

}  // namespace

int Interface::run(const CommandLine& line, simulated::Desk desk, std::ostream& errors) {
    if (!qt::QtApplication::hasDesktop()) {
        errors << "vantrel: there is no desktop to show anything on (neither WAYLAND_DISPLAY nor DISPLAY is "
                  "set); --screenshot DIR draws the interface into files\n";
        return ExitStatus::mistake;
    }
    Arguments arguments;
    qt::QtApplication application(arguments.count, arguments.values.data());
    qt::SingleInstance instance("vantrel-simulated");
    if (!instance.isFirst()) return ExitStatus::success;

    runtime::RealScheduler real;
    runtime::WakingScheduler scheduler(real);
    runtime::MainLoop loop(scheduler);
    const auto log = ConsoleLog::from(line.log, scheduler, errors);
    posix::PosixFileSystem files;
    const auto defaults = makeDefaults(line, files, *log);
    simulated::SimulatedPlatform simulated(std::move(desk), scheduler, loop);
    platform::Platform platform = simulated.platform(*log, *defaults);
    qt::QtToolkit toolkit(loop);
    {
        qt::QtLoop qtLoop(loop, scheduler);
        AppDelegate delegate(platform, toolkit);
        instance.onCall([&delegate] { delegate.applicationShouldHandleReopen(); });
        delegate.applicationDidFinishLaunching();
        qtLoop.run();
        instance.onCall({});
    }
    // What was set last still reaches its monitor.
    scheduler.finishThreads();
    return ExitStatus::success;
}

int Interface::draw(const CommandLine& line, std::ostream& output, std::ostream& errors) {
    Arguments arguments;
    qt::QtApplication::useNoDesktop();
    qt::QtApplication application(arguments.count, arguments.values.data());
    return Pictures::draw(*line.screenshot, output, errors);
}

}  // namespace vantrel::app
