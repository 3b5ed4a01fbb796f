// The user's settings in the application's preferences. The system writes them to
// the disk soon after a change, and before the program ends. Main thread.
#pragma once

#include "platform/Defaults.h"
#include "platform/Log.h"

namespace vantrel::macos {

class MacDefaults : public platform::Defaults {
  public:
    explicit MacDefaults(platform::Log log) : log_(log) {}

    std::optional<platform::DefaultsValue> value(const std::string& key) override;
    void set(const std::string& key, platform::DefaultsValue value) override;
    void remove(const std::string& key) override;

  private:
    void logFailure(const std::string& key) const;

    platform::Log log_;
};

}  // namespace vantrel::macos
