// Bytes as text (RFC 4648, section 4: the usual alphabet, padded).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrel::text::Base64 {

std::string encode(std::string_view bytes);
// Nothing unless `text` is exactly what encode() gives for some bytes.
std::optional<std::string> decode(std::string_view text);

}  // namespace vantrel::text::Base64
