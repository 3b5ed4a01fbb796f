// What the controls of one view share: whom to tell what a person does.
//
// Nothing is sent while the program itself is changing what is shown.
// Threads: main thread. Lifetime: outlives the controls.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "ui/Event.h"
#include "ui/Renderer.h"

namespace vantrel::layout {

class Stage {
  public:
    // While one exists, what controls report is the program's doing.
    class Telling {
      public:
        explicit Telling(Stage& stage) : stage_(stage) {
            ++stage_.telling_;
            ++stage_.measuring_;
        }
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;
        ~Telling() { --stage_.telling_; }

      private:
        Stage& stage_;
    };

    Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    void onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) {
        handler_ = std::move(handler);
    }
    void send(ui::ElementID element, const ui::Event& event);
    // Sizes that were found out hold until it has changed.
    std::uint64_t measuring() const { return measuring_; }

  private:
    std::function<void(ui::ElementID, const ui::Event&)> handler_;
    int telling_ = 0;
    std::uint64_t measuring_ = 1;
};

}  // namespace vantrel::layout
