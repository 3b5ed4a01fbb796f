#include "platform/linux/AnswerLog.h"

namespace vantrel::linux {
namespace {

// A monitor that wakes or switches its input misses some. A read that is tried four times
// makes eight writes.
constexpr unsigned lasting = 8;

}  // namespace

void AnswerLog::note(platform::DisplayID display, int error) {
    const std::lock_guard lock(mutex_);
    if (error == 0) {
        failures_.erase(display);
        return;
    }
    Failures& failures = failures_[display];
    failures.error = error;
    if (failures.count < lasting) ++failures.count;
}

std::optional<int> AnswerLog::lastingFailure(platform::DisplayID display) const {
    const std::lock_guard lock(mutex_);
    const auto found = failures_.find(display);
    if (found == failures_.end() || found->second.count < lasting) return std::nullopt;
    return found->second.error;
}

}  // namespace vantrel::linux
