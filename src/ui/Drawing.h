// A small picture made of lines and curves, which any toolkit can draw at any
// scale. Coordinates are in points, from the top left corner, y growing downwards.
// All of it is in one colour, which the toolkit chooses.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "ui/Size.h"

namespace vantrel::ui {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

struct MoveTo {
    Point to;

    bool operator==(const MoveTo&) const = default;
};

struct LineTo {
    Point to;

    bool operator==(const LineTo&) const = default;
};

struct CurveTo {
    Point control1;
    Point control2;
    Point to;

    bool operator==(const CurveTo&) const = default;
};

struct Close {
    bool operator==(const Close&) const = default;
};

using PathStep = std::variant<MoveTo, LineTo, CurveTo, Close>;

struct RoundedRectangle {
    Point origin;
    Size size;
    double cornerRadius = 0;

    bool operator==(const RoundedRectangle&) const = default;
};

struct Stroke {
    double width = 1;
    bool hasRoundCaps = false;

    bool operator==(const Stroke&) const = default;
};

// Stroked, or filled without a stroke.
struct Shape {
    std::variant<std::vector<PathStep>, RoundedRectangle> outline;
    std::optional<Stroke> stroke;

    bool operator==(const Shape&) const = default;
};

struct Drawing {
    Size size;
    // Each over the ones before it.
    std::vector<Shape> shapes;

    bool operator==(const Drawing&) const = default;
};

}  // namespace vantrel::ui
