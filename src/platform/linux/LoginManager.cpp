#include "platform/linux/LoginManager.h"

#include <utility>

namespace vantrel::linux {
namespace {

const Bus::Address manager{"org.freedesktop.login1", "/org/freedesktop/login1",
                           "org.freedesktop.login1.Manager"};
// Whichever session the caller is in; "auto" also finds the user's one from outside of it.
const Bus::Address session{"org.freedesktop.login1", "/org/freedesktop/login1/session/auto",
                           "org.freedesktop.login1.Session"};
const Bus::Address managerProperties{manager.service, manager.path, "org.freedesktop.DBus.Properties"};

}  // namespace

LoginManager::LoginManager(Bus& system) : bus_(system) {
    readLid();
    bus_.onSignal(manager, "PrepareForSleep", [this](sd_bus_message* message) {
        int isAboutToSleep = 1;
        if (sd_bus_message_read(message, "b", &isAboutToSleep) < 0 || isAboutToSleep != 0) return;
        for (std::size_t index = 0; index < woken_.size(); ++index) {
            const std::function<void()> woken = woken_[index];
            woken();
        }
    });
    bus_.onSignal(managerProperties, "PropertiesChanged", [this](sd_bus_message*) {
        if (const bool before = isLidClosed_; readLid(), before == isLidClosed_) return;
        if (lidMoved_) lidMoved_();
    });
}

void LoginManager::readLid() {
    const Bus::Message value = bus_.property(manager, "LidClosed", "b");
    int isClosed = 0;
    if (value != nullptr && sd_bus_message_read(value.get(), "b", &isClosed) > 0)
        isLidClosed_ = isClosed != 0;
}

bool LoginManager::setBacklight(const std::string& name, std::uint32_t value) {
    const Bus::Message call = bus_.makeCall(session, "SetBrightness");
    if (call == nullptr) return false;
    if (sd_bus_message_append(call.get(), "ssu", "backlight", name.c_str(), value) < 0) return false;
    return bus_.call(call) != nullptr;
}

}  // namespace vantrel::linux
