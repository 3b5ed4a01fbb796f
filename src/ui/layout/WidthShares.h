// How the things in a row share its width: each as much as it likes while there is
// enough, the expanding ones evenly what is left; when it is too little, the widest
// give way first.
#pragma once

#include <vector>

namespace vantrel::layout {

struct WidthRange {
    int minimum = 0;
    int natural = 0;

    bool operator==(const WidthRange&) const = default;
};

struct WidthWish {
    WidthRange range;
    bool expands = false;
};

// A width for each wish, in order. Never below a minimum, even if that is too much.
std::vector<int> widthShares(const std::vector<WidthWish>& wishes, int available);

}  // namespace vantrel::layout
