#include "platform/posix/NewFile.h"

#include <utility>

#include "platform/posix/OpenFile.h"

namespace vantrel::posix {
namespace {

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace

NewFile::NewFile(FileSystem& fileSystem, std::string path)
    : fileSystem_(fileSystem), path_(std::move(path)), temporaryPath_(path_ + ".new") {}

std::optional<std::string> NewFile::obstacle() {
    if (auto reason = isThere()) return reason;
    const auto opened = fileSystem_.open(temporaryPath_, FileSystem::Open::newFile);
    if (const auto* error = std::get_if<std::error_code>(&opened))
        return temporaryPath_ + ": " + error->message();
    fileSystem_.close(std::get<FileSystem::File>(opened));
    return failure(fileSystem_.remove(temporaryPath_));
}

std::optional<std::string> NewFile::write(std::string_view text) {
    if (auto reason = isThere()) return reason;
    const auto opened = fileSystem_.open(temporaryPath_, FileSystem::Open::newFile);
    // What has that name may be somebody's.
    if (const auto* error = std::get_if<std::error_code>(&opened))
        return temporaryPath_ + ": " + error->message();
    std::error_code error;
    {
        const OpenFile file(fileSystem_, std::get<FileSystem::File>(opened));
        error = fill(file.get(), text);
    }
    if (!error) error = fileSystem_.rename(temporaryPath_, path_);
    if (error) {
        fileSystem_.remove(temporaryPath_);
        return failure(error);
    }
    const auto folder = fileSystem_.open(folderOf(path_), FileSystem::Open::existing);
    if (const auto* folderError = std::get_if<std::error_code>(&folder)) return failure(*folderError);
    const OpenFile names(fileSystem_, std::get<FileSystem::File>(folder));
    error = fileSystem_.sync(names.get());
    // Some network file systems can't sync a folder; they don't need it either.
    return error == std::errc::invalid_argument ? std::nullopt : failure(error);
}

std::optional<std::string> NewFile::isThere() {
    const auto exists = fileSystem_.exists(path_);
    if (const auto* error = std::get_if<std::error_code>(&exists)) return failure(*error);
    if (std::get<bool>(exists)) return path_ + ": is there already, and is not overwritten";
    return std::nullopt;
}

std::error_code NewFile::fill(FileSystem::File file, std::string_view text) {
    while (!text.empty()) {
        const auto written = fileSystem_.write(file, text);
        if (const auto* error = std::get_if<std::error_code>(&written)) return *error;
        text.remove_prefix(std::get<std::size_t>(written));
    }
    return fileSystem_.sync(file);
}

std::optional<std::string> NewFile::failure(std::error_code error) const {
    if (!error) return std::nullopt;
    return path_ + ": " + error.message();
}

}  // namespace vantrel::posix
