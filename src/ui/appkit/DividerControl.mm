#include "ui/appkit/DividerControl.h"

namespace vantrel::appkit {

DividerControl::DividerControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[NSBox alloc] initWithFrame:NSZeroRect]) {
    static_cast<NSBox*>(view()).boxType = NSBoxSeparator;
}

}  // namespace vantrel::appkit
