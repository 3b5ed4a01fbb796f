// The text of a file with the user's defaults: a JSON object with one member per
// key, each on a line of its own, in the order of the keys. A member that nobody
// here knows stays as it is.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Defaults.h"

namespace vantrel::posix {

class StateDocument {
  public:
    // Nothing if the text is not such a file's. The last of equal keys counts.
    static std::optional<StateDocument> parse(std::string_view text);
    std::string text() const;

    std::optional<platform::DefaultsValue> value(const std::string& key) const;
    void set(const std::string& key, const platform::DefaultsValue& value);
    void remove(const std::string& key);

    bool operator==(const StateDocument&) const = default;

  private:
    // Each value is a line of JSON.
    std::map<std::string, std::string> members_;
};

}  // namespace vantrel::posix
