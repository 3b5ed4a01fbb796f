#include "ui/layout/Box.h"

#include <algorithm>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::layout {

Box::Box(const View& view, ui::ElementID element, std::unique_ptr<Control> control)
    : view_(view), element_(element), node_{.element = ui::Spacer{}}, control_(std::move(control)) {}

void Box::update(const ui::Node& node) {
    node_ = node;
    control_->apply(node_);
}

void Box::refresh() {
    control_->apply(node_);
    for (const auto& child : children_) child->refresh();
}

void Box::insertChild(std::size_t position, std::unique_ptr<Box> child) {
    runtime::require(position <= children_.size(), "a node is inserted behind the end");
    children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(position), std::move(child));
}

void Box::moveChild(std::size_t position, ui::ElementID element) {
    const auto found = std::ranges::find(children_, element, &Box::element_);
    runtime::require(found != children_.end() && position < children_.size(), "no such node to move");
    auto child = std::move(*found);
    children_.erase(found);
    insertChild(position, std::move(child));
}

void Box::removeChild(ui::ElementID element) {
    std::erase_if(children_, [element](const auto& child) { return child->element_ == element; });
}

WidthRange Box::widths() const {
    const std::uint64_t measuring = view_.stage.measuring();
    if (std::exchange(measuredWidths_, measuring) != measuring) widths_ = measureWidths();
    return widths_;
}

WidthRange Box::measureWidths() const {
    const ui::Layout& layout = node_.layout;
    if (layout.width > 0) return {pixels(layout.width), pixels(layout.width)};
    const WidthRange content = contentWidths();
    const int padding = 2 * pixels(layout.horizontalPadding);
    return {content.minimum + padding, content.natural + padding};
}

int Box::height(int width) const {
    const std::uint64_t measuring = view_.stage.measuring();
    if (measuredHeight_ != measuring || heightsWidth_ != width) {
        height_ = measureHeight(width);
        measuredHeight_ = measuring;
        heightsWidth_ = width;
    }
    return height_;
}

int Box::measureHeight(int width) const {
    const ui::Layout& layout = node_.layout;
    if (layout.height > 0) return pixels(layout.height);
    const int inside = std::max(0, width - 2 * pixels(layout.horizontalPadding));
    int height = contentHeight(inside) + 2 * pixels(layout.verticalPadding);
    if (layout.maximumHeight > 0) height = std::min(height, pixels(layout.maximumHeight));
    return std::max(height, pixels(layout.minimumHeight));
}

int Box::widthIn(int available) const {
    return expands() ? available : std::min(available, widths().natural);
}

WidthRange Box::childrensWidths() const {
    WidthRange widest;
    for (const auto& child : children_) {
        const WidthRange range = child->widths();
        widest = {std::max(widest.minimum, range.minimum), std::max(widest.natural, range.natural)};
    }
    return widest;
}

void Box::place(const Rect& frame) {
    const int horizontal = pixels(node_.layout.horizontalPadding);
    const int vertical = pixels(node_.layout.verticalPadding);
    frame_ = frame;
    const Rect inside = frame.inset(horizontal, vertical);
    control_->setFrame(isPaddedInside() ? frame : inside);
    if (isPaddedInside()) {
        arrange({horizontal, vertical, inside.width, inside.height});
    } else {
        arrange({0, 0, inside.width, inside.height});
    }
}

}  // namespace vantrel::layout
