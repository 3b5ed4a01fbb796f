// Reads a story from a story file: JSON, as docs/stories.md describes it.
//
// Errors: whatever the bytes are, the result is a story that keeps every promise
// of Story.h and StoryStep.h, or the first mistake found. Whether a desk has the
// displays that it names is StoryCheck's to tell.
#pragma once

#include <filesystem>
#include <string_view>
#include <variant>
#include <vector>

#include "app/Story.h"
#include "platform/simulated/FileError.h"
#include "platform/simulated/Words.h"

namespace vantrel::app {

using StoryFileResult = std::variant<Story, simulated::FileError>;

namespace StoryFile {

// `file` is what the error calls the text.
StoryFileResult readText(std::string_view text, std::string_view file);
StoryFileResult readFile(const std::filesystem::path& path);

// Described in docs/stories.md.
std::vector<simulated::Words> vocabulary();

}  // namespace StoryFile
}  // namespace vantrel::app
