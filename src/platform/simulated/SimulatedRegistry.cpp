#include "platform/simulated/SimulatedRegistry.h"

#include <cstddef>

namespace vantrel::simulated {
namespace {

// The system hands a name out in a buffer of 128 bytes with a NUL at its end.
constexpr std::size_t longestName = 127;

class Entry : public platform::RegistryEntry {
  public:
    Entry(const RegistryEntryPlan& plan, std::uint32_t object) : plan_(plan), object_(object) {}

    std::string name() override {
        const std::string name = plan_.name.substr(0, longestName);
        return name.substr(0, name.find('\0'));
    }

    std::optional<platform::PropertyValue> property(std::string_view key) override {
        const auto found = plan_.properties.find(std::string(key));
        if (found == plan_.properties.end()) return std::nullopt;
        return found->second;
    }

    std::uint32_t object() const override { return object_; }

  private:
    const RegistryEntryPlan& plan_;
    const std::uint32_t object_;
};

class Iterator : public platform::RegistryIterator {
  public:
    explicit Iterator(const World& world) : world_(world) {}

    std::unique_ptr<platform::RegistryEntry> next() override {
        const auto& entries = world_.desk().registry;
        while (place_ < entries.size()) {
            const RegistryEntryPlan& entry = entries[place_++];
            const bool isOfTheSystem = entry.kind == RegistryEntryPlan::Kind::other;
            if (!isOfTheSystem && !world_.isConnected(entry.display)) continue;
            return std::make_unique<Entry>(entry, AVServiceTable::object(place_ - 1));
        }
        return nullptr;
    }

  private:
    const World& world_;
    std::size_t place_ = 0;
};

}  // namespace

std::unique_ptr<platform::RegistryIterator> SimulatedRegistry::iterateServicePlane() {
    return std::make_unique<Iterator>(world_);
}

}  // namespace vantrel::simulated
