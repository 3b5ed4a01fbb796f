// Trees with everything in them that a view may show.
#pragma once

#include "ui/Node.h"

namespace vantrel::qt {

// Cards of several displays, one of them being asked about, with long names.
ui::Node samplePopover();
// Rows of every kind in a form.
ui::Node sampleForm();

}  // namespace vantrel::qt
