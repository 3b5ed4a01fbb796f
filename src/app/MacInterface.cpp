#include <memory>
#include <utility>

#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/Computers.h"
#include "app/ExitStatus.h"
#include "app/Interface.h"
#include "app/ProgramLog.h"
#include "platform/macos/MacRunLoop.h"
#include "platform/macos/MacScheduler.h"
#include "runtime/RealScheduler.h"
#include "runtime/WakingScheduler.h"
#include "ui/appkit/AppKitApplication.h"
#include "ui/appkit/AppKitToolkit.h"

namespace vantrel::app {

// The system starts no second instance of a bundle: it tells the first one.
int Interface::run(const CommandLine& line, std::optional<simulated::Desk> desk, std::ostream& errors) {
    appkit::AppKitApplication application;
    runtime::RealScheduler real;
    macos::MacScheduler threads(real);
    runtime::WakingScheduler scheduler(threads);
    runtime::MainLoop loop(scheduler);
    const auto computer = Computers::make(line, std::move(desk), Computers::Settings::kept, scheduler, loop);
    ProgramLog log(computer->systemLog(), line.log, scheduler, errors);
    platform::Platform platform = computer->platform(log);
    appkit::AppKitToolkit toolkit;
    macos::MacRunLoop runLoop(loop, scheduler);
    auto delegate = std::make_unique<AppDelegate>(platform, toolkit);
    application.run({
        .launched = [&delegate] { delegate->applicationDidFinishLaunching(); },
        .reopened = [&delegate] { delegate->applicationShouldHandleReopen(); },
        .terminating =
            [&delegate, &scheduler] {
                delegate.reset();
                // What was set last still reaches its monitor.
                scheduler.finishThreads();
            },
    });
    return ExitStatus::success;
}

int Interface::draw(const CommandLine&, std::ostream&, std::ostream& errors) {
    errors << "vantrel: this build can't draw into files; one with Qt can (cmake -D VANTREL_QT=ON)\n";
    return ExitStatus::mistake;
}

}  // namespace vantrel::app
