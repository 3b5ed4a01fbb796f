#include "platform/posix/PosixFileSystem.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/Fatal.h"

namespace vantrel::posix {
namespace {

constexpr mode_t fileOfTheUser = S_IRUSR | S_IWUSR;
constexpr mode_t folderOfTheUser = S_IRWXU;
constexpr mode_t anyWriter = S_IWUSR | S_IWGRP | S_IWOTH;

std::error_code lastError() { return {errno, std::generic_category()}; }

std::error_code errorOf(int result) { return result < 0 ? lastError() : std::error_code(); }

template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

int descriptor(FileSystem::File file) { return static_cast<int>(file); }

int flags(FileSystem::Open purpose) {
    switch (purpose) {
        case FileSystem::Open::existing:
            return O_RDONLY | O_NONBLOCK;
        // Network file systems lock only what is open for writing.
        case FileSystem::Open::lockFile:
            return O_RDWR | O_CREAT;
        case FileSystem::Open::newFile:
            return O_WRONLY | O_CREAT | O_EXCL;
    }
    runtime::fatal("a file is opened for an unknown purpose");
}

}  // namespace

FileSystem::Outcome<FileSystem::File> PosixFileSystem::open(const std::string& path, Open purpose) {
    const int file = uninterrupted(
        [&] { return ::open(path.c_str(), flags(purpose) | O_CLOEXEC | O_NOCTTY, fileOfTheUser); });
    if (file < 0) return lastError();
    return File{file};
}

FileSystem::Outcome<FileSystem::Status> PosixFileSystem::status(File file) {
    struct stat found {};
    if (::fstat(descriptor(file), &found) < 0) return lastError();
    Status status;
    status.kind = S_ISREG(found.st_mode) ? Kind::file : S_ISDIR(found.st_mode) ? Kind::folder : Kind::other;
    status.isReadOnly = (found.st_mode & anyWriter) == 0;
    return status;
}

FileSystem::Outcome<std::string> PosixFileSystem::read(File file, std::size_t most) {
    std::string bytes(most, '\0');
    const ssize_t size = uninterrupted([&] { return ::read(descriptor(file), bytes.data(), most); });
    if (size < 0) return lastError();
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

FileSystem::Outcome<std::size_t> PosixFileSystem::write(File file, std::string_view bytes) {
    const ssize_t size = uninterrupted([&] { return ::write(descriptor(file), bytes.data(), bytes.size()); });
    if (size < 0) return lastError();
    if (size == 0) return std::make_error_code(std::errc::io_error);
    return static_cast<std::size_t>(size);
}

std::error_code PosixFileSystem::sync(File file) {
    return errorOf(uninterrupted([&] { return ::fsync(descriptor(file)); }));
}

std::error_code PosixFileSystem::lock(File file) {
    return errorOf(uninterrupted([&] { return ::flock(descriptor(file), LOCK_EX); }));
}

// Whether an interrupted close has closed differs between systems; never twice.
void PosixFileSystem::close(File file) { ::close(descriptor(file)); }

FileSystem::Outcome<bool> PosixFileSystem::exists(const std::string& path) {
    struct stat found {};
    if (::lstat(path.c_str(), &found) == 0) return true;
    if (errno == ENOENT) return false;
    return lastError();
}

std::error_code PosixFileSystem::rename(const std::string& from, const std::string& to) {
    return errorOf(::rename(from.c_str(), to.c_str()));
}

std::error_code PosixFileSystem::remove(const std::string& path) { return errorOf(::unlink(path.c_str())); }

std::error_code PosixFileSystem::makeFolder(const std::string& path) {
    return errorOf(::mkdir(path.c_str(), folderOfTheUser));
}

}  // namespace vantrel::posix
