#include <array>
#include <string>
#include <utility>

#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/Computers.h"
#include "app/ExitStatus.h"
#include "app/Interface.h"
#include "app/Pictures.h"
#include "app/ProgramLog.h"
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

}  // namespace

int Interface::run(const CommandLine& line, std::optional<simulated::Desk> desk, std::ostream& errors) {
    if (!qt::QtApplication::hasDesktop()) {
        errors << "vantrel: there is no desktop to show anything on (neither WAYLAND_DISPLAY nor DISPLAY is "
                  "set); --screenshot DIR draws the interface into files\n";
        return ExitStatus::mistake;
    }
    Arguments arguments;
    qt::QtApplication application(arguments.count, arguments.values.data());
    qt::SingleInstance instance(desk ? "vantrel-simulated" : "vantrel");
    if (!instance.isFirst()) return ExitStatus::success;

    runtime::RealScheduler real;
    runtime::WakingScheduler scheduler(real);
    runtime::MainLoop loop(scheduler);
    auto computer = Computers::make(line, std::move(desk), Computers::Settings::kept, scheduler, loop);
    ProgramLog log(computer->systemLog(), line.log, scheduler, errors);
    platform::Platform platform = computer->platform(log);
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
    computer.reset();
    return ExitStatus::success;
}

int Interface::draw(const CommandLine& line, std::ostream& output, std::ostream& errors) {
    Arguments arguments;
    qt::QtApplication::useNoDesktop();
    qt::QtApplication application(arguments.count, arguments.values.data());
    return Pictures::draw(*line.screenshot, output, errors);
}

}  // namespace vantrel::app
