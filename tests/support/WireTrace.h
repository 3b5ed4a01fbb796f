// The DDC/CI requests about a monitor's input (VCP 60) in what it saw on its bus.
#pragma once

#include <algorithm>
#include <ranges>
#include <vector>

#include "platform/simulated/SimulatedMonitor.h"

namespace vantrel::test {

struct InputWrite {
    runtime::MonotonicTime at;
    std::uint16_t input = 0;
};

// A host writes each Set VCP request twice; the first of the two.
inline std::vector<InputWrite> inputWrites(const simulated::SimulatedMonitor& monitor) {
    const simulated::Bytes start{0x84, 0x03, 0x60};
    std::vector<InputWrite> result;
    bool isRepeat = false;
    for (const simulated::WireRecord& record : monitor.trace()) {
        if (!std::ranges::equal(record.bytes | std::views::take(start.size()), start)) continue;
        if (!isRepeat) {
            const auto input = static_cast<std::uint16_t>(record.bytes.at(3) << 8 | record.bytes.at(4));
            result.push_back({record.time, input});
        }
        isRepeat = !isRepeat;
    }
    return result;
}

// When the input was asked for; a host asks twice for every reading, and the first
// of the two counts.
inline std::vector<runtime::MonotonicTime> inputReads(const simulated::SimulatedMonitor& monitor) {
    const simulated::Bytes start{0x82, 0x01, 0x60};
    std::vector<runtime::MonotonicTime> result;
    bool isRepeat = false;
    for (const simulated::WireRecord& record : monitor.trace()) {
        if (!std::ranges::equal(record.bytes | std::views::take(start.size()), start)) continue;
        if (!isRepeat) result.push_back(record.time);
        isRepeat = !isRepeat;
    }
    return result;
}

}  // namespace vantrel::test
