// Where a panel goes that hangs under something on a screen.
#pragma once

#include <QRect>
#include <QSize>

namespace vantrel::qt {

// Below what it hangs under, in the middle; above it, or beside it, where a panel
// of the desktop is at another edge. Always wholly inside `available`, smaller than
// `size` if it has to be. `screen` is all of the screen that has `anchor`.
QRect popoverPlace(const QRect& anchor, const QSize& size, const QRect& screen, const QRect& available,
                   int gap);

}  // namespace vantrel::qt
