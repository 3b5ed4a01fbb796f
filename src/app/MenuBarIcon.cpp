#include "app/MenuBarIcon.h"

#include <array>
#include <cstddef>
#include <numbers>

namespace vantrel::app::MenuBarIcon {

namespace {

constexpr double lineWidth = 1.5;
// How far a sparkle's waist is from its centre, as a part of its radius.
constexpr double waist = 0.28;

ui::Drawing draw() {
    const ui::RoundedRectangle screen{.origin = {1.5, 2.5}, .size = {14.0, 9.5}, .cornerRadius = 2.0};
    const std::vector<ui::PathStep> stand{ui::MoveTo{{5.5, 14.5}}, ui::LineTo{{11.5, 14.5}},
                                          ui::MoveTo{{8.5, 12.0}}, ui::LineTo{{8.5, 14.5}}};
    return {.size = {20, 16},
            .shapes = {
                {.outline = screen, .stroke = ui::Stroke{.width = lineWidth}},
                {.outline = stand, .stroke = ui::Stroke{.width = lineWidth, .hasRoundCaps = true}},
                // Over the screen's top right corner on purpose.
                {.outline = sparkle({16.5, 3.5}, 3.5), .stroke = {}},
                {.outline = sparkle({6.0, 7.25}, 2.0), .stroke = {}},
            }};
}

}  // namespace

const ui::Drawing& image() {
    static const ui::Drawing drawing = draw();
    return drawing;
}

std::vector<ui::PathStep> sparkle(ui::Point center, double radius) {
    struct Corner {
        // Of the tip that a side ends at, and of the waist on the way there.
        ui::Point tip;
        ui::Point waist;
    };
    const double diagonal = waist * radius / std::numbers::sqrt2;
    const ui::Point first{center.x + radius, center.y};
    const std::array<Corner, 4> sides{{
        {{center.x, center.y + radius}, {center.x + diagonal, center.y + diagonal}},
        {{center.x - radius, center.y}, {center.x - diagonal, center.y + diagonal}},
        {{center.x, center.y - radius}, {center.x - diagonal, center.y - diagonal}},
        {first, {center.x + diagonal, center.y - diagonal}},
    }};
    std::vector<ui::PathStep> path{ui::MoveTo{first}};
    for (const Corner& side : sides) path.emplace_back(ui::CurveTo{side.waist, side.waist, side.tip});
    path.emplace_back(ui::Close{});
    return path;
}

}  // namespace vantrel::app::MenuBarIcon
