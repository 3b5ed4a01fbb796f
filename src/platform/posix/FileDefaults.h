// The user's defaults where the platform has none of its own: in a file of its own
// folder, "settings.json" (StateDocument).
//
// Several programs may share the folder: each change is merged into what the file
// holds at that moment, under a lock. What others wrote is seen after the next
// change made here.
//
// What can't be kept stays in memory; each later change tries again to keep all of
// it. A damaged file is kept beside as "settings.json.damaged-1" and so on; one that
// can't be read, or that nobody may write, is left as it is. The log gets one line
// when that begins, and one when changes can be kept again.
//
// Threads: main thread. Time: each change waits for the disk, and for another
// program that is just changing the file. Lifetime: file system and sink outlive it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <variant>

#include "platform/Defaults.h"
#include "platform/Log.h"
#include "platform/LogSink.h"
#include "platform/posix/FileSystem.h"
#include "platform/posix/StateDocument.h"
#include "platform/posix/StateFile.h"

namespace vantrel::posix {

class FileDefaults : public platform::Defaults {
  public:
    static constexpr const char* fileName = "settings.json";

    // The folder is made by the first change.
    FileDefaults(FileSystem& fileSystem, const std::string& folder, platform::LogSink& sink);

    std::optional<platform::DefaultsValue> value(const std::string& key) override;
    void set(const std::string& key, platform::DefaultsValue value) override;
    void remove(const std::string& key) override;

  private:
    // Nothing when the key is removed.
    using Change = std::optional<platform::DefaultsValue>;
    // Why changes can't be kept; nothing when they are.
    using Obstacle = std::optional<std::string>;
    struct Found {
        StateDocument document;
        bool isReadOnly = false;
    };
    using Reading = std::variant<Found, StateFile::Missing, StateFile::Damaged, StateFile::Failure>;

    void load();
    Reading read();
    Obstacle moveAside(const StateFile::Damaged& damage);
    void change(const std::string& key, Change change);
    Obstacle keepChanges();
    Obstacle readOnly() const;
    void report(const Obstacle& obstacle);

    StateFile file_;
    platform::Log log_;
    // What value() shows: the file as it was last read, with all changes.
    StateDocument document_;
    // Not in the file yet.
    std::map<std::string, Change> changes_;
    bool isObstructed_ = false;
};

}  // namespace vantrel::posix
