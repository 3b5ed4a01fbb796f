// One small text file that is always whole: replaced at once or not at all, by one
// process at a time, whenever the program or the power ends.
//
//     const auto lock = file.lock();
//     file.read(), file.replace(text)    // while `lock` lives
//
// The folder also holds the lock file, which stays, and for a moment the next text.
// Time: waits for the disk, and for another process that holds the lock.
// Errors: as one line for the log. Lifetime: the file system outlives it.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <system_error>
#include <variant>

#include "platform/posix/FileSystem.h"
#include "platform/posix/OpenFile.h"

namespace vantrel::posix {

class StateFile {
  public:
    // A file beyond is damaged: what the program remembers has some kilobytes.
    static constexpr std::size_t mostBytes = std::size_t{8} << 20;

    struct Contents {
        std::string text;
        // Whoever took all permission to write wants the file left as it is.
        bool isReadOnly = false;
    };
    struct Missing {};
    // Not a file with something in it.
    struct Damaged {
        std::string how;
    };
    // Perhaps good, but out of reach.
    struct Failure {
        std::string why;
    };

    StateFile(FileSystem& fileSystem, const std::string& folder, const std::string& name);

    const std::string& path() const { return path_; }

    std::variant<Contents, Missing, Damaged, Failure> read();
    // Makes the folder where it is missing. Keep what it gives for as long as the file
    // must not change under the reader.
    std::variant<OpenFile, Failure> lock();

    // Both only under the lock, where others write the file too. No text: it is kept. A
    // failure: the file is as it was, or, when only the folder could not be synced,
    // perhaps replaced.
    std::variant<std::monostate, Failure> replace(const std::string& text);
    // Gives the first free name of "<path>.damaged-1" and so on, which it has then.
    std::variant<std::string, Failure> moveAside();

  private:
    std::variant<OpenFile, std::error_code> open(const std::string& path, FileSystem::Open purpose);
    std::variant<OpenFile, std::error_code> makeTemporary();
    std::variant<std::monostate, Failure> writeTemporary(const std::string& text);
    std::error_code makeFolders(const std::string& folder);
    std::error_code syncFolders();
    std::error_code syncFolder(const std::string& folder);

    FileSystem& fileSystem_;
    std::string folder_;
    std::string path_;
    std::string lockPath_;
    std::string temporaryPath_;
    // Where names were changed.
    std::set<std::string> unsyncedFolders_;
};

}  // namespace vantrel::posix
