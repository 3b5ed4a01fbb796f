// The first code point of a piece of UTF-8.
#pragma once

#include <cstddef>
#include <string_view>

namespace vantrel::text {

struct CodePoint {
    static constexpr char32_t replacementCharacter = 0xFFFD;

    // The replacement character where the bytes are ill-formed.
    char32_t value;
    // Bytes that it takes up: for ill-formed bytes those of the maximal subpart
    // of a well-formed sequence, at least one.
    std::size_t length;
    bool isWellFormed;

    // `bytes` is not empty.
    static CodePoint first(std::string_view bytes);
};

}  // namespace vantrel::text
