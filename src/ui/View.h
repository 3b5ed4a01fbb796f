// The contents of a popover or a window: where a Host shows its tree.
// Threads: main thread.
#pragma once

#include <functional>

#include "ui/Event.h"
#include "ui/Renderer.h"
#include "ui/Size.h"

namespace vantrel::ui {

class View {
  public:
    virtual ~View() = default;

    virtual Renderer& renderer() = 0;
    // Whom to tell what a person does, and sizes that are to be reported. Never
    // called while the renderer is being told differences.
    virtual void onEvent(std::function<void(ElementID, const Event&)> handler) = 0;
    // What the contents would like to have.
    virtual Size fittingSize() const = 0;
};

}  // namespace vantrel::ui
