#include "app/StoryDefaults.h"

#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::app {

StoryDefaults::StoryDefaults(std::optional<std::string> folder, platform::LogSink& sink)
    : folder_(std::move(folder)), sink_(sink) {}

void StoryDefaults::open() {
    if (folder_) file_.emplace(fileSystem_, *folder_, sink_);
}

std::optional<platform::DefaultsValue> StoryDefaults::value(const std::string& key) {
    return current().value(key);
}

void StoryDefaults::set(const std::string& key, platform::DefaultsValue value) {
    current().set(key, std::move(value));
}

void StoryDefaults::remove(const std::string& key) { current().remove(key); }

platform::Defaults& StoryDefaults::current() {
    if (!folder_) return memory_;
    runtime::require(file_.has_value(), "a story's settings are used before its program starts");
    return *file_;
}

}  // namespace vantrel::app
