// The folder of umockdev in which a process and its children see devices that aren't
// there, for as long as this object lives.
//
// The process must have been started through umockdev-wrapper; otherwise it is stopped.
// Threads: main thread. Errors: what can't be made stops the program.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <umockdev.h>
#include <utility>
#include <vector>

#include "linux/kernel/GObjectHandle.h"

namespace vantrel::test {

class Testbed {
  public:
    struct Device {
        // Below /sys.
        std::string path;
        // Below /dev; empty: it has none.
        std::string node;
        std::vector<std::pair<std::string, std::string>> properties;
        // Lines of text.
        std::vector<std::pair<std::string, std::string>> attributes;
        // Relative.
        std::vector<std::pair<std::string, std::string>> links;
    };

    Testbed();

    UMockdevTestbed* get() const { return testbed_.get(); }

    // Tells listeners, as remove() does.
    void add(const Device& device);
    void remove(const std::string& path);
    void event(const std::string& path, const std::string& action);
    // The same with a property of the event's own.
    void event(const std::string& path, const std::string& action, const std::string& property,
               const std::string& value);

    // The text with an end of line.
    void setAttribute(const std::string& path, const std::string& name, const std::string& text);
    void setAttribute(const std::string& path, const std::string& name, std::span<const std::uint8_t> bytes);
    // Without the end of line.
    std::string attribute(const std::string& path, const std::string& name) const;
    void addLink(const std::string& path, const std::string& name, const std::string& target);
    void removeLink(const std::string& path, const std::string& name);

    // Where a file really is: "/sys/..." or "/dev/...".
    std::filesystem::path place(const std::string& path) const;

  private:
    GObjectHandle<UMockdevTestbed> testbed_;
    std::filesystem::path root_;
};

}  // namespace vantrel::test
