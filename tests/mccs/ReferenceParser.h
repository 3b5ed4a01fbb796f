// A second parser of capabilities strings, written for plainness and not for
// speed: it copies every character into a list and follows the rules step by step.
#pragma once

#include <optional>
#include <string>

#include "mccs/MonitorCapabilities.h"

namespace vantrel::test {

// `text` is well-formed UTF-8.
std::optional<mccs::MonitorCapabilities> parseByTheBook(const std::string& text);

}  // namespace vantrel::test
