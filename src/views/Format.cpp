#include "views/Format.h"

#include <algorithm>
#include <cmath>

namespace vantrel::views {
namespace {

constexpr double wholePercentage = 100;
// The maximum up to which single steps get through a range in reasonable time.
constexpr double finelySteppedMaximum = 255;

std::string whole(double value) { return std::to_string(static_cast<long long>(value)); }

}  // namespace

std::string Format::label(double value) const {
    if (!maximum_) return whole(std::round(value * 100)) + "%";
    return *maximum_ == wholePercentage ? whole(value) + "%" : whole(value);
}

double Format::step() const {
    if (!maximum_) return 0.01;
    return *maximum_ <= finelySteppedMaximum ? 1 : std::ceil(*maximum_ / 100);
}

double Format::wheelStep() const {
    if (!maximum_) return 0.05;
    return std::max(1.0, std::round(*maximum_ / 20));
}

}  // namespace vantrel::views
