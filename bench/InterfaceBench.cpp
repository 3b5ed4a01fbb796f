// How long a person waits for the popover, and for a change to be seen: drawn with Qt
// without a desktop, on simulated monitors. The goals are 50 ms for 4 monitors, 100 ms
// for 16, and 4 ms from a change to its picture.
#include <QApplication>
#include <QPixmap>
#include <QWidget>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "app/AppDelegate.h"
#include "app/NoLog.h"
#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "ui/qt/QtApplication.h"
#include "ui/qt/QtStatusItem.h"
#include "ui/qt/QtToolkit.h"

namespace vantrel {
namespace {

using namespace std::chrono_literals;

simulated::DisplayPlan monitor(platform::DisplayID id) {
    simulated::MonitorPlan monitor;
    monitor.capabilities =
        "(prot(monitor)type(lcd)vcp(10 12 14(05 08 0B) 60(0F 11 12) 62 8D(01 02))mccs_ver(2.1))";
    for (const std::uint8_t code : std::initializer_list<std::uint8_t>{0x10, 0x12, 0x62})
        monitor.features[code] = {0, 50, 100, false};
    monitor.features[0x14] = {1, 5, 11, false};
    monitor.features[0x8D] = {1, 2, 2, false};
    monitor.inputs = simulated::InputPlan{.computer = 0x0F, .shown = 0x0F, .available = {0x0F, 0x11, 0x12}};
    simulated::DisplayPlan display;
    display.id = id;
    display.vendor = 1;
    display.product = id;
    display.serial = id;
    display.name = "Bench " + std::to_string(id);
    display.monitor = monitor;
    return display;
}

simulated::Desk deskOf(platform::DisplayID monitors) {
    simulated::Desk desk;
    for (platform::DisplayID id = 1; id <= monitors; ++id) desk.displays.push_back(monitor(id));
    desk.registry = simulated::defaultRegistry(desk.displays);
    return desk;
}

// Qt can only be made once, and nothing is drawn without it.
qt::QtApplication& application() {
    static char name[] = "vantrel";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    static const bool isReady = (qt::QtApplication::useNoDesktop(), true);
    static qt::QtApplication application(count, arguments);
    benchmark::DoNotOptimize(isReady);
    return application;
}

// A desktop with a tray, as far as the program can tell.
class TrayItem : public qt::QtStatusItem {
  public:
    using QtStatusItem::QtStatusItem;
    bool isHosted() const override { return true; }
};

class TrayToolkit : public qt::QtToolkit {
  public:
    explicit TrayToolkit(runtime::MainLoop& loop) : QtToolkit(loop), loop_(loop) {}
    std::unique_ptr<ui::StatusItem> makeStatusItem() override { return std::make_unique<TrayItem>(loop_); }

  private:
    runtime::MainLoop& loop_;
};

struct Rig {
    explicit Rig(platform::DisplayID monitors) : simulated(deskOf(monitors), time, loop) {
        application();
        delegate = std::make_unique<app::AppDelegate>(platform, toolkit);
        delegate->applicationDidFinishLaunching();
        loop.runFor(1min);
        draw();
    }
    ~Rig() {
        delegate.reset();
        time.finishThreads();
    }

    // What is due in the program, then in Qt: layouts and pictures.
    void draw() {
        loop.runDue();
        QCoreApplication::processEvents();
        loop.runDue();
        QCoreApplication::processEvents();
    }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    simulated::SimulatedPlatform simulated;
    app::NoLog log;
    platform::Platform platform = simulated.platform(log);
    TrayToolkit toolkit{loop};
    std::unique_ptr<app::AppDelegate> delegate;
};

// Qt draws when the window system is ready for it, and only what has changed; here all
// that is open is drawn, whole.
void drawWindows() {
    QCoreApplication::processEvents();
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) benchmark::DoNotOptimize(window->grab());
    }
}

void clickToFirstPicture(benchmark::State& state) {
    Rig rig(static_cast<platform::DisplayID>(state.range(0)));
    for (auto _ : state) {
        rig.delegate->statusItemController()->togglePopover();
        drawWindows();
        state.PauseTiming();
        rig.loop.runFor(10s);
        rig.delegate->statusItemController()->togglePopover();
        rig.draw();
        state.ResumeTiming();
    }
}
BENCHMARK(clickToFirstPicture)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond);

void changeToPicture(benchmark::State& state) {
    Rig rig(static_cast<platform::DisplayID>(state.range(0)));
    rig.delegate->statusItemController()->togglePopover();
    rig.loop.runFor(10s);
    rig.draw();
    const auto brightness = rig.delegate->manager().externals().at(0)->feature(0x10);
    std::uint16_t value = 0;
    std::chrono::duration<double, std::milli> building{0};
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        brightness->current.set(static_cast<std::uint16_t>(++value % 100));
        rig.loop.runDue();
        building += std::chrono::steady_clock::now() - start;
        drawWindows();
    }
    state.counters["building_ms"] = building.count() / static_cast<double>(state.iterations());
}
BENCHMARK(changeToPicture)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel
