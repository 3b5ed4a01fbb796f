// An output that the compositor shows to every client: one that is lit.
//
// Threads: main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/linux/wayland/Connection.h"
#include "platform/linux/wayland/OutputTable.h"
#include "platform/linux/wayland/Proxy.h"
#include "platform/linux/wayland/Shape.h"

namespace vantrel::wayland {

class CoreOutput {
  public:
    // What the compositor tells together.
    struct Description {
        std::string name;
        std::string make;
        std::string model;
        std::string description;
        Shape shape;
    };

    // The first version whose outputs have names; those of older ones can't be told apart.
    static constexpr std::uint32_t neededVersion = 4;

    explicit CoreOutput(Proxy<wl_output> output);
    CoreOutput(const CoreOutput&) = delete;
    CoreOutput& operator=(const CoreOutput&) = delete;

    // Without a name until the compositor has told it.
    const Description& description() const { return told_; }

    void useGammaControl(Connection& connection, zwlr_gamma_control_manager_v1* manager);
    void loseGammaControl() { table_.reset(); }
    // Nothing without gamma control.
    OutputTable* table() { return table_ ? &*table_ : nullptr; }
    const OutputTable* table() const { return table_ ? &*table_ : nullptr; }

  private:
    struct Events;

    Proxy<wl_output> output_;
    Description next_;
    Description told_;
    std::optional<OutputTable> table_;
};

}  // namespace vantrel::wayland
