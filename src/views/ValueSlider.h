// A symbol, a slider and the slider's value in a row.
#pragma once

#include <functional>
#include <string>

#include "ui/Node.h"
#include "views/Format.h"

namespace vantrel::views {

struct ValueSlider {
    ui::Symbol symbol;
    // May lie outside the range when a monitor reports such a value.
    double value;
    double minimum;
    double maximum;
    Format format;
    // For people who don't see the symbol.
    std::string name;
    // Empty for none.
    std::string help = {};
    std::function<void(double)> onChange;
};

ui::Node valueSlider(ValueSlider slider);

}  // namespace vantrel::views
