// How a storm passes: its program, its steps, the time between them.
#include <chrono>

#include "storms/Storm.h"

namespace vantrel::storms {

using namespace std::chrono_literals;

namespace {

// What may take longest is four attempts to bring a monitor back, on a queue that
// loads from a monitor that hardly answers.
constexpr auto idlePatience = 15min;
constexpr auto idleStep = 5s;
// The models' own last deferred work: values read again 8 s after an input switch.
constexpr auto deferredWork = 15s;

}  // namespace

void Storm::startProgram() {
    manager_ = std::make_unique<model::DisplayManager>(platform_);
    invariants_.begin(*manager_);
    if (looks_.chance(0.7)) screen_ = std::make_unique<StormScreen>(*manager_, platform_);
}

// Also the end of a process: the threads do what was asked of them before.
void Storm::quitProgram() {
    screen_.reset();
    invariants_.end();
    manager_.reset();
    scheduler_.finishThreads();
    if (!verdict_.isBroken()) checkWhatWasSent();
    asked_.clear();
    wire_.endWorkers();
}

void Storm::step() {
    if (random_.chance(0.6)) {
        act();
    } else {
        happen();
    }
}

void Storm::nextStep(const std::string& what) {
    ++step_;
    verdict_.isAt(step_, what);
    log_.note("storm", std::to_string(step_) + " " + what);
}

void Storm::runFor(runtime::MonotonicClock::duration duration) {
    loop_.runFor(duration);
    afterEvent();
    checkScreen();
}

void Storm::checkScreen() {
    if (screen_ && screen_->check(verdict_)) counts_.note(Seen::screenCompared);
}

void Storm::afterEvent() { invariants_.check(); }

// Mostly things come one upon the other, sometimes nothing happens for long.
simulated::Duration Storm::someGap() {
    const auto kind = random_.uniform(0, 99);
    if (kind < 15) return simulated::Duration::zero();
    if (kind < 40) return random_.duration(0ms, 1s);
    if (kind < 70) return random_.duration(0s, 8s);
    if (kind < 90) return random_.duration(0s, 60s);
    return random_.duration(1min, 40min);
}

bool Storm::runUntilIdle() {
    const auto end = time_.now() + idlePatience;
    while (manager_->runningTasks() > 0 && time_.now() < end) runFor(idleStep);
    runFor(deferredWork);
    while (manager_->runningTasks() > 0 && time_.now() < end) runFor(idleStep);
    return manager_->runningTasks() == 0;
}

// However the monitors took it: a worker sends the last value asked for of each
// code. The input is also written by the program itself.
void Storm::checkWhatWasSent() {
    if (!desk_.hasDDC) return;
    for (const auto& [worker, values] : asked_) {
        const Wire::Values& sent = wire_.worker(worker).sent;
        for (const auto& [code, value] : values) {
            const auto found = sent.find(code);
            verdict_.unless(found != sent.end() && found->second == value,
                            "a worker did not send the last value asked for of code " + std::to_string(code));
        }
    }
}

}  // namespace vantrel::storms
