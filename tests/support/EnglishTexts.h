// A user who reads English, for rooms that don't see the simulated computer.
#pragma once

#include "platform/Localizer.h"

namespace vantrel::test {

class EnglishTexts : public platform::Localizer {
  public:
    std::string shown(const text::Text& text) override { return text.english(); }
};

}  // namespace vantrel::test
