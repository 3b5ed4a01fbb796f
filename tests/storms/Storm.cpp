#include "storms/Storm.h"

#include <chrono>

namespace vantrel::storms {

using namespace std::chrono_literals;

namespace {

// Streams of a storm's randomness.
constexpr std::uint64_t deskStream = 0;
constexpr std::uint64_t stepStream = 1;
constexpr std::uint64_t screenStream = 2;

constexpr std::uint64_t fewestSteps = 30;
constexpr std::uint64_t mostSteps = 150;

}  // namespace

std::optional<std::string> Storm::run(std::uint64_t seed, Output output, Counts& counts) {
    Storm storm(seed, output, counts);
    storm.startProgram();
    storm.rage();
    if (!storm.verdict_.isBroken()) storm.calmDown();
    storm.quitProgram();
    if (!storm.verdict_.isBroken()) {
        storm.verdict_.unless(storm.simulated_.liveServices() == 0, "an AV service was not given back");
        storm.verdict_.unless(storm.simulated_.openConfigurations() == 0,
                              "a display configuration was left open");
    }
    const std::chrono::duration<double, std::ratio<3600>> hours = storm.time_.now().time_since_epoch();
    counts.virtualHours += hours.count();
    return storm.verdict_.text();
}

Storm::Storm(std::uint64_t seed, Output output, Counts& counts)
    : counts_(counts),
      random_(simulated::Random(seed).fork(stepStream)),
      looks_(simulated::Random(seed).fork(screenStream)),
      desk_(StormDesk::any(simulated::Random(seed).fork(deskStream), counts)),
      simulated_(desk_.desk, time_, loop_),
      system_(simulated_.platform(log_, defaults_)),
      identifiers_(system_.displays),
      wire_(system_.functions, system_.registry, simulated_.world(), identifiers_, time_, verdict_, counts),
      scheduler_(time_, wire_),
      functions_(wire_),
      baseTables_(identifiers_),
      platform_{scheduler_,        loop_,
                identifiers_,      wire_,
                functions_,        baseTables_,
                defaults_,         system_.workspace,
                system_.localizer, system_.loginItem,
                system_.obstacles, platform::Log(log_)},
      invariants_(simulated_.world(), identifiers_, scheduler_, wire_, defaults_, verdict_, counts) {
    for (const auto& display : desk_.desk.displays) identifiers_.give(display.id, display.id);
    if (!desk_.isClean) wire_.allowMistakes();
    log_.print(output == Output::log);
    log_.onDisplayLine([this](std::string_view text) {
        invariants_.onLine(text);
        if (std::exchange(isCheckPosted_, true)) return;
        loop_.post([this] {
            isCheckPosted_ = false;
            afterEvent();
        });
    });
}

Storm::~Storm() {
    screen_.reset();
    manager_.reset();
    time_.finishThreads();
}

void Storm::rage() {
    const std::uint64_t steps = random_.uniform(fewestSteps, mostSteps);
    for (std::uint64_t each = 0; each < steps && !verdict_.isBroken(); ++each) {
        step();
        afterEvent();
        if (screen_) screen_->look(looks_);
        runFor(someGap());
        invariants_.checkStore();
    }
}

void Storm::calmDown() {
    healEverything();
    if (!verdict_.isBroken()) turnEverythingOn();
    if (!verdict_.isBroken()) expectEverybodyReady();
    if (!verdict_.isBroken()) expectValuesToArrive();
    if (!verdict_.isBroken()) expectReturns();
    if (!verdict_.isBroken()) expectModelsToShowTheTruth();
    if (!verdict_.isBroken()) invariants_.checkStore();
}

}  // namespace vantrel::storms
