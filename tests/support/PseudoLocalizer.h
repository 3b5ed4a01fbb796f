// A language in which every translated text is the English one in «guillemets»,
// and every text that is shown as it stands is in ‹single ones›: what a view shows
// without asking the localizer stands out.
#pragma once

#include <string>

#include "platform/Localizer.h"

namespace vantrel::test {

class PseudoLocalizer : public platform::Localizer {
  public:
    std::string shown(const text::Text& text) override {
        return text.isVerbatim() ? "‹" + text.key() + "›" : "«" + text.filled(text.key()) + "»";
    }

    // The rest of a text without what this localizer made, arguments included.
    static std::string withoutLocalized(const std::string& text) {
        std::string rest;
        int depth = 0;
        for (std::size_t at = 0; at < text.size();) {
            const auto begins = [&](std::string_view mark) {
                return text.compare(at, mark.size(), mark) == 0;
            };
            if (begins("«") || begins("‹")) {
                ++depth;
                at += begins("«") ? std::string_view("«").size() : std::string_view("‹").size();
            } else if (begins("»") || begins("›")) {
                --depth;
                at += begins("»") ? std::string_view("»").size() : std::string_view("›").size();
            } else {
                if (depth == 0) rest += text[at];
                ++at;
            }
        }
        return rest;
    }
};

}  // namespace vantrel::test
