// How a popover appears: hanging under the status item, or, on a desktop that shows
// no status items, as an ordinary window.
#pragma once

namespace vantrel::ui {

enum class PopoverMode { panel, window };

}  // namespace vantrel::ui
