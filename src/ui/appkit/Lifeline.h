// Tells a function that AppKit keeps whether what it works for is still there.
//
//     menuOf(options, lifeline_.guard([this](std::size_t option) { choose(option); }));
//
// Threads: main thread.
#pragma once

#include <memory>
#include <utility>

namespace vantrel::appkit {

class Lifeline {
  public:
    // Does nothing once the lifeline has gone.
    template <class Function>
    auto guard(Function function) const {
        return [alive = std::weak_ptr<char>(alive_), function = std::move(function)](auto&&... arguments) {
            if (!alive.expired()) function(std::forward<decltype(arguments)>(arguments)...);
        };
    }

  private:
    std::shared_ptr<char> alive_ = std::make_shared<char>();
};

}  // namespace vantrel::appkit
