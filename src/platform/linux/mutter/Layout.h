// How the desktop is laid out. Mutter takes a layout only if nothing overlaps, all parts
// hang together, the whole begins at 0,0, and one part is the primary one.
//
// As text it is one line that a later run of the program reads, with the parts as words:
// "mutter 0,0,1920,1080,1,0,1;DP-1=1920x1080@60.000".
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/mutter/LogicalMonitor.h"

namespace vantrel::mutter {

class Layout {
  public:
    Layout() = default;
    explicit Layout(std::vector<LogicalMonitor> parts);
    bool operator==(const Layout&) const = default;

    // From left to right.
    const std::vector<LogicalMonitor>& parts() const { return parts_; }
    // Nothing when the monitor isn't lit.
    const LogicalMonitor* find(const std::string& connector) const;
    bool isAcceptable() const;

    // Without that monitor, acceptable again by moving as little as that takes.
    Layout without(const std::string& connector) const;
    // With another part where it says that it is; perhaps not acceptable.
    Layout with(const LogicalMonitor& part) const;
    // With another part to the right of all others; their primary one stays it.
    Layout withNewcomer(LogicalMonitor part) const;

    std::string line() const;
    // Nothing for a line that line() can't have given.
    static std::optional<Layout> read(const std::string& line);

  private:
    void sort();
    void join();
    void moveToOrigin();
    void choosePrimary();

    std::vector<LogicalMonitor> parts_;
};

}  // namespace vantrel::mutter
