#include "ui/layout/WidthShares.h"

#include <algorithm>
#include <numeric>

namespace vantrel::layout {
namespace {

int sum(const std::vector<int>& widths) { return std::accumulate(widths.begin(), widths.end(), 0); }

void grow(std::vector<int>& widths, const std::vector<WidthWish>& wishes, int extra) {
    auto waiting = static_cast<int>(std::ranges::count_if(wishes, &WidthWish::expands));
    for (std::size_t i = 0; i < wishes.size(); ++i) {
        if (!wishes[i].expands) continue;
        const int part = extra / waiting--;
        widths[i] += part;
        extra -= part;
    }
}

// No wider than `limit`, as far as the minimum allows.
std::vector<int> limited(const std::vector<WidthWish>& wishes, int limit) {
    std::vector<int> widths;
    widths.reserve(wishes.size());
    for (const auto& [range, expands] : wishes) {
        widths.push_back(std::max(range.minimum, std::min(range.natural, limit)));
    }
    return widths;
}

}  // namespace

std::vector<int> widthShares(const std::vector<WidthWish>& wishes, int available) {
    int widest = 0;
    for (const WidthWish& wish : wishes) widest = std::max(widest, wish.range.natural);
    std::vector<int> widths = limited(wishes, widest);
    if (const int extra = available - sum(widths); extra >= 0) {
        grow(widths, wishes, extra);
        return widths;
    }
    int low = 0;
    int high = widest;
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (sum(limited(wishes, middle)) <= available) {
            low = middle;
        } else {
            high = middle - 1;
        }
    }
    widths = limited(wishes, low);
    // What rounding has left over.
    int rest = available - sum(widths);
    for (std::size_t i = 0; i < widths.size() && rest > 0; ++i) {
        if (widths[i] >= wishes[i].range.natural) continue;
        ++widths[i];
        --rest;
    }
    return widths;
}

}  // namespace vantrel::layout
