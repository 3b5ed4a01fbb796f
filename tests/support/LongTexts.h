// A language whose words are 40 % longer than English ones, with accents, between
// brackets: what has no room for it has none for many real languages.
#pragma once

#include <string>

#include "platform/Localizer.h"

namespace vantrel::test {

class LongTexts : public platform::Localizer {
  public:
    std::string shown(const text::Text& text) override {
        if (text.isVerbatim()) return text.key();
        std::string pattern;
        int length = 0;
        for (const char character : text.key()) {
            pattern += accented(character);
            ++length;
        }
        // A few words more, so that it can wrap where English can.
        for (int more = 0; more < length * 2 / 5; ++more) pattern += more % 6 == 5 ? ' ' : '~';
        return "[" + text.filled(pattern) + "]";
    }

  private:
    static std::string accented(char character) {
        switch (character) {
            case 'a':
                return "á";
            case 'e':
                return "ê";
            case 'i':
                return "ï";
            case 'o':
                return "ö";
            case 'u':
                return "ü";
            default:
                return {character};
        }
    }
};

}  // namespace vantrel::test
