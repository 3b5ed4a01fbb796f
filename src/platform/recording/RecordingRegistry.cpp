#include "platform/recording/RecordingRegistry.h"

#include <utility>

namespace vantrel::recording {
namespace {

// Becomes a part of the record when something but its name is asked for.
class Entry : public platform::RegistryEntry {
  public:
    Entry(std::unique_ptr<platform::RegistryEntry> real, Disguise& disguise, Recording& recording,
          std::shared_ptr<Recording::Walk> walk)
        : real_(std::move(real)), disguise_(disguise), recording_(recording), walk_(std::move(walk)) {}

    std::string name() override { return real_->name(); }

    std::optional<platform::PropertyValue> property(std::string_view key) override {
        const Recording::Place& looked = place();
        const std::optional<platform::PropertyValue> real = real_->property(key);
        if (!real) return std::nullopt;
        std::optional<platform::PropertyValue> shown = disguise_.property(key, *real);
        if (shown) recording_.read(looked, std::string(key), *shown);
        return shown;
    }

    std::uint32_t object() const override {
        const std::uint32_t object = real_->object();
        recording_.named(place(), object);
        return object;
    }

  private:
    const Recording::Place& place() const {
        if (!place_) place_ = recording_.lookedInto(walk_, real_->name());
        return *place_;
    }

    std::unique_ptr<platform::RegistryEntry> real_;
    Disguise& disguise_;
    Recording& recording_;
    std::shared_ptr<Recording::Walk> walk_;
    mutable std::optional<Recording::Place> place_;
};

class Iterator : public platform::RegistryIterator {
  public:
    Iterator(std::unique_ptr<platform::RegistryIterator> real, Disguise& disguise, Recording& recording)
        : real_(std::move(real)), disguise_(disguise), recording_(recording), walk_(recording.beginWalk()) {}

    std::unique_ptr<platform::RegistryEntry> next() override {
        auto entry = real_->next();
        if (!entry) return nullptr;
        return std::make_unique<Entry>(std::move(entry), disguise_, recording_, walk_);
    }

  private:
    std::unique_ptr<platform::RegistryIterator> real_;
    Disguise& disguise_;
    Recording& recording_;
    std::shared_ptr<Recording::Walk> walk_;
};

}  // namespace

std::unique_ptr<platform::RegistryIterator> RecordingRegistry::iterateServicePlane() {
    auto iterator = real_.iterateServicePlane();
    if (!iterator) return nullptr;
    return std::make_unique<Iterator>(std::move(iterator), disguise_, recording_);
}

}  // namespace vantrel::recording
