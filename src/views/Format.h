// How a slider's value is written beside it, and how fine its steps are.
#pragma once

#include <optional>
#include <string>

namespace vantrel::views {

class Format {
  public:
    // A VCP value of a feature with this maximum.
    static Format raw(double maximum) { return Format(maximum); }
    // A fraction from 0 to 1.
    static Format percent() { return Format(std::nullopt); }

    // A raw value has a unit only when its maximum is 100: it is a percentage then.
    std::string label(double value) const;
    // What an arrow key changes, and a notch of the wheel.
    double step() const;
    double wheelStep() const;

  private:
    explicit Format(std::optional<double> maximum) : maximum_(maximum) {}

    // Of a raw value.
    std::optional<double> maximum_;
};

}  // namespace vantrel::views
