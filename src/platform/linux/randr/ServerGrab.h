// While it lives, the X server listens to nobody else: no other program sees, or makes, a
// half state.
// Lifetime: the connection's. What was asked meanwhile has been answered when it goes.
#pragma once

#include "platform/linux/randr/Connection.h"

namespace vantrel::randr {

class ServerGrab {
  public:
    explicit ServerGrab(const Connection& connection) : connection_(connection) {
        xcb_grab_server(connection_.get());
    }
    ServerGrab(const ServerGrab&) = delete;
    ServerGrab& operator=(const ServerGrab&) = delete;
    ~ServerGrab() {
        xcb_ungrab_server(connection_.get());
        xcb_flush(connection_.get());
    }

  private:
    const Connection& connection_;
};

}  // namespace vantrel::randr
