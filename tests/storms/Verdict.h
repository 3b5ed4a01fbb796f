// The first invariant that a storm found broken, and what was going on then.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::storms {

class Verdict {
  public:
    void isAt(int step, std::string what) {
        step_ = step;
        doing_ = std::move(what);
    }
    void broken(const std::string& invariant) {
        // A program that goes in circles never comes back to the storm.
        if (++times_ > mostTimes) runtime::fatal(*text_);
        if (!text_) text_ = invariant + "\n  step " + std::to_string(step_) + ": " + doing_;
    }
    void unless(bool holds, const std::string& invariant) {
        if (!holds) broken(invariant);
    }
    bool isBroken() const { return text_.has_value(); }
    const std::optional<std::string>& text() const { return text_; }

  private:
    static constexpr int mostTimes = 10000;

    int times_ = 0;
    int step_ = 0;
    std::string doing_ = "start";
    std::optional<std::string> text_;
};

}  // namespace vantrel::storms
