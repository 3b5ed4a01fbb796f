#include "app/PopoverSizer.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace vantrel::app {

using namespace std::chrono_literals;

namespace {

// A content whose height wobbles by less must not make the popover jump.
constexpr double smallShrink = 4.0;
// Only content that changes its size because of its size resizes so often; no
// user does.
constexpr std::size_t tooManyResizes = 31;
constexpr auto resizeMemory = 1s;

}  // namespace

bool PopoverSizer::request(ui::Size size) {
    const bool isFirst = !pending_;
    pending_ = ui::Size{std::ceil(size.width), std::ceil(size.height)};
    return isFirst;
}

PopoverSizer::Decision PopoverSizer::apply(runtime::MonotonicTime now) {
    const auto size = std::exchange(pending_, std::nullopt);
    if (!size || *size == requested_ || isHeld_) return Decision::leave;
    const double shrink = requested_.height - size->height;
    if (size->width == requested_.width && shrink > 0 && shrink <= smallShrink) return Decision::leave;

    asked_ = *size;
    std::erase_if(recentResizes_, [now](runtime::MonotonicTime time) { return now - time >= resizeMemory; });
    recentResizes_.push_back(now);
    if (recentResizes_.size() >= tooManyResizes) {
        isHeld_ = true;
        return Decision::hold;
    }
    requested_ = *size;
    return Decision::resize;
}

void PopoverSizer::popoverDidClose() {
    isHeld_ = false;
    recentResizes_.clear();
}

}  // namespace vantrel::app
