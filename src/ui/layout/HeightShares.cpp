#include "ui/layout/HeightShares.h"

#include <algorithm>

namespace vantrel::layout {

std::vector<int> heightShares(const std::vector<HeightWish>& wishes, int available) {
    std::vector<int> heights;
    int rest = available;
    for (const HeightWish& wish : wishes) {
        heights.push_back(wish.height);
        rest -= wish.height;
    }
    auto growing = static_cast<int>(std::ranges::count_if(wishes, &HeightWish::expands));
    for (std::size_t i = 0; i < wishes.size() && rest != 0; ++i) {
        if (rest > 0 && wishes[i].expands) {
            const int part = rest / growing--;
            heights[i] += part;
            rest -= part;
        } else if (rest < 0 && wishes[i].canShrink) {
            const int part = std::min(-rest, heights[i]);
            heights[i] -= part;
            rest += part;
        }
    }
    return heights;
}

}  // namespace vantrel::layout
