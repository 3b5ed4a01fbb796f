// A system's list of what starts when its user logs in, which ends with the
// simulation. Threads: main thread.
#pragma once

#include <optional>
#include <string>

#include "platform/LoginItem.h"

namespace vantrel::simulated {

class SimulatedLoginItem : public platform::LoginItem {
  public:
    // From now on every change is refused with this text; nothing: none is.
    void refuse(std::optional<std::string> reason);

    bool isEnabled() const override { return isEnabled_; }
    std::optional<std::string> enable() override { return become(true); }
    std::optional<std::string> disable() override { return become(false); }

  private:
    std::optional<std::string> become(bool enabled);

    bool isEnabled_ = false;
    std::optional<std::string> refusal_;
};

}  // namespace vantrel::simulated
