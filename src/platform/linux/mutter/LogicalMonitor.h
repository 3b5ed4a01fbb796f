// A part of the desktop, shown by one monitor, or by several that show the same.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace vantrel::mutter {

struct LogicalMonitor {
    int x = 0;
    int y = 0;
    // As it is laid out: turned, and scaled where the desktop's layout is.
    int width = 0;
    int height = 0;
    double scale = 1;
    std::uint32_t transform = 0;
    bool isPrimary = false;
    // The mode's id by the monitor's connector.
    std::map<std::string, std::string> modes;
    bool operator==(const LogicalMonitor&) const = default;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
    bool overlaps(const LogicalMonitor& other) const { return sharesColumns(other) && sharesRows(other); }
    // Side by side; a common corner isn't enough.
    bool touches(const LogicalMonitor& other) const {
        return ((x == other.right() || right() == other.x) && sharesRows(other)) ||
               ((y == other.bottom() || bottom() == other.y) && sharesColumns(other));
    }
    bool sharesColumns(const LogicalMonitor& other) const { return x < other.right() && other.x < right(); }
    bool sharesRows(const LogicalMonitor& other) const { return y < other.bottom() && other.y < bottom(); }
};

}  // namespace vantrel::mutter
