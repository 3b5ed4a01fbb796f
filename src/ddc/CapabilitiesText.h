// The capabilities string as text, from the bytes that a monitor sent.
#pragma once

#include <string>
#include <string_view>

namespace vantrel::ddc {

// Without NUL bytes, which some monitors pad their fragments with; what is not
// valid UTF-8 becomes U+FFFD.
std::string capabilitiesText(std::string_view bytes);

}  // namespace vantrel::ddc
