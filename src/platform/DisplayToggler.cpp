#include "platform/DisplayToggler.h"

namespace vantrel::platform::DisplayToggler {

bool setEnabled(DisplayServices& displays, PrivateFunctions& functions, DisplayID display, Output output) {
    const auto configuration = displays.beginConfiguration();
    if (!configuration) return false;
    const ConfigureDisplayEnabled configure = functions.configureEnabled();
    if (configure != nullptr && configure(*configuration, display, output == Output::on) == 0) {
        return displays.completeConfiguration(*configuration, DisplayServices::configureForSession);
    }
    displays.cancelConfiguration(*configuration);
    return false;
}

}  // namespace vantrel::platform::DisplayToggler
