// The desks that come with the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/DeskFile.h"

namespace vantrel::simulated::ShippedDesks {

// The desk for those who name none.
constexpr std::string_view defaultName = "default";

struct Entry {
    std::string_view name;
    // One line.
    std::string description;
};

// The default desk, then the others by name.
std::vector<Entry> list();

// The desk file's text, or nothing when no such desk is shipped.
std::optional<std::string_view> text(std::string_view name);

// The shipped desk of that name, else the desk file at that path.
DeskFileResult read(std::string_view nameOrPath);

}  // namespace vantrel::simulated::ShippedDesks
