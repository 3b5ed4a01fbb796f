// Which layouts Mutter takes. Written without a look at how the program makes them.
#pragma once

#include <string>

#include "mutter/MockMutter.h"

namespace vantrel::mutter::MockRules {

// What is wrong with it; empty when nothing is.
std::string objection(const MockMutter::Desk& desk, const std::vector<MockScreen::Logical>& logical);

}  // namespace vantrel::mutter::MockRules
