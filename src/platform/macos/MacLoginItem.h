// The application among the user's login items. Main thread.
#pragma once

#include "platform/LoginItem.h"

namespace vantrel::macos {

class MacLoginItem : public platform::LoginItem {
  public:
    // Also false while the system waits for the user to allow it.
    bool isEnabled() const override;
    std::optional<std::string> enable() override;
    std::optional<std::string> disable() override;
};

}  // namespace vantrel::macos
