// What several programs keep in one place: each opening of it shows what is there then.
// Lifetime: it outlives what it opened. Main thread.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/MemoryDefaults.h"
#include "platform/linux/SessionMemory.h"

namespace vantrel::linux {

class SharedDefaults {
  public:
    platform::MemoryDefaults& kept() { return kept_; }
    SessionMemory::Open open() {
        return [this] { return std::make_unique<Opened>(kept_); };
    }

  private:
    class Opened : public platform::Defaults {
      public:
        explicit Opened(platform::Defaults& kept) : kept_(kept) {}
        std::optional<platform::DefaultsValue> value(const std::string& key) override {
            return kept_.value(key);
        }
        void set(const std::string& key, platform::DefaultsValue value) override {
            kept_.set(key, std::move(value));
        }
        void remove(const std::string& key) override { kept_.remove(key); }

      private:
        platform::Defaults& kept_;
    };

    platform::MemoryDefaults kept_;
};

}  // namespace vantrel::linux
