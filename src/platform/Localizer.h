// Turns a text of the program into what is shown in the user's language. A
// platform without translations shows the English text.
// Threads: main thread.
#pragma once

#include <string>

#include "text/Text.h"

namespace vantrel::platform {

class Localizer {
  public:
    virtual ~Localizer() = default;
    virtual std::string shown(const text::Text&) = 0;
};

}  // namespace vantrel::platform
