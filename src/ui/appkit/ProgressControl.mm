#include "ui/appkit/ProgressControl.h"

namespace vantrel::appkit {

ProgressControl::ProgressControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[NSProgressIndicator alloc] initWithFrame:NSZeroRect]) {
    NSProgressIndicator* const indicator = static_cast<NSProgressIndicator*>(view());
    indicator.style = NSProgressIndicatorStyleSpinning;
    indicator.controlSize = NSControlSizeSmall;
    [indicator startAnimation:nil];
}

}  // namespace vantrel::appkit
