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
#include "platform/simulated/FileError.h"
#include "platform/simulated/JSONFile.h"
#include "platform/simulated/Words.h"

namespace vantrel::simulated {

using DeskFileError = FileError;
using DeskFileResult = std::variant<Desk, DeskFileError>;

namespace DeskFile {

using JSONFile::maximumBytes;

// `file` is what the error calls the text.
DeskFileResult readText(std::string_view text, std::string_view file);
DeskFileResult readFile(const std::filesystem::path& path);

using simulated::Words;
// Described in docs/simulation.md.
std::vector<Words> vocabulary();

}  // namespace DeskFile
}  // namespace vantrel::simulated
