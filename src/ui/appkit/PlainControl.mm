#include "ui/appkit/PlainControl.h"

#include "ui/appkit/FlippedView.h"

namespace vantrel::appkit {

PlainControl::PlainControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[FlippedView alloc] initWithFrame:NSZeroRect]) {}

}  // namespace vantrel::appkit
