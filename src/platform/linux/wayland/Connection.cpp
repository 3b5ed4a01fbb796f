#include "platform/linux/wayland/Connection.h"

#include <cerrno>
#include <poll.h>
#include <wayland-client.h>

#include "platform/linux/wayland/Proxy.h"

namespace vantrel::wayland {

std::unique_ptr<Connection> Connection::open(const std::string& display) {
    wl_display* const connected = wl_display_connect(display.c_str());
    if (connected == nullptr) return nullptr;
    return std::unique_ptr<Connection>(new Connection(connected));
}

Connection::~Connection() { wl_display_disconnect(display_); }

int Connection::descriptor() const { return wl_display_get_fd(display_); }

void Connection::read(const Deadline& deadline) {
    while (pass(0) && deadline.milliseconds() > 0) {
    }
}

bool Connection::wait(const std::function<bool()>& isDone, const Deadline& deadline) {
    while (isAlive_ && !isDone()) {
        const int left = deadline.milliseconds();
        // A compositor that never stops talking has no answer, either.
        if (!pass(left) || left == 0) break;
    }
    return isAlive_ && isDone();
}

bool Connection::roundtrip(const Deadline& deadline) {
    if (!isAlive_) return false;
    bool isDone = false;
    const Proxy<wl_callback> callback(wl_display_sync(display_));
    static constexpr wl_callback_listener listener = {
        [](void* data, wl_callback*, std::uint32_t) { *static_cast<bool*>(data) = true; }};
    wl_callback_add_listener(callback.get(), &listener, &isDone);
    return wait([&] { return isDone; }, deadline);
}

bool Connection::pass(int milliseconds) {
    if (!isAlive_) return false;
    // What was read is handled before the connection may be read again.
    bool hasCome = true;
    if (wl_display_prepare_read(display_) == 0) hasCome = receive(milliseconds);
    if (wl_display_dispatch_pending(display_) < 0) isAlive_ = false;
    // What an event made us ask for, or let go of, doesn't wait for the next one.
    wl_display_flush(display_);
    return hasCome && isAlive_;
}

bool Connection::receive(int milliseconds) {
    pollfd waiting{descriptor(), POLLIN, 0};
    // A compositor that doesn't read is given the rest when it does. Any other failure
    // shows when its last words have been read.
    if (wl_display_flush(display_) < 0 && errno == EAGAIN) waiting.events |= POLLOUT;
    const int count = ::poll(&waiting, 1, milliseconds);
    if (count > 0 && (waiting.revents & ~POLLOUT) != 0) {
        if (wl_display_read_events(display_) < 0) isAlive_ = false;
        return true;
    }
    const bool isInterrupted = count < 0 && errno == EINTR;
    wl_display_cancel_read(display_);
    return count > 0 || isInterrupted;
}

}  // namespace vantrel::wayland
