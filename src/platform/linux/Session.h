// The user's session on this computer, as the system's login manager keeps it.
// Threads: main thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace vantrel::linux {

class Session {
  public:
    virtual ~Session() = default;

    // Called each time the computer has woken from sleep.
    virtual void onWake(std::function<void()>) = 0;
    // Of a laptop; false for a computer without one.
    virtual bool isLidClosed() = 0;
    // Called each time the lid was opened or closed.
    virtual void onLid(std::function<void()>) = 0;
    // Sets a backlight of the session's computer ("intel_backlight"), for which a user needs no other
    // permission; false when the manager refuses or isn't there.
    virtual bool setBacklight(const std::string& name, std::uint32_t value) = 0;
};

}  // namespace vantrel::linux
