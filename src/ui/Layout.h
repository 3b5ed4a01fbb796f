// Where a node wants to be, and how large. Lengths are in points; 0 leaves them to
// the contents.
#pragma once

namespace vantrel::ui {

struct Layout {
    int horizontalPadding = 0;
    int verticalPadding = 0;
    int width = 0;
    int height = 0;
    // Of a window's contents.
    int minimumHeight = 0;
    int maximumHeight = 0;
    // Takes the width that its container has to give.
    bool fillsWidth = false;
    // Its size is reported as an event, each time it changes.
    bool reportsSize = false;

    bool operator==(const Layout&) const = default;
};

}  // namespace vantrel::ui
