// A place, in the pixels of a toolkit, from the top left corner.
#pragma once

namespace vantrel::layout {

struct Rect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rect&) const = default;

    // Without this much at the left and the right, at the top and the bottom.
    Rect inset(int horizontal, int vertical) const {
        return {x + horizontal, y + vertical, width - 2 * horizontal, height - 2 * vertical};
    }
};

}  // namespace vantrel::layout
