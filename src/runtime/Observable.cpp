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
    for (Observer* observer : observers_) observer->sources_.erase(this);
}

void Observed::wasRead() const {
    Observer* observer = currentObserver();
    if (observer != nullptr && observer->sources_.insert(this).second) observers_.push_back(observer);
}

void Observed::hasChanged() {
    // An observer that reads again from inside its notification waits for the next change.
    for (std::size_t left = observers_.size(); left > 0 && !observers_.empty(); --left) {
        Observer* observer = observers_.front();
        observer->forget();
        observer->changed_();
    }
}

Observer::Tracking::Tracking(Observer& observer) : outer_(std::exchange(currentObserver(), &observer)) {}

Observer::Tracking::~Tracking() { currentObserver() = outer_; }

void Observer::forget() {
    for (const Observed* source : sources_) std::erase(source->observers_, this);
    sources_.clear();
}

}  // namespace vantrel::runtime
