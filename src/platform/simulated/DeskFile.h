// Reads a desk from a desk file: JSON, as docs/simulation.md describes it.
//
// Errors: whatever the bytes are, the result is a desk that keeps every promise
// of Desk.h, or the first mistake found.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/simulated/Desk.h"
#include "platform/simulated/DeskFileError.h"

namespace vantrel::simulated {

using DeskFileResult = std::variant<Desk, DeskFileError>;

namespace DeskFile {

// Far above any desk; keeps an endless file (a device) from filling the memory.
constexpr std::size_t maximumBytes = 4U << 20;

// `file` is what the error calls the text.
DeskFileResult readText(std::string_view text, std::string_view file);
DeskFileResult readFile(const std::filesystem::path& path);

// The words that a desk file may use in one kind of object or value.
struct Words {
    // The heading that docs/simulation.md describes them under.
    std::string_view heading;
    std::vector<std::string_view> words;
};
std::vector<Words> vocabulary();

}  // namespace DeskFile
}  // namespace vantrel::simulated
