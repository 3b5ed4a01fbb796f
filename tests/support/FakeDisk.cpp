#include "support/FakeDisk.h"

#include <algorithm>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::test {
namespace {

constexpr std::size_t writtenAtOnce = 64;

std::error_code error(std::errc code) { return std::make_error_code(code); }

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace

FakeDisk::FakeDisk(const std::string& folder) {
    names_["/"] = add({Kind::folder, false});
    for (std::size_t slash = folder.find('/', 1);; slash = folder.find('/', slash + 1)) {
        names_[folder.substr(0, slash)] = add({Kind::folder, false});
        if (slash == std::string::npos) break;
    }
    syncedNames_ = names_;
}

void FakeDisk::put(const std::string& path, const std::string& bytes, Status status) {
    const std::size_t index = add(status);
    nodes_[index].bytes = nodes_[index].synced = bytes;
    names_[path] = syncedNames_[path] = index;
}

std::optional<std::string> FakeDisk::bytes(const std::string& path) const {
    const auto found = names_.find(path);
    return found != names_.end() ? std::optional(nodes_[found->second].bytes) : std::nullopt;
}

std::vector<std::string> FakeDisk::paths() const {
    std::vector<std::string> paths;
    for (const auto& [path, node] : names_) paths.push_back(path);
    return paths;
}

std::vector<FakeDisk> FakeDisk::afterPowerLoss() const {
    std::vector<FakeDisk> disks;
    for (std::size_t survivors = 0; survivors < std::size_t{1} << unsyncedChanges_.size(); ++survivors) {
        FakeDisk disk = afterProgramEnd();
        disk.names_ = syncedNames_;
        for (std::size_t i = 0; i < unsyncedChanges_.size(); ++i) {
            if ((survivors >> i & 1U) != 0) apply(disk.names_, unsyncedChanges_[i]);
        }
        disk.unsyncedChanges_.clear();
        disk.syncedNames_ = disk.names_;
        for (FakeDisk& variant : disk.withLostBytes()) disks.push_back(std::move(variant));
    }
    return disks;
}

std::vector<FakeDisk> FakeDisk::withLostBytes() const {
    std::vector<FakeDisk> disks{*this};
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
        const Node& node = nodes_[i];
        if (node.bytes == node.synced) continue;
        const std::string variants[] = {node.synced, node.bytes, node.bytes.substr(0, node.bytes.size() / 2),
                                        std::string(node.bytes.size(), '\0')};
        std::vector<FakeDisk> more;
        for (const FakeDisk& disk : disks) {
            for (const std::string& bytes : variants) {
                more.push_back(disk);
                more.back().nodes_[i].bytes = more.back().nodes_[i].synced = bytes;
            }
        }
        disks = std::move(more);
    }
    return disks;
}

FakeDisk FakeDisk::afterProgramEnd() const {
    FakeDisk disk = *this;
    disk.files_.clear();
    disk.locks_.clear();
    return disk;
}

FakeDisk::Outcome<FakeDisk::File> FakeDisk::open(const std::string& path, Open purpose) {
    if (const auto missing = findParent(path)) return missing;
    const bool isThere = names_.contains(path);
    if (isThere && purpose == Open::newFile) return error(std::errc::file_exists);
    if (!isThere && purpose == Open::existing) return error(std::errc::no_such_file_or_directory);
    if (!isThere) change({"", path, add(Status())});
    const int file = nextFile_++;
    files_[file] = {path, names_.at(path), 0};
    return File{file};
}

FakeDisk::Outcome<FakeDisk::Status> FakeDisk::status(File file) { return node(file).status; }

FakeDisk::Outcome<std::string> FakeDisk::read(File file, std::size_t most) {
    if (node(file).status.kind == Kind::folder) return error(std::errc::is_a_directory);
    std::string bytes = node(file).bytes.substr(opened(file).position, most);
    opened(file).position += bytes.size();
    return bytes;
}

FakeDisk::Outcome<std::size_t> FakeDisk::write(File file, std::string_view bytes) {
    const std::string_view part = bytes.substr(0, writtenAtOnce);
    node(file).bytes += part;
    return part.size();
}

std::error_code FakeDisk::sync(File file) {
    node(file).synced = node(file).bytes;
    if (node(file).status.kind != Kind::folder) return {};
    std::erase_if(unsyncedChanges_, [&, folder = opened(file).path](const NameChange& change) {
        if (folderOf(change.come.empty() ? change.gone : change.come) != folder) return false;
        apply(syncedNames_, change);
        return true;
    });
    return {};
}

std::error_code FakeDisk::lock(File file) {
    const bool isFree = locks_.emplace(opened(file).path, static_cast<int>(file)).second;
    runtime::require(isFree, "a file of the fake disk is locked twice");
    return {};
}

void FakeDisk::close(File file) {
    std::erase_if(locks_, [&](const auto& lock) { return lock.second == static_cast<int>(file); });
    runtime::require(files_.erase(static_cast<int>(file)) == 1, "a file of the fake disk is closed twice");
}

FakeDisk::Outcome<bool> FakeDisk::exists(const std::string& path) { return names_.contains(path); }

std::error_code FakeDisk::rename(const std::string& from, const std::string& to) {
    if (!names_.contains(from)) return error(std::errc::no_such_file_or_directory);
    change({from, to, names_.at(from)});
    return {};
}

std::error_code FakeDisk::remove(const std::string& path) {
    if (!names_.contains(path)) return error(std::errc::no_such_file_or_directory);
    change({path, "", 0});
    return {};
}

std::error_code FakeDisk::makeFolder(const std::string& path) {
    if (const auto missing = findParent(path)) return missing;
    if (names_.contains(path)) return error(std::errc::file_exists);
    change({"", path, add({Kind::folder, false})});
    return {};
}

void FakeDisk::apply(Names& names, const NameChange& change) {
    if (!change.gone.empty()) names.erase(change.gone);
    if (!change.come.empty()) names[change.come] = change.node;
}

void FakeDisk::change(NameChange change) {
    apply(names_, change);
    unsyncedChanges_.push_back(std::move(change));
}

std::size_t FakeDisk::add(Status status) {
    nodes_.push_back({status, "", ""});
    return nodes_.size() - 1;
}

std::error_code FakeDisk::findParent(const std::string& path) const {
    return names_.contains(folderOf(path)) ? std::error_code() : error(std::errc::no_such_file_or_directory);
}

FakeDisk::Opened& FakeDisk::opened(File file) {
    const auto found = files_.find(static_cast<int>(file));
    runtime::require(found != files_.end(), "a file of the fake disk is used after its close");
    return found->second;
}

}  // namespace vantrel::test
