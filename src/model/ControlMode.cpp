#include "model/ControlMode.h"

#include "runtime/Fatal.h"

namespace vantrel::model {

using text::Text;

std::string rawValue(ControlMode mode) {
    switch (mode) {
        case ControlMode::automatic:
            return "automatic";
        case ControlMode::ddc:
            return "ddc";
        case ControlMode::software:
            return "software";
    }
    runtime::fatal("a control mode of no kind");
}

ControlMode controlModeFrom(const std::optional<std::string>& stored) {
    for (const ControlMode mode : allControlModes) {
        if (stored == rawValue(mode)) return mode;
    }
    return ControlMode::automatic;
}

Text title(ControlMode mode) {
    switch (mode) {
        case ControlMode::automatic:
            return Text::translated("Automatic");
        case ControlMode::ddc:
            return Text::verbatim("DDC/CI");
        case ControlMode::software:
            return Text::translated("Software");
    }
    runtime::fatal("a control mode of no kind");
}

Text detail(ControlMode mode) {
    switch (mode) {
        case ControlMode::automatic:
            return Text::translated("DDC/CI when the monitor answers, software when it doesn't");
        case ControlMode::ddc:
            return Text::translated("Changes the monitor's backlight");
        case ControlMode::software:
            return Text::translated("Dims the picture on the Mac, works over any connection");
    }
    runtime::fatal("a control mode of no kind");
}

}  // namespace vantrel::model
