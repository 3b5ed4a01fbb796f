// A tree of nodes as text, for people and for tests: a line for each node, indented
// by its depth. Lengths, fonts and handlers are left out; what a person reads,
// hears or can operate is all there.
//
//     column
//       text "Vantrel"
//       switch "Open at Login" on
//       slider 42 of 0...100, value "42%", named "Brightness"
#pragma once

#include <string>

#include "ui/Node.h"

namespace vantrel::outline {

std::string outlineOf(const ui::Node& node);

}  // namespace vantrel::outline
