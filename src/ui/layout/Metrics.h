// The lengths around what lies in containers, in points; they are the same with every
// toolkit.
#pragma once

namespace vantrel::layout::metrics {

inline constexpr int disclosureSpacing = 6;
inline constexpr int formPadding = 20;
inline constexpr int sectionSpacing = 18;
inline constexpr int sectionTitleSpacing = 7;
inline constexpr int rowHorizontalPadding = 12;
inline constexpr int rowVerticalPadding = 8;
inline constexpr int rowMinimumHeight = 40;

}  // namespace vantrel::layout::metrics
