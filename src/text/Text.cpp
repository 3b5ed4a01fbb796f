#include "text/Text.h"

#include <utility>

namespace vantrel::text {

Text::Text(std::string key, std::vector<std::string> arguments, bool isVerbatim)
    : key_(std::move(key)), arguments_(std::move(arguments)), isVerbatim_(isVerbatim) {}

Text Text::verbatim(std::string text) { return Text(std::move(text), {}, true); }

Text Text::translated(std::string key, std::vector<std::string> arguments) {
    return Text(std::move(key), std::move(arguments), false);
}

std::string Text::english() const { return filled(key_); }

std::string Text::filled(std::string_view pattern) const {
    if (isVerbatim_) return key_;
    constexpr std::string_view placeholder = "%@";
    std::string result;
    for (const std::string& argument : arguments_) {
        const std::size_t at = pattern.find(placeholder);
        if (at == std::string_view::npos) break;
        result.append(pattern.substr(0, at)).append(argument);
        pattern.remove_prefix(at + placeholder.size());
    }
    return result.append(pattern);
}

}  // namespace vantrel::text
