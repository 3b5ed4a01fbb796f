#include "ui/layout/BoxRenderer.h"

#include <algorithm>
#include <utility>

#include "runtime/Fatal.h"
#include "ui/layout/BoxFactory.h"

namespace vantrel::layout {

BoxRenderer::~BoxRenderer() {
    const Stage::Telling telling(stage_);
    root_.reset();
}

void BoxRenderer::onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) {
    stage_.onEvent(std::move(handler));
}

const Box* BoxRenderer::item(ui::ElementID element) const {
    const auto found = boxes_.find(element);
    return found == boxes_.end() ? nullptr : found->second;
}

void BoxRenderer::insert(ui::ElementID parent, std::size_t position, ui::ElementID element,
                         const ui::Node& node) {
    const Stage::Telling telling(stage_);
    isOrderNew_ = true;
    parents_[element] = parent;
    Box* const above = parent == ui::noElement ? nullptr : boxes_.at(parent);
    auto box = makeBox(stage_, canvas_, element, node, above);
    boxes_[element] = box.get();
    if (above != nullptr) {
        above->insertChild(position, std::move(box));
    } else {
        runtime::require(root_ == nullptr, "a second topmost node");
        root_ = std::move(box);
    }
}

void BoxRenderer::update(ui::ElementID element, const ui::Node& node) {
    const Stage::Telling telling(stage_);
    boxes_.at(element)->update(node);
}

void BoxRenderer::move(ui::ElementID parent, std::size_t position, ui::ElementID element) {
    const Stage::Telling telling(stage_);
    isOrderNew_ = true;
    boxes_.at(parent)->moveChild(position, element);
}

void BoxRenderer::remove(ui::ElementID element) {
    const Stage::Telling telling(stage_);
    isOrderNew_ = true;
    const auto forget = [this](const auto& self, const Box& box) -> void {
        for (const auto& child : box.children()) self(self, *child);
        const ui::ElementID gone = box.element();
        boxes_.erase(gone);
        parents_.erase(gone);
        reported_.erase(gone);
    };
    const ui::ElementID parent = parents_.at(element);
    forget(forget, *boxes_.at(element));
    if (parent == ui::noElement) {
        root_.reset();
    } else {
        boxes_.at(parent)->removeChild(element);
    }
}

void BoxRenderer::finish() {
    {
        const Stage::Telling telling(stage_);
        if (isOrderNew_ && root_) canvas_.order(*root_);
        isOrderNew_ = false;
        layOut();
    }
    if (finished_) finished_();
    reportSizes();
}

PixelSize BoxRenderer::fittingSize() const {
    if (!root_) return {};
    const int width = root_->widths().natural;
    return {width, root_->height(width)};
}

void BoxRenderer::layOut() {
    if (!root_) return;
    const PixelSize fitting = fittingSize();
    root_->place({0, 0, fitting.width, std::min(fitting.height, canvas_.height())});
}

void BoxRenderer::refresh() {
    if (!root_) return;
    {
        const Stage::Telling telling(stage_);
        root_->refresh();
    }
    finish();
}

// Later: whoever hears of it may not be there before the first tree is shown.
void BoxRenderer::reportSizes() {
    for (const auto& [element, box] : boxes_) {
        if (!box->reportsSize()) continue;
        const Rect frame = box->frame();
        const PixelSize size = box == root_.get() ? fittingSize() : PixelSize{frame.width, frame.height};
        if (const auto known = reported_.find(element); known != reported_.end() && known->second == size)
            continue;
        reported_[element] = size;
        const ui::Size points = canvas_.points(size.width, size.height);
        canvas_.later([self = std::weak_ptr(self_), element = element, points] {
            const auto renderer = self.lock();
            // Perhaps the node is gone by then.
            if (renderer != nullptr && (*renderer)->item(element) != nullptr) {
                (*renderer)->stage_.send(element, ui::Resized{points});
            }
        });
    }
}

}  // namespace vantrel::layout
