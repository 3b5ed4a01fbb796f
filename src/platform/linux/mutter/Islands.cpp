#include "platform/linux/mutter/Islands.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace vantrel::mutter::Islands {
namespace {

using Island = std::vector<LogicalMonitor>;

struct Move {
    int x = 0;
    int y = 0;
    long length() const { return std::labs(x) + std::labs(y); }
};

LogicalMonitor moved(LogicalMonitor part, const Move& move) {
    part.x += move.x;
    part.y += move.y;
    return part;
}

bool touchesAny(const LogicalMonitor& part, const Island& island) {
    return std::any_of(island.begin(), island.end(),
                       [&](const LogicalMonitor& other) { return part.touches(other); });
}

// How far to go in one direction so that both ranges have something in common: not at
// all, or to the same beginning, or to the same end.
std::vector<int> alignments(int from, int fromEnd, int to, int toEnd) {
    if (from < toEnd && to < fromEnd) return {0};
    return {to - from, toEnd - fromEnd};
}

// All ways to put one part to another one's sides.
std::vector<Move> waysTo(const LogicalMonitor& part, const LogicalMonitor& other) {
    std::vector<Move> ways;
    for (const int y : alignments(part.y, part.bottom(), other.y, other.bottom())) {
        ways.push_back({other.right() - part.x, y});
        ways.push_back({other.x - part.right(), y});
    }
    for (const int x : alignments(part.x, part.right(), other.x, other.right())) {
        ways.push_back({x, other.bottom() - part.y});
        ways.push_back({x, other.y - part.bottom()});
    }
    return ways;
}

bool fits(const Island& island, const Move& move, const std::vector<Island>& others) {
    return std::all_of(island.begin(), island.end(), [&](const LogicalMonitor& part) {
        const LogicalMonitor there = moved(part, move);
        return std::all_of(others.begin(), others.end(), [&](const Island& other) {
            return std::none_of(other.begin(), other.end(),
                                [&](const LogicalMonitor& taken) { return there.overlaps(taken); });
        });
    });
}

// The shortest way for an island to one of the others.
std::optional<Move> shortest(const Island& island, const std::vector<Island>& others) {
    std::optional<Move> best;
    for (const LogicalMonitor& part : island) {
        for (const Island& other : others) {
            for (const LogicalMonitor& goal : other) {
                for (const Move& way : waysTo(part, goal)) {
                    const bool isBetter = !best || way.length() < best->length();
                    if (isBetter && fits(island, way, others)) best = way;
                }
            }
        }
    }
    return best;
}

// When nothing else is possible.
Island inARow(Island parts) {
    int x = 0;
    for (LogicalMonitor& part : parts) {
        part.x = std::exchange(x, x + part.width);
        part.y = 0;
    }
    return parts;
}

}  // namespace

std::vector<std::vector<LogicalMonitor>> find(std::vector<LogicalMonitor> parts) {
    std::vector<Island> islands;
    while (!parts.empty()) {
        Island island{parts.front()};
        parts.erase(parts.begin());
        for (std::size_t before = 0; before != island.size();) {
            before = island.size();
            const auto joining =
                std::stable_partition(parts.begin(), parts.end(),
                                      [&](const LogicalMonitor& part) { return !touchesAny(part, island); });
            island.insert(island.end(), joining, parts.end());
            parts.erase(joining, parts.end());
        }
        islands.push_back(std::move(island));
    }
    return islands;
}

std::vector<LogicalMonitor> joined(std::vector<LogicalMonitor> parts) {
    std::vector<Island> islands = find(parts);
    while (islands.size() > 1) {
        // The smallest island moves.
        const auto smallest = std::min_element(
            islands.begin(), islands.end(),
            [](const Island& left, const Island& right) { return left.size() <= right.size(); });
        Island moving = std::move(*smallest);
        islands.erase(smallest);
        const auto way = shortest(moving, islands);
        if (!way) return inARow(std::move(parts));
        parts.clear();
        for (const Island& island : islands) parts.insert(parts.end(), island.begin(), island.end());
        for (const LogicalMonitor& part : moving) parts.push_back(moved(part, *way));
        islands = find(parts);
    }
    return islands.empty() ? Island{} : islands.front();
}

}  // namespace vantrel::mutter::Islands
