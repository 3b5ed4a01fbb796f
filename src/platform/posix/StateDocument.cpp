#include "platform/posix/StateDocument.h"

#include "platform/posix/BoundedJSON.h"
#include "platform/posix/DefaultsValueJSON.h"
#include "text/UTF8.h"

namespace vantrel::posix {

std::optional<StateDocument> StateDocument::parse(std::string_view text) {
    const auto json = BoundedJSON::parse(text);
    if (!json || !json->is_object()) return std::nullopt;
    StateDocument document;
    for (const auto& [key, value] : json->items()) document.members_[key] = value.dump();
    return document;
}

std::string StateDocument::text() const {
    std::string text = "{";
    const char* separator = "\n";
    for (const auto& [key, value] : members_) {
        text.append(separator).append("  ").append(BoundedJSON::JSON(key).dump()).append(": ").append(value);
        separator = ",\n";
    }
    return text + "\n}\n";
}

std::optional<platform::DefaultsValue> StateDocument::value(const std::string& key) const {
    const auto found = members_.find(text::repairedUTF8(key));
    if (found == members_.end()) return std::nullopt;
    return DefaultsValueJSON::decode(found->second);
}

void StateDocument::set(const std::string& key, const platform::DefaultsValue& value) {
    members_[text::repairedUTF8(key)] = DefaultsValueJSON::encode(value);
}

void StateDocument::remove(const std::string& key) { members_.erase(text::repairedUTF8(key)); }

}  // namespace vantrel::posix
