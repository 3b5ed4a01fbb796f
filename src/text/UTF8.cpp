#include "text/UTF8.h"

#include "text/CodePoint.h"

namespace vantrel::text {

std::string repairedUTF8(std::string_view bytes) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    std::string result;
    result.reserve(bytes.size());
    while (!bytes.empty()) {
        const CodePoint first = CodePoint::first(bytes);
        result.append(first.isWellFormed ? bytes.substr(0, first.length) : replacement);
        bytes.remove_prefix(first.length);
    }
    return result;
}

}  // namespace vantrel::text
