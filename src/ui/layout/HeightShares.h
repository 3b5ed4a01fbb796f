// How the things in a column share its height: each gets what it asks for; what is
// left over goes to those that expand, what is missing comes from those that can
// do with less.
#pragma once

#include <vector>

namespace vantrel::layout {

struct HeightWish {
    int height = 0;
    bool expands = false;
    bool canShrink = false;
};

std::vector<int> heightShares(const std::vector<HeightWish>& wishes, int available);

}  // namespace vantrel::layout
