// The session by systemd's login manager (org.freedesktop.login1). Without one nothing
// sleeps, wakes or closes as far as the program hears.
// Threads: main thread. Lifetime: the bus outlives it.
#pragma once

#include <vector>

#include "platform/linux/Bus.h"
#include "platform/linux/Session.h"

namespace vantrel::linux {

class LoginManager : public Session {
  public:
    explicit LoginManager(Bus& system);
    LoginManager(const LoginManager&) = delete;
    LoginManager& operator=(const LoginManager&) = delete;

    void onWake(std::function<void()> woken) override { woken_.push_back(std::move(woken)); }
    bool isLidClosed() override { return isLidClosed_; }
    void onLid(std::function<void()> moved) override { lidMoved_ = std::move(moved); }
    bool setBacklight(const std::string& name, std::uint32_t value) override;

  private:
    void readLid();

    Bus& bus_;
    bool isLidClosed_ = false;
    std::vector<std::function<void()>> woken_;
    std::function<void()> lidMoved_;
};

}  // namespace vantrel::linux
