// The connection to a compositor. Events come only while one of these functions runs.
//
// Threads: main thread. Errors: a compositor that has gone stays gone; nothing waits
// for it any more, and what is asked of it is lost.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/linux/wayland/Deadline.h"

struct wl_display;

namespace vantrel::wayland {

class Connection {
  public:
    // By the name or the path of a socket. Nothing when nobody listens there.
    static std::unique_ptr<Connection> open(const std::string& display);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    wl_display* display() const { return display_; }
    int descriptor() const;
    bool isAlive() const { return isAlive_; }

    // Takes what has arrived, without waiting for more.
    void read(const Deadline& deadline);
    // Whether `isDone` came true in time.
    bool wait(const std::function<bool()>& isDone, const Deadline& deadline);
    // Whether the compositor has done in time all that it was asked for.
    bool roundtrip(const Deadline& deadline);

  private:
    explicit Connection(wl_display* display) : display_(display) {}

    // False when nothing came in that time.
    bool pass(int milliseconds);
    bool receive(int milliseconds);

    wl_display* const display_;
    bool isAlive_ = true;
};

}  // namespace vantrel::wayland
