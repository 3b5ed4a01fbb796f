#include "ui/qt/QtLoop.h"

#include <QAbstractEventDispatcher>
#include <QBasicTimer>
#include <QCoreApplication>
#include <QEvent>
#include <QTimerEvent>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <limits>
#include <optional>

namespace vantrel::qt {
namespace {

const QEvent::Type wakeEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

}  // namespace

class QtLoop::Pump : public QObject {
  public:
    Pump(runtime::MainLoop& loop, runtime::WakingScheduler& scheduler) : loop_(loop), scheduler_(scheduler) {
        // Whatever Qt has been doing may have made something due.
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                         [this] { arm(); });
    }

    // Any thread. One event is enough for many.
    void wake() {
        if (!isWoken_.exchange(true)) QCoreApplication::postEvent(this, new QEvent(wakeEvent));
    }
    bool hasTimer() const { return timer_.isActive(); }

  protected:
    bool event(QEvent* event) override {
        if (event->type() != wakeEvent) return QObject::event(event);
        isWoken_ = false;
        arm();
        return true;
    }
    void timerEvent(QTimerEvent*) override {
        stop();
        loop_.runDue();
        arm();
    }

  private:
    void stop() {
        timer_.stop();
        armedFor_.reset();
    }

    // Due work has a timer of no length, so that Qt's own events get their turn
    // between two passes.
    void arm() {
        const std::optional<runtime::MonotonicTime> due = loop_.nextDue();
        if (due == armedFor_ && due.has_value() == timer_.isActive()) return;
        stop();
        if (!due) return;
        const std::int64_t wait =
            std::chrono::ceil<std::chrono::milliseconds>(*due - scheduler_.now()).count();
        constexpr std::int64_t longest = std::numeric_limits<int>::max();
        timer_.start(static_cast<int>(std::clamp<std::int64_t>(wait, 0, longest)), Qt::PreciseTimer, this);
        armedFor_ = due;
    }

    runtime::MainLoop& loop_;
    runtime::WakingScheduler& scheduler_;
    QBasicTimer timer_;
    std::optional<runtime::MonotonicTime> armedFor_;
    std::atomic<bool> isWoken_ = false;
};

QtLoop::QtLoop(runtime::MainLoop& loop, runtime::WakingScheduler& scheduler)
    : scheduler_(scheduler), pump_(std::make_unique<Pump>(loop, scheduler)) {
    scheduler_.onOpen([pump = pump_.get()] { pump->wake(); });
    pump_->wake();
}

QtLoop::~QtLoop() { scheduler_.onOpen({}); }

void QtLoop::run() { QCoreApplication::exec(); }
bool QtLoop::hasTimer() const { return pump_->hasTimer(); }

}  // namespace vantrel::qt
