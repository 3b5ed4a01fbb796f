// The transfer table of an output, by the protocol for gamma control.
//
// A client that holds the control keeps all others out, so it is held only while the
// table isn't the plain one: other programs get their turn.
// Threads: main thread. Errors: without the control there is no table, until the output
// appears anew.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/DisplayServices.h"
#include "platform/linux/wayland/Connection.h"
#include "platform/linux/wayland/Deadline.h"
#include "platform/linux/wayland/Proxy.h"

namespace vantrel::wayland {

class OutputTable {
  public:
    // Asks for the control once, to learn how large the table is.
    OutputTable(Connection& connection, zwlr_gamma_control_manager_v1* manager, wl_output* output);

    // 0 until it is known.
    std::uint32_t capacity() const { return isRefused_ ? 0 : capacity_; }
    // The compositor doesn't tell: the plain one at first, then what was set last.
    std::optional<platform::TransferTable> table() const;
    bool set(const platform::TransferTable& table, const Deadline& deadline);

  private:
    void request();
    void learnCapacity(std::uint32_t capacity);
    void refuse();
    bool hold(const Deadline& deadline);
    bool send(const platform::TransferTable& table, const Deadline& deadline);

    Connection& connection_;
    zwlr_gamma_control_manager_v1* const manager_;
    wl_output* const output_;
    Proxy<zwlr_gamma_control_v1> control_;
    std::uint32_t capacity_ = 0;
    bool isRefused_ = false;
    // Whether the control is kept after it has told the capacity.
    bool isHeld_ = false;
    std::optional<platform::TransferTable> last_;
};

}  // namespace vantrel::wayland
