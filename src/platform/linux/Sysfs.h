// The kernel's files about devices. Each read is one look: what is there may be gone at the
// next. Threads: any. Errors: what can't be read isn't there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::linux {

class Sysfs {
  public:
    explicit Sysfs(std::string root = "/sys") : root_(std::move(root)) {}

    // Paths are below the root: "/class/drm/card0".

    // Without the line break at the end.
    std::optional<std::string> text(const std::string& path) const;
    std::optional<std::uint64_t> number(const std::string& path) const;
    // As much as an attribute can hold; empty when there is none.
    std::vector<std::uint8_t> bytes(const std::string& path) const;
    bool exists(const std::string& path) const;
    // Names in a folder, sorted; digits in them as numbers.
    std::vector<std::string> names(const std::string& folder) const;
    // Where a link or folder really is, in full; the same for every way to one device.
    std::optional<std::string> realPath(const std::string& path) const;
    // 0, or why not (errno).
    int write(const std::string& path, const std::string& text) const;

  private:
    std::string root_;
};

}  // namespace vantrel::linux
