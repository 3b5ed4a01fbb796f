#include "platform/posix/FileDefaults.h"

#include <utility>

namespace vantrel::posix {
namespace {

using platform::Log;
using platform::LogLevel;

void apply(StateDocument& document, const std::string& key,
           const std::optional<platform::DefaultsValue>& change) {
    if (change) {
        document.set(key, *change);
    } else {
        document.remove(key);
    }
}

}  // namespace

FileDefaults::FileDefaults(FileSystem& fileSystem, const std::string& folder, platform::LogSink& sink)
    : file_(fileSystem, folder, fileName), log_(sink) {
    load();
}

std::optional<platform::DefaultsValue> FileDefaults::value(const std::string& key) {
    return document_.value(key);
}

void FileDefaults::set(const std::string& key, platform::DefaultsValue value) {
    change(key, std::move(value));
}

void FileDefaults::remove(const std::string& key) { change(key, std::nullopt); }

// Without the lock, so that a folder that nobody may write into can be read; the
// file is whole at any moment.
void FileDefaults::load() {
    const auto reading = read();
    if (const auto* failure = std::get_if<StateFile::Failure>(&reading)) {
        report(failure->why);
    } else if (std::holds_alternative<StateFile::Damaged>(reading)) {
        report(keepChanges());
    } else if (const auto* found = std::get_if<Found>(&reading)) {
        document_ = found->document;
        if (found->isReadOnly) report(readOnly());
    }
}

FileDefaults::Reading FileDefaults::read() {
    auto reading = file_.read();
    if (auto* damaged = std::get_if<StateFile::Damaged>(&reading)) return std::move(*damaged);
    if (auto* failure = std::get_if<StateFile::Failure>(&reading)) return std::move(*failure);
    const auto* contents = std::get_if<StateFile::Contents>(&reading);
    if (contents == nullptr) return StateFile::Missing{};
    auto document = StateDocument::parse(contents->text);
    if (!document) return StateFile::Damaged{"holds no settings"};
    return Found{std::move(*document), contents->isReadOnly};
}

FileDefaults::Obstacle FileDefaults::moveAside(const StateFile::Damaged& damage) {
    const auto moved = file_.moveAside();
    const std::string what = file_.path() + " " + damage.how;
    if (const auto* failure = std::get_if<StateFile::Failure>(&moved)) return what + "; " + failure->why;
    log_.write(Log::display, LogLevel::error,
               "settings: " + what + ": it is kept as " + std::get<std::string>(moved));
    return std::nullopt;
}

void FileDefaults::change(const std::string& key, Change change) {
    apply(document_, key, change);
    changes_.insert_or_assign(key, std::move(change));
    report(keepChanges());
}

FileDefaults::Obstacle FileDefaults::keepChanges() {
    const auto lock = file_.lock();
    if (const auto* failure = std::get_if<StateFile::Failure>(&lock)) return failure->why;
    const auto reading = read();
    if (const auto* failure = std::get_if<StateFile::Failure>(&reading)) return failure->why;
    if (const auto* damaged = std::get_if<StateFile::Damaged>(&reading)) {
        if (auto obstacle = moveAside(*damaged)) return obstacle;
    }
    const auto* found = std::get_if<Found>(&reading);
    // A file that was deleted or damaged meanwhile comes back as it is in memory.
    StateDocument next = found != nullptr ? found->document : document_;
    for (const auto& [key, change] : changes_) apply(next, key, change);
    // After a failure the file may hold the change, but only until the power is lost.
    if (isObstructed_ || next != (found != nullptr ? found->document : StateDocument())) {
        if (found != nullptr && found->isReadOnly) return readOnly();
        const auto replaced = file_.replace(next.text());
        if (const auto* failure = std::get_if<StateFile::Failure>(&replaced)) return failure->why;
    }
    document_ = std::move(next);
    changes_.clear();
    return std::nullopt;
}

FileDefaults::Obstacle FileDefaults::readOnly() const { return file_.path() + " is read-only"; }

void FileDefaults::report(const Obstacle& obstacle) {
    if (obstacle && !isObstructed_) {
        log_.write(Log::display, LogLevel::error, "settings: changes stay in memory: " + *obstacle);
    }
    if (!obstacle && isObstructed_) {
        log_.write(Log::display, LogLevel::standard, "settings: changes are kept again in " + file_.path());
    }
    isObstructed_ = obstacle.has_value();
}

}  // namespace vantrel::posix
