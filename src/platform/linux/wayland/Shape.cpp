#include "platform/linux/wayland/Shape.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrel::wayland {
namespace {

constexpr std::string_view kind = "wayland";

// The numbers of "1920x1080@60000", with these marks between them.
std::optional<std::vector<int>> numbers(std::string_view text, std::string_view marks) {
    std::vector<int> found;
    for (std::size_t index = 0; index <= marks.size(); ++index) {
        int number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc()) return std::nullopt;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
        found.push_back(number);
        if (index == marks.size()) break;
        if (text.empty() || text.front() != marks[index]) return std::nullopt;
        text.remove_prefix(1);
    }
    if (!text.empty()) return std::nullopt;
    return found;
}

bool take(std::string_view name, std::string_view value, Shape& shape) {
    const std::string_view marks = name == "mode" ? "x@" : name == "position" ? "," : "";
    const auto told = numbers(value, marks);
    if (!told) return false;
    const std::vector<int>& number = *told;
    if (name == "mode") {
        shape.mode = Mode{number[0], number[1], number[2]};
    } else if (name == "position") {
        shape.position = Shape::Position{number[0], number[1]};
    } else if (name == "transform") {
        shape.transform = number[0];
    } else if (name == "scale") {
        shape.scale = number[0];
    } else if (name == "vrr") {
        shape.variableRefresh = number[0];
    } else {
        return false;
    }
    return true;
}

}  // namespace

std::string Shape::line() const {
    std::ostringstream text;
    text << kind;
    if (mode) text << " mode=" << mode->width << 'x' << mode->height << '@' << mode->refresh;
    if (position) text << " position=" << position->x << ',' << position->y;
    if (transform) text << " transform=" << *transform;
    if (scale) text << " scale=" << *scale;
    if (variableRefresh) text << " vrr=" << *variableRefresh;
    return text.str();
}

std::optional<Shape> Shape::read(const std::string& line) {
    std::istringstream words(line);
    std::string word;
    if (!(words >> word) || word != kind) return std::nullopt;
    Shape shape;
    while (words >> word) {
        const std::size_t mark = word.find('=');
        if (mark == std::string::npos) return std::nullopt;
        const std::string_view view = word;
        if (!take(view.substr(0, mark), view.substr(mark + 1), shape)) return std::nullopt;
    }
    // The compositor ends the connection of a client that asks for less than nothing.
    if (shape.scale && *shape.scale <= 0) return std::nullopt;
    if (shape.transform && (*shape.transform < 0 || *shape.transform > 7)) return std::nullopt;
    if (shape.line() != line) return std::nullopt;
    return shape;
}

std::optional<int> Shape::rightEdge() const {
    if (!mode || !position) return std::nullopt;
    const bool isOnItsSide = (transform.value_or(0) & 1) != 0;
    const std::int64_t pixels = isOnItsSide ? mode->height : mode->width;
    const std::int64_t divisor = scale.value_or(unscaled);
    const std::int64_t edge = position->x + (pixels * unscaled + divisor - 1) / divisor;
    if (!std::in_range<int>(edge)) return std::nullopt;
    return static_cast<int>(edge);
}

}  // namespace vantrel::wayland
