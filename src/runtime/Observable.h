// A value whose readers are told when it changes. Main thread.
//
// Reading one inside Observer::track() registers the observer; the next set()
// to a different value tells it, once. Setting an equal value is silent.
#pragma once

#include <cstdint>
#include <functional>
#include <unordered_set>
#include <utility>
#include <vector>

namespace vantrel::runtime {

class Observer;

// The registration shared by every Observable, whatever its value.
class Observed {
  public:
    Observed() = default;
    Observed(const Observed&) = delete;
    Observed& operator=(const Observed&) = delete;
    ~Observed();

  protected:
    void wasRead() const;
    void hasChanged();

  private:
    friend class Observer;

    struct Registration {
        Observer* observer;
        // How many changes came before it: it is told of the next one.
        std::uint64_t changes;
    };

    // In the order in which they came, so that they are told in that order.
    mutable std::vector<Registration> registrations_;
    std::uint64_t changes_ = 0;
};

class Observer {
  public:
    // `changed` is called from inside set(); it should only take a note.
    explicit Observer(std::function<void()> changed) : changed_(std::move(changed)) {}
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    ~Observer() { forget(); }

    // Runs `reads`, and from then on watches exactly what it read.
    template <class Reads>
    auto track(Reads&& reads) {
        forget();
        const Tracking tracking(*this);
        return std::forward<Reads>(reads)();
    }

  private:
    friend class Observed;

    class Tracking {
      public:
        explicit Tracking(Observer& observer);
        Tracking(const Tracking&) = delete;
        Tracking& operator=(const Tracking&) = delete;
        ~Tracking();

      private:
        Observer* outer_;
    };

    void forget();

    std::function<void()> changed_;
    std::unordered_set<const Observed*> sources_;
};

template <class T>
class Observable : public Observed {
  public:
    Observable() = default;
    explicit Observable(T value) : value_(std::move(value)) {}

    const T& get() const {
        wasRead();
        return value_;
    }

    void set(T value) {
        if (value_ == value) return;
        value_ = std::move(value);
        hasChanged();
    }

  private:
    T value_{};
};

}  // namespace vantrel::runtime
