// Translations from the application's bundle: the table of the user's language that
// has no other name, with the English texts as keys. Main thread.
#pragma once

#include "platform/Localizer.h"

namespace vantrel::macos {

class MacLocalizer : public platform::Localizer {
  public:
    // A text that nobody has translated is shown in English.
    std::string shown(const text::Text& text) override;
};

}  // namespace vantrel::macos
