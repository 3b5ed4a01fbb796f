// The colour transfer table of every display of a desk. Main thread.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/simulated/Desk.h"

namespace vantrel::simulated {

class TransferTables {
  public:
    explicit TransferTables(const std::vector<DisplayPlan>& displays);

    // The table that the colour settings ask for: linear from 0 to 1.
    static platform::TransferTable linear(std::uint32_t samples);

    // Nothing for a display without a table or for no samples; the first
    // `capacity` samples when the table has more.
    std::optional<platform::TransferTable> table(platform::DisplayID display, std::uint32_t capacity) const;
    // Ignores what the display can't take: no samples, more than its capacity, or
    // channels of different lengths.
    void set(platform::DisplayID display, const platform::TransferTable& table);
    // Every display has its linear table again.
    void reset();

  private:
    struct Slot {
        std::uint32_t capacity = 0;
        platform::TransferTable table;
    };
    std::map<platform::DisplayID, Slot> slots_;
};

}  // namespace vantrel::simulated
