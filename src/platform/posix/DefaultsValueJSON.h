// A value of the user's defaults as one line of JSON that keeps its type:
//
//     {"integer":17}    {"text":"ddc"}    {"dictionary":{"brightness":0.5}}
//     {"json":[20,[5,8]]}    {"base64":"AP8="}
//
// The last two are data: as JSON where the bytes are JSON just as it is written
// here, so that people can read and edit it, and otherwise in base 64.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Defaults.h"

namespace vantrel::posix::DefaultsValueJSON {

// Text that is no UTF-8 is repaired. A real that is not finite is left out of its
// dictionary: JSON has none.
std::string encode(const platform::DefaultsValue& value);
// Nothing for other JSON, such as what a later version of the program keeps.
std::optional<platform::DefaultsValue> decode(std::string_view json);

}  // namespace vantrel::posix::DefaultsValueJSON
