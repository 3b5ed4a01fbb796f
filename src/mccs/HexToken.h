// A hexadecimal number that is being read digit by digit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>

namespace vantrel::mccs {

class HexToken {
  public:
    void append(std::uint8_t digit) {
        ++length_;
        // Once it is too large it stays so: nothing overflows, however long it gets.
        if (value_ <= largest) value_ = value_ * 16 + digit;
    }

    bool isEmpty() const { return length_ == 0; }
    // Digits, leading zeros included.
    std::size_t length() const { return length_; }
    // Nothing when it doesn't fit 16 bits.
    std::optional<std::uint16_t> value() const {
        if (value_ > largest) return std::nullopt;
        return static_cast<std::uint16_t>(value_);
    }

  private:
    static constexpr std::uint32_t largest = std::numeric_limits<std::uint16_t>::max();

    std::size_t length_ = 0;
    std::uint32_t value_ = 0;
};

}  // namespace vantrel::mccs
