// A connection to an X server of its own, so that nothing depends on whether and how the
// interface uses X.
//
// Threads: main thread. Every answer is waited for, however long the server takes: one that
// hangs, or that another program has grabbed, is waited for just as every window's program
// waits for it.
// Errors: once the server has gone, every request is refused. The signal that writing to it
// would end the program with is ignored from the first connection on.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <xcb/randr.h>
#include <xcb/xcb.h>

namespace vantrel::randr {

class Connection {
  public:
    // Millimetres per pixel, which a server tells only when it changes.
    struct Density {
        double horizontal = 0;
        double vertical = 0;
    };

    // To the server that `display` names as $DISPLAY does; null when there is none, or one
    // that knows less than RandR 1.3: asking it would have it look at every cable each time.
    static std::unique_ptr<Connection> open(const std::string& display);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { xcb_disconnect(connection_); }

    xcb_connection_t* get() const { return connection_; }
    bool isAlive() const { return xcb_connection_has_error(connection_) == 0; }
    xcb_window_t root() const { return root_; }
    xcb_atom_t edid() const { return edid_; }
    Density density() const { return density_; }
    // True when the server took the request.
    bool succeeds(xcb_void_cookie_t request) const;

    // Takes what the server has told without being asked, without waiting. True when that
    // may concern an output.
    bool takeEvents();

  private:
    explicit Connection(xcb_connection_t* connection) : connection_(connection) {}
    bool prepare(int screen);
    bool concernsOutputs(const xcb_generic_event_t& event);

    xcb_connection_t* const connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
    xcb_atom_t edid_ = XCB_ATOM_NONE;
    std::uint8_t firstEvent_ = 0;
    Density density_;
};

}  // namespace vantrel::randr
