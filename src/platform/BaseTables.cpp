#include "platform/BaseTables.h"

#include <utility>

namespace vantrel::platform {

const TransferTable* BaseTables::table(DisplayID display) {
    if (const auto found = tables_.find(display); found != tables_.end()) return &found->second;
    const std::uint32_t capacity = displays_.transferTableCapacity(display);
    if (capacity == 0) return nullptr;
    std::optional<TransferTable> table = displays_.transferTable(display, capacity);
    if (!table || table->red.empty()) return nullptr;
    return &tables_.emplace(display, std::move(*table)).first->second;
}

}  // namespace vantrel::platform
