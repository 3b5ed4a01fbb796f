#include "platform/posix/StateFile.h"

#include <string_view>
#include <utility>

namespace vantrel::posix {
namespace {

using Failure = StateFile::Failure;

constexpr std::size_t readSize = std::size_t{64} << 10;

Failure failure(std::string_view doing, const std::string& path, std::error_code error) {
    return {std::string(doing) + " " + path + ": " + error.message()};
}

std::string withoutTrailingSlash(std::string folder) {
    while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
    return folder.empty() ? "." : folder;
}

// The root and the current folder are their own.
std::string parentOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return withoutTrailingSlash(path.substr(0, slash + 1));
}

}  // namespace

StateFile::StateFile(FileSystem& fileSystem, const std::string& folder, const std::string& name)
    : fileSystem_(fileSystem),
      folder_(withoutTrailingSlash(folder)),
      path_(folder_ + (folder_.ends_with('/') ? "" : "/") + name),
      lockPath_(path_ + ".lock"),
      temporaryPath_(path_ + ".new") {}

std::variant<StateFile::Contents, StateFile::Missing, StateFile::Damaged, StateFile::Failure>
StateFile::read() {
    const auto opened = open(path_, FileSystem::Open::existing);
    if (const auto* error = std::get_if<std::error_code>(&opened)) {
        if (*error == std::errc::no_such_file_or_directory) return Missing{};
        return failure("opening", path_, *error);
    }
    const FileSystem::File file = std::get<OpenFile>(opened).get();
    const auto status = fileSystem_.status(file);
    if (const auto* error = std::get_if<std::error_code>(&status)) return failure("reading", path_, *error);
    const auto [kind, isReadOnly] = std::get<FileSystem::Status>(status);
    if (kind == FileSystem::Kind::folder) return Damaged{"is a folder"};
    if (kind == FileSystem::Kind::other) return Damaged{"is no ordinary file"};

    Contents contents{{}, isReadOnly};
    while (true) {
        const auto bytes = fileSystem_.read(file, readSize);
        if (const auto* error = std::get_if<std::error_code>(&bytes))
            return failure("reading", path_, *error);
        const std::string& more = std::get<std::string>(bytes);
        if (more.empty()) break;
        contents.text += more;
        if (contents.text.size() > mostBytes) return Damaged{"is too large"};
    }
    if (contents.text.empty()) return Damaged{"is empty"};
    return contents;
}

std::variant<OpenFile, StateFile::Failure> StateFile::lock() {
    auto opened = open(lockPath_, FileSystem::Open::lockFile);
    const auto* error = std::get_if<std::error_code>(&opened);
    if (error != nullptr && *error == std::errc::no_such_file_or_directory) {
        if (const auto folderError = makeFolders(folder_)) return failure("making", folder_, folderError);
        opened = open(lockPath_, FileSystem::Open::lockFile);
        error = std::get_if<std::error_code>(&opened);
    }
    if (error != nullptr) return failure("opening", lockPath_, *error);
    auto& file = std::get<OpenFile>(opened);
    if (const auto lockError = fileSystem_.lock(file.get())) return failure("locking", lockPath_, lockError);
    return std::move(file);
}

std::variant<std::monostate, StateFile::Failure> StateFile::replace(const std::string& text) {
    if (text.size() > mostBytes) return Failure{path_ + " would be too large"};
    auto written = writeTemporary(text);
    if (std::holds_alternative<Failure>(written)) {
        fileSystem_.remove(temporaryPath_);
        return written;
    }
    if (const auto error = fileSystem_.rename(temporaryPath_, path_)) {
        fileSystem_.remove(temporaryPath_);
        return failure("replacing", path_, error);
    }
    unsyncedFolders_.insert(folder_);
    if (const auto error = syncFolders()) return failure("syncing", folder_, error);
    return std::monostate{};
}

std::variant<std::string, StateFile::Failure> StateFile::moveAside() {
    for (int number = 1;; ++number) {
        const std::string aside = path_ + ".damaged-" + std::to_string(number);
        const auto exists = fileSystem_.exists(aside);
        if (const auto* error = std::get_if<std::error_code>(&exists))
            return failure("looking for", aside, *error);
        if (std::get<bool>(exists)) continue;
        if (const auto error = fileSystem_.rename(path_, aside)) return failure("renaming to", aside, error);
        if (const auto error = syncFolder(folder_)) return failure("syncing", folder_, error);
        return aside;
    }
}

std::variant<OpenFile, std::error_code> StateFile::open(const std::string& path, FileSystem::Open purpose) {
    const auto opened = fileSystem_.open(path, purpose);
    if (const auto* error = std::get_if<std::error_code>(&opened)) return *error;
    return OpenFile(fileSystem_, std::get<FileSystem::File>(opened));
}

// What has the name was left by a process that ended while it wrote.
std::variant<OpenFile, std::error_code> StateFile::makeTemporary() {
    auto opened = open(temporaryPath_, FileSystem::Open::newFile);
    const auto* error = std::get_if<std::error_code>(&opened);
    if (error != nullptr && *error == std::errc::no_such_file_or_directory) {
        if (const auto folderError = makeFolders(folder_)) return folderError;
        opened = open(temporaryPath_, FileSystem::Open::newFile);
        error = std::get_if<std::error_code>(&opened);
    }
    if (error == nullptr || *error != std::errc::file_exists) return opened;
    if (const auto removal = fileSystem_.remove(temporaryPath_)) return removal;
    return open(temporaryPath_, FileSystem::Open::newFile);
}

std::variant<std::monostate, StateFile::Failure> StateFile::writeTemporary(const std::string& text) {
    const auto opened = makeTemporary();
    if (const auto* error = std::get_if<std::error_code>(&opened))
        return failure("making", temporaryPath_, *error);
    const FileSystem::File file = std::get<OpenFile>(opened).get();
    std::string_view rest = text;
    while (!rest.empty()) {
        const auto written = fileSystem_.write(file, rest);
        if (const auto* error = std::get_if<std::error_code>(&written))
            return failure("writing", temporaryPath_, *error);
        rest.remove_prefix(std::get<std::size_t>(written));
    }
    if (const auto error = fileSystem_.sync(file)) return failure("syncing", temporaryPath_, error);
    return std::monostate{};
}

std::error_code StateFile::makeFolders(const std::string& folder) {
    const std::string parent = parentOf(folder);
    auto error = fileSystem_.makeFolder(folder);
    if (error == std::errc::no_such_file_or_directory && parent != folder && parent != ".") {
        if (const auto parentError = makeFolders(parent)) return parentError;
        error = fileSystem_.makeFolder(folder);
    }
    // By another process in the meantime.
    if (error == std::errc::file_exists) return {};
    if (!error) unsyncedFolders_.insert(parent);
    return error;
}

std::error_code StateFile::syncFolders() {
    while (!unsyncedFolders_.empty()) {
        if (const auto error = syncFolder(*unsyncedFolders_.begin())) return error;
        unsyncedFolders_.erase(unsyncedFolders_.begin());
    }
    return {};
}

std::error_code StateFile::syncFolder(const std::string& folder) {
    const auto opened = open(folder, FileSystem::Open::existing);
    if (const auto* error = std::get_if<std::error_code>(&opened)) return *error;
    const auto error = fileSystem_.sync(std::get<OpenFile>(opened).get());
    // Some network file systems can't sync a folder; they don't need it either.
    return error == std::errc::invalid_argument ? std::error_code() : error;
}

}  // namespace vantrel::posix
