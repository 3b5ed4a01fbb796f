// The stories that come with the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/StoryFile.h"

namespace vantrel::app::ShippedStories {

struct Entry {
    std::string_view name;
    // One line.
    std::string description;
};

// By name.
std::vector<Entry> list();

// The story file's text, or nothing when no such story is shipped.
std::optional<std::string_view> text(std::string_view name);

// The shipped story of that name, else the story file at that path.
StoryFileResult read(std::string_view nameOrPath);

// What a mistake in that story calls the file.
std::string fileName(std::string_view nameOrPath);

}  // namespace vantrel::app::ShippedStories
