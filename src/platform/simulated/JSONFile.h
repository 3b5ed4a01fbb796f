// The way from a JSON text or file to plain data, for every format that the
// program reads: whatever the bytes are, the result is data or the first mistake.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/simulated/FileError.h"
#include "platform/simulated/JSONPlace.h"

namespace vantrel::simulated::JSONFile {

// Far above any desk; keeps an endless file (a device) from filling the memory.
constexpr std::size_t maximumBytes = 4U << 20;

// The file's bytes.
std::variant<std::string, FileError> contents(const std::filesystem::path& path);

// Calls `reader` with the root of the text's tree and gives the first mistake.
// `file` is what the error calls the text.
std::optional<FileError> read(std::string_view text, std::string_view file,
                              const std::function<void(const JSONPlace&)>& reader);

}  // namespace vantrel::simulated::JSONFile
