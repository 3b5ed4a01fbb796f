// The files of a POSIX system, one system call per operation, so that tests can
// let each of them fail, and end the program or the power between any two.
//
// Threads: any. Errors: as error codes of the generic category; an interrupted
// call is made again. Paths: UTF-8, with "/" between names.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <variant>

namespace vantrel::posix {

class FileSystem {
  public:
    template <class Value>
    using Outcome = std::variant<Value, std::error_code>;

    // What open() gave and close() has not taken back.
    enum class File : int {};

    enum class Open {
        // For reading. A folder opens too, to be synced; a pipe opens without a writer.
        existing,
        // To be locked; made where it is missing.
        lockFile,
        // For writing; fails with file_exists where something has the name.
        newFile,
    };

    enum class Kind { file, folder, other };
    struct Status {
        Kind kind = Kind::file;
        // Nobody at all is permitted to write.
        bool isReadOnly = false;
    };

    virtual ~FileSystem() = default;

    // What is made is for the user alone.
    virtual Outcome<File> open(const std::string& path, Open purpose) = 0;
    virtual Outcome<Status> status(File file) = 0;
    // Between one byte and `most`; nothing at the end.
    virtual Outcome<std::string> read(File file, std::size_t most) = 0;
    // How much of `bytes` was written: one byte at least.
    virtual Outcome<std::size_t> write(File file, std::string_view bytes) = 0;
    // Waits until the file, or the names in the folder, would survive a loss of power.
    virtual std::error_code sync(File file) = 0;
    // Waits until no other open file of that path is locked. Closing unlocks, as does
    // the end of the process.
    virtual std::error_code lock(File file) = 0;
    virtual void close(File file) = 0;

    // Also a broken symbolic link exists.
    virtual Outcome<bool> exists(const std::string& path) = 0;
    // At once: `to` is what it was, or `from`.
    virtual std::error_code rename(const std::string& from, const std::string& to) = 0;
    virtual std::error_code remove(const std::string& path) = 0;
    // For the user alone.
    virtual std::error_code makeFolder(const std::string& path) = 0;
};

}  // namespace vantrel::posix
