// How the transfers to each monitor have gone lately: enough to tell a user why a monitor
// can't be reached. Threads: any.
#pragma once

#include <map>
#include <mutex>
#include <optional>

#include "platform/DisplayServices.h"

namespace vantrel::linux {

class AnswerLog {
  public:
    // `error` as I2CDevices gives it; 0 for a transfer that was acknowledged.
    void note(platform::DisplayID display, int error);
    // Why the monitor has acknowledged none of its last transfers; nothing while it does, or
    // while too few were made to tell.
    std::optional<int> lastingFailure(platform::DisplayID display) const;

  private:
    struct Failures {
        int error = 0;
        unsigned count = 0;
    };

    mutable std::mutex mutex_;
    std::map<platform::DisplayID, Failures> failures_;
};

}  // namespace vantrel::linux
