// A file that is made once, whole or not at all, and never takes the place of another.
// For the moment of writing there is "<path>.new" beside it.
//
// Time: waits for the disk. Errors: as one line with the file and the reason.
// Lifetime: the file system outlives it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/posix/FileSystem.h"

namespace vantrel::posix {

class NewFile {
  public:
    NewFile(FileSystem& fileSystem, std::string path);

    // Why it could not be written as things are, found out by trying; nothing: it could.
    std::optional<std::string> obstacle();
    // Nothing: it is there, and would survive a loss of power.
    std::optional<std::string> write(std::string_view text);

  private:
    std::optional<std::string> isThere();
    std::error_code fill(FileSystem::File file, std::string_view text);
    std::optional<std::string> failure(std::error_code error) const;

    FileSystem& fileSystem_;
    std::string path_;
    std::string temporaryPath_;
};

}  // namespace vantrel::posix
