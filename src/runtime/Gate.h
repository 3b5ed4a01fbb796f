// What a thread waits at: one thread waits, any thread opens. Opening an
// unattended gate is remembered, once, for the next wait.
//
// Lifetime: may be destroyed as soon as the wait that the last open() ended has
// returned.
#pragma once

#include <optional>

#include "runtime/Time.h"

namespace vantrel::runtime {

// Why a wait ended. `idle` exists in virtual time only, and only for the main
// thread: no thread has anything to do any more and nothing is due, so the wait
// would never end.
enum class Wake { opened, deadline, idle };

class Gate {
  public:
    virtual ~Gate() = default;
    virtual void open() = 0;
    // Waits until the gate opens or `deadline` is reached; without a deadline
    // only for the gate.
    virtual Wake wait(std::optional<MonotonicTime> deadline) = 0;
};

}  // namespace vantrel::runtime
