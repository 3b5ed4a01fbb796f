// A connection to D-Bus, the system's or the session's, over the system's own library.
//
// Calls wait for their answer, but not for long; signals come through the main loop. A
// bus that isn't there, or goes, answers nothing.
// Threads: main thread. Lifetime: descriptors and main loop outlive it.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <systemd/sd-bus.h>
#include <vector>

#include "platform/linux/Descriptors.h"
#include "runtime/MainLoop.h"

namespace vantrel::linux {

class Bus {
  public:
    enum class Kind { system, session };
    // Longer than a service takes that works, shorter than a user's patience.
    static constexpr std::chrono::seconds patience{1};

    struct Address {
        std::string service;
        std::string path;
        std::string interface;
    };

    struct Unreference {
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
        void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
    };
    using Message = std::unique_ptr<sd_bus_message, Unreference>;
    using Handler = std::function<void(sd_bus_message*)>;

    Bus(Kind kind, Descriptors& descriptors, runtime::MainLoop& mainLoop);
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;
    ~Bus();

    bool isConnected() const { return bus_ != nullptr; }

    // A call to be filled with arguments (sd_bus_message_append); null without a bus.
    Message makeCall(const Address& address, const char* method);
    // Its answer; null for an error or none.
    Message call(const Message& call);
    // A property's value, to be read from; null when there is none.
    Message property(const Address& address, const char* name, const char* type);
    // `handler` is called on the main thread for each such signal, for the life of the bus.
    void onSignal(const Address& address, const char* signal, Handler handler);

  private:
    static int received(sd_bus_message* message, void* handler, sd_bus_error*);
    // Everything that has arrived.
    void process();
    // What arrived together with an answer is announced by no descriptor any more.
    void processLater();
    void disconnect();

    runtime::MainLoop& mainLoop_;
    sd_bus* bus_ = nullptr;
    std::vector<std::unique_ptr<Handler>> handlers_;
    std::vector<std::unique_ptr<sd_bus_slot, Unreference>> signals_;
    std::unique_ptr<Descriptors::Watch> watch_;
    std::optional<runtime::MainLoop::TimerID> later_;
};

}  // namespace vantrel::linux
