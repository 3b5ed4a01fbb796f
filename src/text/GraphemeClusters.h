// A text as the sequence of its characters: extended grapheme clusters
// (Unicode Standard Annex 29).
//
// Works on UTF-8; ill-formed bytes count as replacement characters. The text
// must outlive the range and its iterators.
// Time: linear; a text in ASCII needs no look at Unicode's tables.
#pragma once

#include <cstddef>
#include <iterator>
#include <string_view>

#include "text/GraphemeCluster.h"

namespace vantrel::text {

class GraphemeClusters {
  public:
    class Iterator {
      public:
        using value_type = GraphemeCluster;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        explicit Iterator(std::string_view rest) : rest_(rest), length_(firstLength(rest)) {}

        GraphemeCluster operator*() const { return GraphemeCluster(rest_.substr(0, length_)); }
        Iterator& operator++() {
            rest_.remove_prefix(length_);
            length_ = firstLength(rest_);
            return *this;
        }
        Iterator operator++(int) {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        // The text from the start of this character on.
        std::string_view rest() const { return rest_; }

        // Both are iterators of the same text.
        bool operator==(const Iterator& other) const { return rest_.size() == other.rest_.size(); }
        bool operator==(std::default_sentinel_t) const { return rest_.empty(); }

      private:
        std::string_view rest_;
        std::size_t length_ = 0;
    };

    explicit GraphemeClusters(std::string_view text) : text_(text) {}

    Iterator begin() const { return Iterator(text_); }
    static std::default_sentinel_t end() { return std::default_sentinel; }

  private:
    // Bytes of the first character; 0 of an empty text.
    static std::size_t firstLength(std::string_view text) {
        // Nothing joins two ASCII characters but CR LF.
        if (text.size() > 1 && isASCII(text[0]) && isASCII(text[1])) {
            return text[0] == '\r' && text[1] == '\n' ? 2 : 1;
        }
        return firstLengthByProperties(text);
    }
    static std::size_t firstLengthByProperties(std::string_view text);
    static bool isASCII(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

    std::string_view text_;
};

}  // namespace vantrel::text
