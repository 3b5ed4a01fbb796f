#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "app/MenuBarIcon.h"

namespace vantrel::app {
namespace {

using ui::CurveTo;
using ui::MoveTo;
using ui::Point;

const std::vector<ui::PathStep>& pathOf(std::size_t shape) {
    return std::get<std::vector<ui::PathStep>>(MenuBarIcon::image().shapes.at(shape).outline);
}

// Where a path's curves lead, from its first point on.
std::vector<Point> tipsOf(const std::vector<ui::PathStep>& path) {
    std::vector<Point> tips{std::get<MoveTo>(path.front()).to};
    for (const auto& step : path) {
        if (const auto* curve = std::get_if<CurveTo>(&step)) tips.push_back(curve->to);
    }
    return tips;
}

TEST(MenuBarIcon, IsMadeOnce) { EXPECT_EQ(&MenuBarIcon::image(), &MenuBarIcon::image()); }

TEST(MenuBarIcon, Is20By16Points) { EXPECT_EQ(MenuBarIcon::image().size, (ui::Size{20, 16})); }

TEST(MenuBarIcon, DrawsTheScreenAsARoundedOutline) {
    const auto& shape = MenuBarIcon::image().shapes.at(0);
    EXPECT_EQ(std::get<ui::RoundedRectangle>(shape.outline),
              (ui::RoundedRectangle{.origin = {1.5, 2.5}, .size = {14.0, 9.5}, .cornerRadius = 2.0}));
    EXPECT_EQ(shape.stroke, (ui::Stroke{.width = 1.5, .hasRoundCaps = false}));
}

TEST(MenuBarIcon, DrawsFootAndNeckWithRoundCaps) {
    const std::vector<ui::PathStep> stand{MoveTo{{5.5, 14.5}}, ui::LineTo{{11.5, 14.5}}, MoveTo{{8.5, 12.0}},
                                          ui::LineTo{{8.5, 14.5}}};
    EXPECT_EQ(pathOf(1), stand);
    EXPECT_EQ(MenuBarIcon::image().shapes.at(1).stroke, (ui::Stroke{.width = 1.5, .hasRoundCaps = true}));
}

TEST(MenuBarIcon, FillsTwoSparkles) {
    ASSERT_EQ(MenuBarIcon::image().shapes.size(), 4U);
    EXPECT_FALSE(MenuBarIcon::image().shapes[2].stroke);
    EXPECT_FALSE(MenuBarIcon::image().shapes[3].stroke);
    EXPECT_EQ(pathOf(2), MenuBarIcon::sparkle({16.5, 3.5}, 3.5));
    EXPECT_EQ(pathOf(3), MenuBarIcon::sparkle({6.0, 7.25}, 2.0));
}

TEST(MenuBarIcon, ReachesTheRightAndTopEdgesWithTheLargeSparkle) {
    const std::vector<Point> tips{{20.0, 3.5}, {16.5, 7.0}, {13.0, 3.5}, {16.5, 0.0}, {20.0, 3.5}};
    EXPECT_EQ(tipsOf(pathOf(2)), tips);
}

TEST(MenuBarIcon, DrawsASparklesSidesThroughTheirWaists) {
    const auto path = MenuBarIcon::sparkle({10, 20}, 10);
    ASSERT_EQ(path.size(), 6U);
    EXPECT_TRUE(std::holds_alternative<ui::Close>(path.back()));
    for (int side = 0; side < 4; ++side) {
        const double angle = (45 + 90 * side) * std::numbers::pi / 180;
        const auto& curve = std::get<CurveTo>(path.at(static_cast<std::size_t>(side) + 1));
        EXPECT_NEAR(curve.control1.x, 10 + 2.8 * std::cos(angle), 1e-12);
        EXPECT_NEAR(curve.control1.y, 20 + 2.8 * std::sin(angle), 1e-12);
        EXPECT_EQ(curve.control1, curve.control2);
    }
}

}  // namespace
}  // namespace vantrel::app
