// A view: what it shows, as a node made of what it reads, and the state that is
// its own and that nobody keeps.
//
// body() may read Observables (models' and its own); when one of them changes, the
// Host calls it again. It changes nothing.
// Threads: main thread. Lifetime: the handlers in a body may use the component for
// as long as the body is shown.
#pragma once

#include "ui/Node.h"

namespace vantrel::ui {

class Component {
  public:
    Component() = default;
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    virtual ~Component() = default;

    virtual Node body() = 0;
};

}  // namespace vantrel::ui
