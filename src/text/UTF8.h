// Bytes from outside (monitors, the registry, files) made into text.
#pragma once

#include <string>
#include <string_view>

namespace vantrel::text {

// `bytes` with every maximal ill-formed subsequence replaced by U+FFFD, as the
// Unicode Standard recommends (chapter 3.9, "U+FFFD Substitution of Maximal
// Subparts"). Well-formed UTF-8 comes back unchanged, NUL bytes included.
std::string repairedUTF8(std::string_view bytes);

}  // namespace vantrel::text
