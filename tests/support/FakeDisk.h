// A disk in memory that loses what it may lose when the power goes: what was written
// into a file and not synced (all of it, half of it, or it reads as zeros), and each
// change of a folder's names that was not synced, with or without the others.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/FileSystem.h"

namespace vantrel::test {

class FakeDisk : public posix::FileSystem {
  public:
    // With an empty folder of that path, and those above it.
    explicit FakeDisk(const std::string& folder);

    // All of it survives a loss of power.
    void put(const std::string& path, const std::string& bytes, Status status = Status());
    std::optional<std::string> bytes(const std::string& path) const;
    // Everything, folders too.
    std::vector<std::string> paths() const;

    // Every disk that may be found after the power went now.
    std::vector<FakeDisk> afterPowerLoss() const;
    // The disk as it is when the program ends and the power stays.
    FakeDisk afterProgramEnd() const;

    Outcome<File> open(const std::string& path, Open purpose) override;
    Outcome<Status> status(File file) override;
    Outcome<std::string> read(File file, std::size_t most) override;
    // A few bytes at a time.
    Outcome<std::size_t> write(File file, std::string_view bytes) override;
    std::error_code sync(File file) override;
    // Waiting would be for ever: it stops the program.
    std::error_code lock(File file) override;
    void close(File file) override;
    Outcome<bool> exists(const std::string& path) override;
    std::error_code rename(const std::string& from, const std::string& to) override;
    std::error_code remove(const std::string& path) override;
    std::error_code makeFolder(const std::string& path) override;

  private:
    // What a name stands for; names are its index.
    struct Node {
        Status status;
        std::string bytes;
        std::string synced;
    };
    using Names = std::map<std::string, std::size_t>;
    // A name that goes, a name that comes, or both at once.
    struct NameChange {
        std::string gone;
        std::string come;
        std::size_t node = 0;
    };
    struct Opened {
        std::string path;
        std::size_t node = 0;
        std::size_t position = 0;
    };

    static void apply(Names& names, const NameChange& change);
    void change(NameChange change);
    std::size_t add(Status status);
    std::error_code findParent(const std::string& path) const;
    Opened& opened(File file);
    Node& node(File file) { return nodes_[opened(file).node]; }
    std::vector<FakeDisk> withLostBytes() const;

    std::vector<Node> nodes_;
    Names names_;
    Names syncedNames_;
    std::vector<NameChange> unsyncedChanges_;
    std::map<int, Opened> files_;
    int nextFile_ = 3;
    std::map<std::string, int> locks_;
};

}  // namespace vantrel::test
