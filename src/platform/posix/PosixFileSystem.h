// The files of the system that the program runs on.
#pragma once

#include "platform/posix/FileSystem.h"

namespace vantrel::posix {

class PosixFileSystem : public FileSystem {
  public:
    Outcome<File> open(const std::string& path, Open purpose) override;
    Outcome<Status> status(File file) override;
    Outcome<std::string> read(File file, std::size_t most) override;
    Outcome<std::size_t> write(File file, std::string_view bytes) override;
    std::error_code sync(File file) override;
    std::error_code lock(File file) override;
    void close(File file) override;
    Outcome<bool> exists(const std::string& path) override;
    std::error_code rename(const std::string& from, const std::string& to) override;
    std::error_code remove(const std::string& path) override;
    std::error_code makeFolder(const std::string& path) override;
};

}  // namespace vantrel::posix
