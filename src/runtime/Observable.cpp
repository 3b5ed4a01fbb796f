#include "runtime/Observable.h"

namespace vantrel::runtime {
namespace {

// The innermost observer that is tracking right now. Models and views live on
// the main thread, the only one that ever reads this.
Observer*& currentObserver() {
    static thread_local Observer* current = nullptr;
    return current;
}

}  // namespace

Observed::~Observed() {
    for (const Registration& registration : registrations_) registration.observer->sources_.erase(this);
}

void Observed::wasRead() const {
    Observer* observer = currentObserver();
    if (observer != nullptr && observer->sources_.insert(this).second)
        registrations_.push_back({observer, changes_});
}

void Observed::hasChanged() {
    const std::uint64_t change = ++changes_;
    // Whoever is told may end other registrations and make new ones; new ones
    // come last and wait for the next change.
    while (!registrations_.empty() && registrations_.front().changes < change) {
        Observer* observer = registrations_.front().observer;
        observer->forget();
        observer->changed_();
    }
}

Observer::Tracking::Tracking(Observer& observer) : outer_(std::exchange(currentObserver(), &observer)) {}

Observer::Tracking::~Tracking() { currentObserver() = outer_; }

void Observer::forget() {
    for (const Observed* source : sources_) {
        std::erase_if(source->registrations_,
                      [this](const auto& registration) { return registration.observer == this; });
    }
    sources_.clear();
}

}  // namespace vantrel::runtime
