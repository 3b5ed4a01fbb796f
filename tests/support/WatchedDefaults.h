// Settings in memory with a record of what is written, as "<key> = <bytes>" where
// they are bytes.
#pragma once

#include "platform/MemoryDefaults.h"
#include "support/CallRecord.h"

namespace vantrel::test {

class WatchedDefaults : public platform::MemoryDefaults {
  public:
    explicit WatchedDefaults(CallRecord& record) : record_(record) {}

    void set(const std::string& key, platform::DefaultsValue value) override {
        const auto* data = std::get_if<platform::DefaultsData>(&value);
        record_.add(data ? key + " = " + data->bytes : key);
        MemoryDefaults::set(key, std::move(value));
    }

  private:
    CallRecord& record_;
};

}  // namespace vantrel::test
