#include "platform/linux/Bus.h"

#include <cstdint>
#include <utility>

namespace vantrel::linux {
namespace {

constexpr std::uint64_t callTimeout = std::chrono::microseconds(Bus::patience).count();

sd_bus* open(Bus::Kind kind) {
    sd_bus* bus = nullptr;
    const int error = kind == Bus::Kind::system ? sd_bus_open_system(&bus) : sd_bus_open_user(&bus);
    if (error < 0) return nullptr;
    sd_bus_set_method_call_timeout(bus, callTimeout);
    return bus;
}

}  // namespace

Bus::Bus(Kind kind, Descriptors& descriptors, runtime::MainLoop& mainLoop)
    : mainLoop_(mainLoop), bus_(open(kind)) {
    if (bus_ == nullptr) return;
    watch_ = descriptors.watch(sd_bus_get_fd(bus_), [this] { process(); });
    processLater();
}

Bus::~Bus() { disconnect(); }

void Bus::disconnect() {
    if (later_) mainLoop_.cancel(*later_);
    later_.reset();
    // Before the descriptor is closed.
    watch_.reset();
    signals_.clear();
    if (bus_ != nullptr) sd_bus_close_unref(std::exchange(bus_, nullptr));
}

Bus::Message Bus::makeCall(const Address& address, const char* method) {
    sd_bus_message* message = nullptr;
    if (bus_ == nullptr) return nullptr;
    const int error = sd_bus_message_new_method_call(bus_, &message, address.service.c_str(),
                                                     address.path.c_str(), address.interface.c_str(), method);
    return Message(error < 0 ? nullptr : message);
}

Bus::Message Bus::call(const Message& call) {
    if (bus_ == nullptr || call == nullptr) return nullptr;
    sd_bus_message* answer = nullptr;
    const int error = sd_bus_call(bus_, call.get(), callTimeout, nullptr, &answer);
    processLater();
    return Message(error < 0 ? nullptr : answer);
}

Bus::Message Bus::property(const Address& address, const char* name, const char* type) {
    const Message call = makeCall({address.service, address.path, "org.freedesktop.DBus.Properties"}, "Get");
    if (call == nullptr) return nullptr;
    sd_bus_message_append(call.get(), "ss", address.interface.c_str(), name);
    Message answer = this->call(call);
    if (answer == nullptr) return nullptr;
    // Inside of the variant.
    if (sd_bus_message_enter_container(answer.get(), SD_BUS_TYPE_VARIANT, type) <= 0) return nullptr;
    return answer;
}

void Bus::onSignal(const Address& address, const char* signal, Handler handler) {
    if (bus_ == nullptr) return;
    handlers_.push_back(std::make_unique<Handler>(std::move(handler)));
    // Without waiting for the bus's word: a service may not be there yet. Where that comes
    // late, or is read late, it is as good: the library would end the connection, or this.
    sd_bus_slot* slot = nullptr;
    sd_bus_match_signal_async(
        bus_, &slot, address.service.c_str(), address.path.c_str(), address.interface.c_str(), signal,
        &received, [](sd_bus_message*, void*, sd_bus_error*) { return 0; }, handlers_.back().get());
    signals_.emplace_back(slot);
    processLater();
}

int Bus::received(sd_bus_message* message, void* handler, sd_bus_error*) {
    (*static_cast<Handler*>(handler))(message);
    return 0;
}

void Bus::process() {
    int result = 1;
    while (bus_ != nullptr && result > 0) result = sd_bus_process(bus_, nullptr);
    if (bus_ != nullptr && result >= 0) result = sd_bus_flush(bus_);
    if (result < 0) disconnect();
}

void Bus::processLater() {
    if (later_) return;
    later_ = mainLoop_.post([this] {
        later_.reset();
        process();
    });
}

}  // namespace vantrel::linux
