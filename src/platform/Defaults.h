// The user's settings as the platform keeps them: one flat map from text keys to
// typed values, shared by everything in the application.
//
// Threads: main thread. Time: each change is kept at once. Errors: none are
// reported; a platform that can't keep a value says so in the log.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>

namespace vantrel::platform {

// Bytes, as opposed to text.
struct DefaultsData {
    std::string bytes;
    bool operator==(const DefaultsData&) const = default;
};

using DefaultsDictionary = std::map<std::string, std::variant<double, std::string>>;

using DefaultsValue = std::variant<DefaultsData, std::int64_t, std::string, DefaultsDictionary>;

class Defaults {
  public:
    virtual ~Defaults() = default;
    // Nothing when there is none, or one of a type that nobody here keeps.
    virtual std::optional<DefaultsValue> value(const std::string& key) = 0;
    virtual void set(const std::string& key, DefaultsValue value) = 0;
    virtual void remove(const std::string& key) = 0;
};

}  // namespace vantrel::platform
