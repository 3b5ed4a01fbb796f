#include "views/FeatureSlider.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "runtime/Fatal.h"
#include "views/ValueSlider.h"

namespace vantrel::views {
namespace {

std::uint16_t nearest(double value) {
    const double rounded = std::round(value);
    runtime::require(rounded >= 0 && rounded <= std::numeric_limits<std::uint16_t>::max(),
                     "a slider's value is no VCP value");
    return static_cast<std::uint16_t>(rounded);
}

}  // namespace

ui::Node featureSlider(const Environment& environment, const Environment::Display& display,
                       const std::shared_ptr<model::VCPFeature>& feature, ui::Symbol symbol) {
    const double maximum = feature->maximum.get();
    const std::string name = environment.shown(feature->info.name);
    return valueSlider({
        .symbol = std::move(symbol),
        .value = static_cast<double>(feature->current.get().value_or(0)),
        .minimum = 0,
        .maximum = maximum,
        .format = Format::raw(maximum),
        .name = name,
        .help = name,
        .onChange = [display, feature](double value) { display->set(*feature, nearest(value)); },
    });
}

}  // namespace vantrel::views
