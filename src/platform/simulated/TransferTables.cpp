#include "platform/simulated/TransferTables.h"

namespace vantrel::simulated {

using platform::TransferTable;

TransferTables::TransferTables(const std::vector<DisplayPlan>& displays) {
    for (const DisplayPlan& plan : displays) slots_[plan.id].capacity = plan.transferTableCapacity;
    reset();
}

TransferTable TransferTables::linear(std::uint32_t samples) {
    std::vector<float> ramp(samples, 1.0F);
    for (std::uint32_t index = 0; index + 1 < samples; ++index) {
        ramp[index] = static_cast<float>(index) / static_cast<float>(samples - 1);
    }
    return {ramp, ramp, ramp};
}

std::optional<TransferTable> TransferTables::table(platform::DisplayID display,
                                                   std::uint32_t capacity) const {
    const auto found = slots_.find(display);
    if (found == slots_.end() || found->second.capacity == 0 || capacity == 0) return std::nullopt;
    TransferTable table = found->second.table;
    for (std::vector<float>* channel : {&table.red, &table.green, &table.blue}) {
        if (channel->size() > capacity) channel->resize(capacity);
    }
    return table;
}

void TransferTables::set(platform::DisplayID display, const TransferTable& table) {
    const auto found = slots_.find(display);
    if (found == slots_.end()) return;
    const std::size_t samples = table.red.size();
    const bool isEven = table.green.size() == samples && table.blue.size() == samples;
    if (samples == 0 || samples > found->second.capacity || !isEven) return;
    found->second.table = table;
}

void TransferTables::reset() {
    for (auto& [display, slot] : slots_) slot.table = linear(slot.capacity);
}

}  // namespace vantrel::simulated
