// The VCP codes (MCCS) that the program treats in a way of their own.
#pragma once

#include <array>
#include <cstdint>

#include "mccs/MCCS.h"

namespace vantrel::model {

inline constexpr std::uint8_t brightness = 0x10;
inline constexpr std::uint8_t contrast = 0x12;
inline constexpr std::uint8_t inputSource = mccs::MCCS::inputSource;
inline constexpr std::uint8_t volume = 0x62;
inline constexpr std::uint8_t mute = 0x8D;

// What a monitor gets that says nothing of itself; loaded first and refreshed, in
// this order.
inline constexpr std::array defaultCodes{brightness, contrast, inputSource, volume};

// Shown in rows of their own, not in a section.
inline constexpr std::array codesWithRows{brightness, contrast, inputSource, volume, mute};

}  // namespace vantrel::model
