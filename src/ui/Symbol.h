// The name of a picture: the symbol-image names of macOS, which the other
// renderers map to drawings of their own.
#pragma once

#include <string>

namespace vantrel::ui {

using Symbol = std::string;

// The program's own icon, in the places where it isn't a symbol.
inline constexpr const char* applicationIcon = "vantrel";

}  // namespace vantrel::ui
