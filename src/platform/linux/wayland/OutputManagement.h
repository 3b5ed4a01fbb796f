// A protocol by which a client tells the compositor which outputs to use.
//
// Threads: main thread.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/wayland/Deadline.h"
#include "platform/linux/wayland/Head.h"
#include "platform/linux/wayland/Shape.h"

namespace vantrel::wayland {

class OutputManagement {
  public:
    // `outdated`: the outputs have changed meanwhile, and it may be asked again. `none`: not
    // in time, and nobody knows what is still to come.
    enum class Answer { taken, refused, outdated, none };

    virtual ~OutputManagement() = default;
    // In the compositor's order.
    virtual std::vector<Head> heads() const = 0;
    // Lights one output in that shape, or turns it off without one; all others stay as they
    // are.
    virtual Answer ask(const std::string& head, const std::optional<Shape>& shape,
                       const Deadline& deadline) = 0;
    // Whether the compositor was asked to turn it off and owes the answer.
    virtual bool mayDarken(const std::string& head) const = 0;
};

}  // namespace vantrel::wayland
