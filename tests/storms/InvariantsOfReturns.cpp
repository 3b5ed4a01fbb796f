// What holds while monitors are brought back to the computer's input, and who may
// touch the spinner and the last error.
#include <algorithm>
#include <charconv>
#include <chrono>

#include "storms/Invariants.h"

namespace vantrel::storms {

using namespace std::chrono_literals;

namespace {

constexpr int attempts = 4;
constexpr auto shortestWait = 20s;
constexpr auto shortestWaitWithPulse = 28s;
constexpr auto settlingTime = 2s;
// With readings that wait for a busy queue.
constexpr auto longestWait = 38s + 80s;

int numberAtEnd(std::string_view text) {
    int number = 0;
    const std::size_t start = text.rfind(' ') + 1;
    std::from_chars(text.data() + start, text.data() + text.size(), number);
    return number;
}

}  // namespace

void Invariants::watchError() {
    errorObserver_ = std::make_unique<runtime::Observer>([this] {
        errorChanged();
        errorObserver_->track([this] { return manager_->lastError(); });
    });
    errorObserver_->track([this] { return manager_->lastError(); });
}

void Invariants::watchSpinner(WatchedModel& model) {
    model.spinnerObserver = std::make_unique<runtime::Observer>([this, &model] {
        spinnerChanged(model);
        model.spinnerObserver->track([&model] { return model.model.lock()->isReturningToMac(); });
    });
    model.spinnerObserver->track([&model] { return model.model.lock()->isReturningToMac(); });
}

WatchedModel* Invariants::only(std::string_view name) {
    WatchedModel* found = nullptr;
    for (const auto& watched : models_) {
        if (watched->owner == 0 || watched->name != name) continue;
        if (found != nullptr) return nullptr;
        found = watched.get();
    }
    return found;
}

void Invariants::lineOfReturn(std::string_view text) {
    WatchedModel* const model = only(text.substr(0, text.find(": ")));
    if (text.find(": return to the Mac replaced by another input") != std::string_view::npos) {
        counts_.note(Seen::supersededReturn);
        if (model != nullptr && model->isSpinning) counts_.note(Seen::returnSupersededByReturn);
    } else if (text.find(": monitor settled on the Mac input") != std::string_view::npos) {
        counts_.note(Seen::settled);
        if (model != nullptr) settled(*model);
    } else if (text.find(": monitor did not take the Mac input, attempt ") != std::string_view::npos) {
        counts_.note(Seen::failedAttempt);
        if (model != nullptr) attemptFailed(*model, numberAtEnd(text));
    } else if (text.find(": switching to Mac input ") != std::string_view::npos) {
        if (model != nullptr) attemptBegins(*model, numberAtEnd(text));
    }
}

void Invariants::lineOfLoad(std::string_view text) {
    const std::string name(text.substr(0, text.find(": ")));
    const std::string_view what = text.substr(std::min(text.size(), name.size()));
    if (what.starts_with(": loading features ")) {
        verdict_.unless(++loads_[name] <= loaders_[name], "a model of " + name + " loads twice at once");
    } else if (what.starts_with(": loaded ")) {
        --loads_[name];
    } else if (what.starts_with(": no DDC answer, marking unavailable")) {
        --loads_[name];
        counts_.note(Seen::unavailable);
    }
}

void Invariants::attemptBegins(WatchedModel& model, int attempt) {
    verdict_.unless(model.isSpinning, model.name + " is being switched back without a spinner");
    verdict_.unless(attempt == model.attempt + 1 && attempt <= attempts,
                    model.name + " is being switched back out of turn");
    model.attempt = attempt;
    model.attemptBegan = scheduler_.now();
    model.hasPulsedSince = false;
}

void Invariants::attemptFailed(WatchedModel& model, int attempt) {
    verdict_.unless(model.isSpinning && attempt == model.attempt,
                    "a superseded return of " + model.name + " still judges its attempt");
    const auto waited = scheduler_.now() - model.attemptBegan;
    const auto least = model.hasPulsedSince ? shortestWaitWithPulse : shortestWait;
    verdict_.unless(waited >= least && waited <= longestWait,
                    model.name + " was not given its time to switch, or too much of it");
}

// Only the current return settles: one that was superseded during its last reading
// must not, neither without a spinner nor in the beginning of the next return.
void Invariants::settled(WatchedModel& model) {
    verdict_.unless(model.isSpinning, "a superseded return of " + model.name + " settled");
    // Three readings and the pauses between them.
    const bool hasWaited = model.attempt >= 1 && scheduler_.now() - model.attemptBegan >= settlingTime;
    verdict_.unless(hasWaited, model.name + " settled without three readings");
}

void Invariants::spinnerChanged(WatchedModel& model) {
    const auto living = model.model.lock();
    if (!living) return;
    model.isSpinning = living->isReturningToMac();
    if (model.isSpinning) {
        counts_.note(Seen::spinnerOn);
        verdict_.unless(living->inputRequest() > model.owner, "a return begins without a request of its own");
        model.owner = living->inputRequest();
        model.attempt = 0;
        model.spinningSince = scheduler_.now();
        return;
    }
    // Another input was picked: its request comes first, then the spinner ends.
    if (living->inputRequest() != model.owner) return;
    const bool hasEnded = lastLineIs(model.name + ": monitor settled on the Mac input") ||
                          lastLineIs(model.name + ": monitor did not take the Mac input, attempt 4") ||
                          lastLineIs("macOS refused to turn output back on for " + model.name);
    verdict_.unless(hasEnded, "the spinner of " + model.name + " went out after \"" + lastLine_ + "\"");
}

void Invariants::errorChanged() {
    const auto& error = manager_->lastError();
    const std::string_view line = lastLine_;
    if (!error) {
        const bool isDismissed = isUserClearing_ || line.ends_with(": monitor settled on the Mac input") ||
                                 line.starts_with("Turning Mac output ");
        verdict_.unless(isDismissed, "the last error was dismissed after \"" + lastLine_ + "\"");
        return;
    }
    if (error->starts_with("The Mac's only")) counts_.note(Seen::onlyActiveDisplay);
    const std::size_t name = error->find(" did not return to the Mac's input");
    if (name == std::string::npos) return;
    counts_.note(Seen::gaveUp);
    const std::string who = error->substr(0, name);
    verdict_.unless(lastLineIs(who + ": monitor did not take the Mac input, attempt 4"),
                    "a return gave up before its last attempt");
    const WatchedModel* const model = only(who);
    verdict_.unless(model == nullptr || model->isSpinning, "a superseded return reported its failure");
}

}  // namespace vantrel::storms
