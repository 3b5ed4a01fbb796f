// One character as a person counts them: a base with everything that combines
// with it, or CR LF. "(" under a combining mark is a character of its own, and
// not "(".
#pragma once

#include <optional>
#include <string_view>

namespace vantrel::text {

class GraphemeCluster {
  public:
    // `bytes` is one cluster of some text, as GraphemeClusters finds it, and must
    // outlive this object.
    explicit constexpr GraphemeCluster(std::string_view bytes) : bytes_(bytes) {}

    constexpr std::string_view bytes() const { return bytes_; }

    // Whether it is this ASCII character and nothing else.
    constexpr bool is(char ascii) const { return bytes_.size() == 1 && bytes_.front() == ascii; }

    // Its lower case, when that is one ASCII character.
    constexpr std::optional<char> asciiLowercase() const {
        if (bytes_.size() == 1) {
            const char byte = bytes_.front();
            return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
        }
        // The only other character with such a lower case. (That of U+0130, the
        // capital I with a dot, keeps the dot: an "i" and a combining mark.)
        constexpr std::string_view kelvinSign = "\xE2\x84\xAA";
        if (bytes_ == kelvinSign) return 'k';
        return std::nullopt;
    }

    // Whether it starts with a letter of any script (general category L).
    bool isLetter() const;

  private:
    std::string_view bytes_;
};

}  // namespace vantrel::text
