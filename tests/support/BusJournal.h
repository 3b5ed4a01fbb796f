// What happened at a ScriptedBus, in order. Threads: any.
#pragma once

#include <algorithm>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "runtime/Fatal.h"
#include "support/BusEvent.h"

namespace vantrel::test {

class BusJournal {
  public:
    void note(BusEvent event) {
        const std::lock_guard lock(mutex_);
        events_.push_back(std::move(event));
    }
    void clear() {
        const std::lock_guard lock(mutex_);
        events_.clear();
    }

    std::vector<BusEvent> events() const {
        const std::lock_guard lock(mutex_);
        return events_;
    }
    std::vector<BusEvent> events(BusEvent::Kind kind) const {
        std::vector<BusEvent> some = events();
        std::erase_if(some, [kind](const BusEvent& event) { return event.kind != kind; });
        return some;
    }
    // The last event of this kind, which there must be.
    BusEvent last(BusEvent::Kind kind) const {
        const std::lock_guard lock(mutex_);
        const auto found = std::find_if(events_.rbegin(), events_.rend(),
                                        [kind](const BusEvent& event) { return event.kind == kind; });
        runtime::require(found != events_.rend(), "nothing of the kind has happened");
        return *found;
    }
    // Every event's text.
    std::vector<std::string> timeline() const {
        std::vector<std::string> texts;
        for (const BusEvent& event : events()) texts.push_back(event.text());
        return texts;
    }

  private:
    mutable std::mutex mutex_;
    std::vector<BusEvent> events_;
};

}  // namespace vantrel::test
