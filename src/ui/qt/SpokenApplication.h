// The program as a screen reader finds it: with its open popover, which Qt leaves
// out because most windows of that kind are menus and found by their button.
// Threads: main thread.
#pragma once

#include <QAccessibleObject>

namespace vantrel::qt {

class SpokenApplication : public QAccessibleApplication {
  public:
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
};

}  // namespace vantrel::qt
