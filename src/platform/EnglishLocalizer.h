// A user who reads English.
#pragma once

#include "platform/Localizer.h"

namespace vantrel::platform {

class EnglishLocalizer : public Localizer {
  public:
    std::string shown(const text::Text& text) override { return text.english(); }
};

}  // namespace vantrel::platform
