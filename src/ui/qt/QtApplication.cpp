#include "ui/qt/QtApplication.h"

#include <QApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include "runtime/Fatal.h"
#include "ui/qt/Spoken.h"
#include "ui/qt/Symbols.h"

namespace vantrel::qt {
namespace {

// What a signal handler may do is little more than writing into a pipe.
std::array<int, 2> signalPipe = {-1, -1};

extern "C" void tellOfSignal(int) {
    const char token = 0;
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &token, 1);
}

void openSignalPipe() {
    runtime::require(::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) == 0, "no pipe for signals");
    struct sigaction action = {};
    action.sa_handler = tellOfSignal;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
}

void closeSignalPipe() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    for (int& end : signalPipe) ::close(std::exchange(end, -1));
}

}  // namespace

struct QtApplication::Parts {
    Parts(int& argumentCount, char** arguments)
        : application(argumentCount, arguments), signalled(signalPipe[0], QSocketNotifier::Read) {}

    QApplication application;
    QSocketNotifier signalled;
};

QtApplication::QtApplication(int& argumentCount, char** arguments) {
    QApplication::setApplicationName("vantrel");
    QApplication::setDesktopFileName("org.vantrel.Vantrel");
    openSignalPipe();
    parts_ = std::make_unique<Parts>(argumentCount, arguments);
    // It lives in the tray.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(applicationWindowIcon());
    installSpokenWidgets();
    QObject::connect(&parts_->signalled, &QSocketNotifier::activated, &parts_->application, [] {
        char token = 0;
        while (::read(signalPipe[0], &token, 1) > 0) {
        }
        QCoreApplication::quit();
    });
}

QtApplication::~QtApplication() {
    parts_.reset();
    closeSignalPipe();
}

bool QtApplication::hasDesktop() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

void QtApplication::useNoDesktop() { qputenv("QT_QPA_PLATFORM", "offscreen"); }

}  // namespace vantrel::qt
