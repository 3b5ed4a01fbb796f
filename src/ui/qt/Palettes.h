// The colours of a desktop that has none of its own: what pictures are drawn in.
#pragma once

#include <QPalette>

namespace vantrel::qt {

QPalette lightPalette();
QPalette darkPalette();

}  // namespace vantrel::qt
