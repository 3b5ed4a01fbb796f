#include "mutter/MockRules.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace vantrel::mutter::MockRules {
namespace {

struct Rectangle {
    long left = 0;
    long top = 0;
    long right = 0;
    long bottom = 0;
};

bool isOverlap(const Rectangle& a, const Rectangle& b) {
    return std::max(a.left, b.left) < std::min(a.right, b.right) &&
           std::max(a.top, b.top) < std::min(a.bottom, b.bottom);
}

bool isNeighbour(const Rectangle& a, const Rectangle& b) {
    const bool rows = std::max(a.top, b.top) < std::min(a.bottom, b.bottom);
    const bool columns = std::max(a.left, b.left) < std::min(a.right, b.right);
    return (rows && (a.left == b.right || a.right == b.left)) ||
           (columns && (a.top == b.bottom || a.bottom == b.top));
}

Rectangle place(const MockMutter::Desk& desk, const MockScreen::Logical& logical,
                const MockScreen::Mode& mode) {
    double width = mode.width;
    double height = mode.height;
    if (logical.transform % 2 == 1) std::swap(width, height);
    if (desk.layoutMode == 1) {
        width /= logical.scale;
        height /= logical.scale;
    }
    return {logical.x, logical.y, logical.x + std::lround(width), logical.y + std::lround(height)};
}

}  // namespace

std::string objection(const MockMutter::Desk& desk, const std::vector<MockScreen::Logical>& logical) {
    if (logical.empty()) return "Monitors config incomplete";
    std::vector<Rectangle> rectangles;
    std::set<std::string> connectors;
    std::set<double> scales;
    for (const MockScreen::Logical& part : logical) {
        if (part.modes.empty() || part.scale <= 0 || part.transform > 7) return "Invalid logical monitor";
        const MockScreen::Mode* first = nullptr;
        for (const auto& [connector, id] : part.modes) {
            const MockScreen::Mode* const mode = desk.mode(connector, id);
            if (mode == nullptr) return "Invalid mode or connector";
            if (!connectors.insert(connector).second) return "Monitor used twice";
            if (first != nullptr && (first->width != mode->width || first->height != mode->height)) {
                return "Mirrored modes of different sizes";
            }
            first = mode;
        }
        scales.insert(part.scale);
        rectangles.push_back(place(desk, part, *first));
    }
    if (desk.needsOneScale && scales.size() > 1) return "Logical monitor scales must be identical";
    long left = rectangles.front().left;
    long top = rectangles.front().top;
    for (std::size_t index = 0; index < rectangles.size(); ++index) {
        left = std::min(left, rectangles[index].left);
        top = std::min(top, rectangles[index].top);
        bool hasNeighbour = rectangles.size() == 1;
        for (std::size_t other = 0; other < rectangles.size(); ++other) {
            if (other == index) continue;
            if (isOverlap(rectangles[index], rectangles[other])) return "Logical monitors overlap";
            hasNeighbour = hasNeighbour || isNeighbour(rectangles[index], rectangles[other]);
        }
        if (!hasNeighbour) return "Logical monitors not adjacent";
    }
    if (left != 0 || top != 0) return "Logical monitors positions are offset";
    const auto primaries = std::count_if(logical.begin(), logical.end(),
                                         [](const MockScreen::Logical& part) { return part.isPrimary; });
    return primaries == 1 ? "" : "Config needs one primary logical monitor";
}

}  // namespace vantrel::mutter::MockRules
