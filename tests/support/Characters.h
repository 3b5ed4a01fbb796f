// A text cut into its characters by utf8proc's own mapping: a second opinion on
// GraphemeClusters.
#pragma once

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utf8proc.h>
#include <vector>

namespace vantrel::test {

// `text` is well-formed UTF-8.
inline std::vector<std::string> characters(std::string_view text) {
    utf8proc_uint8_t* marked = nullptr;
    const utf8proc_ssize_t length =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                     static_cast<utf8proc_ssize_t>(text.size()), &marked, UTF8PROC_CHARBOUND);
    if (length < 0) {
        ADD_FAILURE() << "utf8proc doesn't take the text: " << utf8proc_errmsg(length);
        return {};
    }
    constexpr utf8proc_uint8_t startOfCharacter = 0xFF;
    std::vector<std::string> result;
    for (utf8proc_ssize_t index = 0; index < length; ++index) {
        if (marked[index] == startOfCharacter) {
            result.emplace_back();
        } else {
            result.back() += static_cast<char>(marked[index]);
        }
    }
    std::free(marked);
    return result;
}

}  // namespace vantrel::test
