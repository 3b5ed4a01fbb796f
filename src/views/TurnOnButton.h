// Lets the computer send a monitor its picture again.
#pragma once

#include "ui/Nodes.h"
#include "views/Environment.h"

namespace vantrel::views {

inline ui::Node turnOnButton(const Environment& environment, const persistence::DisabledDisplay& entry) {
    return ui::button(environment.translated("Turn On"), ui::Button::Style::prominent, ui::Font::callout)
        .described(entry.name)
        .onPress([environment, entry] { environment.manager.enableOutput(entry); })
        .key("turn on");
}

}  // namespace vantrel::views
