// A text that a person will see, before it is translated: either a key (the
// English text itself, with "%@" where an argument goes) or a text that is
// shown as it stands in every language (brand names, numbers, units).
//
// A plain value. The platform's Localizer turns it into what is shown; logs
// and tests use english().
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel::text {

class Text {
  public:
    // Shown as it stands.
    static Text verbatim(std::string text);
    // Looked up under `key`; each "%@" of the translation takes the next argument.
    static Text translated(std::string key, std::vector<std::string> arguments = {});

    bool isVerbatim() const { return isVerbatim_; }
    // The verbatim text, or the key.
    const std::string& key() const { return key_; }
    const std::vector<std::string>& arguments() const { return arguments_; }

    std::string english() const;
    // The text with `pattern` (a translation of key()) in place of the key.
    std::string filled(std::string_view pattern) const;

    bool operator==(const Text&) const = default;

  private:
    Text(std::string key, std::vector<std::string> arguments, bool isVerbatim);

    std::string key_;
    std::vector<std::string> arguments_;
    bool isVerbatim_;
};

}  // namespace vantrel::text
