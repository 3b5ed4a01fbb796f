// In the pixels of a toolkit; ui::Size is in points.
#pragma once

namespace vantrel::layout {

struct PixelSize {
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize&) const = default;
};

}  // namespace vantrel::layout
