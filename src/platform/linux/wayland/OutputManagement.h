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
    // `outdated`: the outputs have changed meanwhile, and it may be asked again.
    enum class Answer { taken, refused, outdated };

    virtual ~OutputManagement() = default;
    // In the compositor's order.
    virtual std::vector<Head> heads() const = 0;
    // Lights one output in that shape, or turns it off without one; all others stay as they
    // are. No answer in time is a refusal.
    virtual Answer ask(const std::string& head, const std::optional<Shape>& shape,
                       const Deadline& deadline) = 0;
};

}  // namespace vantrel::wayland
