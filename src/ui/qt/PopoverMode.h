// How a popover appears: hanging under the status item, or, on a desktop without a
// tray for it, as an ordinary window.
#pragma once

namespace vantrel::qt {

enum class PopoverMode { panel, window };

}  // namespace vantrel::qt
