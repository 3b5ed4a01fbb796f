// Which input a monitor shows, and how it gets from one to another.
//
// A request for the input that is shown, or on its way already, changes nothing.
// A host writes a request twice in a row: a repeat within `repeatWindow` shares
// the fate of the first, so that an ignored request is ignored as a whole.
//
// Time: passed in; nothing has to happen for a switch to end.
#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "platform/simulated/Desk.h"
#include "platform/simulated/Occasions.h"
#include "platform/simulated/Random.h"
#include "runtime/Time.h"

namespace vantrel::simulated {

// The monitor is off the bus from `from` on, and back at `to`.
struct Pulse {
    runtime::MonotonicTime from;
    runtime::MonotonicTime to;
    bool operator==(const Pulse&) const = default;
};

class InputSelector {
  public:
    static constexpr Duration repeatWindow = std::chrono::milliseconds(40);

    InputSelector(InputPlan plan, const Personality& personality);

    // A host asks for an input. Gives the pulse that this brings about, if any.
    std::optional<Pulse> request(std::uint16_t input, runtime::MonotonicTime now, Random& random);
    // A person presses the monitor's button, which always works.
    std::optional<Pulse> press(std::uint16_t input, runtime::MonotonicTime now);

    std::uint16_t shown(runtime::MonotonicTime now) const;
    // What VCP 60 reads.
    std::uint16_t reading(runtime::MonotonicTime now) const;
    // The greatest input value, as the maximum of VCP 60.
    std::uint16_t maximum() const;
    bool isSilent(runtime::MonotonicTime now) const;
    bool isOnBus(runtime::MonotonicTime now) const;
    // From now on every switch works; a pulse under way still ends in its time.
    void becomeHealthy(runtime::MonotonicTime now);

  private:
    enum class Outcome { settles, returns };
    struct Switch {
        std::uint16_t to = 0;
        runtime::MonotonicTime end;
        Outcome outcome = Outcome::settles;
    };
    struct Ignored {
        std::uint16_t input = 0;
        runtime::MonotonicTime at;
    };

    bool has(std::uint16_t input) const;
    bool isOnItsWay(std::uint16_t input, runtime::MonotonicTime now) const;
    std::optional<Pulse> begin(std::uint16_t input, Outcome outcome, runtime::MonotonicTime now);

    InputPlan plan_;
    std::map<std::uint16_t, std::uint16_t> readings_;
    InputSwitch manner_;
    bool isSilentElsewhere_;
    Occasions returns_;
    Occasions ignores_;
    // The input before `switch_`, which is shown until that ends.
    std::uint16_t settled_;
    std::optional<Switch> switch_;
    std::optional<Pulse> pulse_;
    std::optional<Ignored> ignored_;
};

}  // namespace vantrel::simulated
