// What the items of one view share: whom to tell what a person does, and where the
// widgets of removed nodes end.
//
// Nothing is sent while the program itself is changing what is shown.
// Threads: main thread. Lifetime: outlives the items.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

#include "ui/Event.h"
#include "ui/Renderer.h"

namespace vantrel::qt {

class Stage {
  public:
    // While one exists, what controls report is the program's doing.
    class Telling {
      public:
        explicit Telling(Stage& stage) : stage_(stage) {
            ++stage_.telling_;
            stage_.measureAnew();
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
    // Sizes that were found out hold until something changes.
    std::uint64_t measuring() const { return measuring_; }
    void measureAnew() { ++measuring_; }
    // Takes a widget off the screen. It may be at work further up the stack, so it
    // is destroyed later.
    void bury(QWidget* widget);

  private:
    std::function<void(ui::ElementID, const ui::Event&)> handler_;
    int telling_ = 0;
    std::uint64_t measuring_ = 1;
    QWidget buried_;
};

}  // namespace vantrel::qt
