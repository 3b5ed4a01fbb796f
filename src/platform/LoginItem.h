// Whether the program is started when the user logs in. Threads: main thread.
#pragma once

#include <optional>
#include <string>

namespace vantrel::platform {

class LoginItem {
  public:
    virtual ~LoginItem() = default;
    virtual bool isEnabled() const = 0;
    // Each returns why the system refused, in the user's language; nothing on success.
    virtual std::optional<std::string> enable() = 0;
    virtual std::optional<std::string> disable() = 0;
};

}  // namespace vantrel::platform
