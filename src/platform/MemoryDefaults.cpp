#include "platform/MemoryDefaults.h"

#include <utility>

namespace vantrel::platform {

std::optional<DefaultsValue> MemoryDefaults::value(const std::string& key) {
    const auto found = values_.find(key);
    if (found == values_.end()) return std::nullopt;
    return found->second;
}

void MemoryDefaults::set(const std::string& key, DefaultsValue value) {
    values_.insert_or_assign(key, std::move(value));
}

void MemoryDefaults::remove(const std::string& key) { values_.erase(key); }

}  // namespace vantrel::platform
