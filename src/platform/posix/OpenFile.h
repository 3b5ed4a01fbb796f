// An open file that is closed when its owner lets go of it.
// Lifetime: the file system outlives it.
#pragma once

#include <utility>

#include "platform/posix/FileSystem.h"

namespace vantrel::posix {

class OpenFile {
  public:
    OpenFile(FileSystem& fileSystem, FileSystem::File file) : fileSystem_(&fileSystem), file_(file) {}
    OpenFile(OpenFile&& other) noexcept
        : fileSystem_(std::exchange(other.fileSystem_, nullptr)), file_(other.file_) {}
    OpenFile& operator=(OpenFile&& other) noexcept {
        std::swap(fileSystem_, other.fileSystem_);
        std::swap(file_, other.file_);
        return *this;
    }
    ~OpenFile() {
        if (fileSystem_ != nullptr) fileSystem_->close(file_);
    }

    FileSystem::File get() const { return file_; }

  private:
    FileSystem* fileSystem_;
    FileSystem::File file_;
};

}  // namespace vantrel::posix
