// A picker of a display's control mode, without title, symbol or handler. Its
// options are model::allControlModes.
#pragma once

#include "ui/Element.h"
#include "views/Environment.h"

namespace vantrel::views {

inline ui::Picker controlModes(const Environment& environment, const model::ExternalDisplay& display) {
    ui::Picker picker;
    for (const model::ControlMode mode : model::allControlModes) {
        if (mode == display.controlMode()) picker.selected = picker.options.size();
        picker.options.push_back(environment.shown(model::title(mode)));
    }
    return picker;
}

}  // namespace vantrel::views
