// Settings that are forgotten when the program ends, for tests and simulations.
#pragma once

#include "platform/Defaults.h"

namespace vantrel::platform {

class MemoryDefaults : public Defaults {
  public:
    std::optional<DefaultsValue> value(const std::string& key) override;
    void set(const std::string& key, DefaultsValue value) override;
    void remove(const std::string& key) override;

    const std::map<std::string, DefaultsValue>& all() const { return values_; }

  private:
    std::map<std::string, DefaultsValue> values_;
};

}  // namespace vantrel::platform
