#include "ui/qt/QtRenderer.h"

#include <QMetaObject>
#include <algorithm>

#include "runtime/Fatal.h"
#include "ui/qt/ItemFactory.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {
namespace {

// Assistive technology goes through widgets in the order in which their parent has
// them: the one in which they were last raised.
void raiseInOrder(const Item& item) {
    QList<QWidget*> wanted;
    for (const auto& child : item.children()) wanted << child->widget();
    QList<QWidget*> present;
    for (QObject* const child : item.childrenParent()->children()) {
        auto* const widget = qobject_cast<QWidget*>(child);
        if (widget != nullptr && wanted.contains(widget)) present << widget;
    }
    if (present == wanted) return;
    for (QWidget* const widget : wanted) widget->raise();
}

}  // namespace

QtRenderer::~QtRenderer() {
    const Stage::Telling telling(stage_);
    root_.reset();
}

void QtRenderer::onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) {
    stage_.onEvent(std::move(handler));
}

std::vector<std::string> QtRenderer::cutTexts() const {
    std::vector<std::string> texts;
    for (const auto& [element, item] : items_) {
        if (item->isCut()) texts.push_back(item->widget()->toolTip().toStdString());
    }
    return texts;
}

const Item* QtRenderer::item(ui::ElementID element) const {
    const auto found = items_.find(element);
    return found == items_.end() ? nullptr : found->second;
}

void QtRenderer::insert(ui::ElementID parent, std::size_t position, ui::ElementID element,
                        const ui::Node& node) {
    const Stage::Telling telling(stage_);
    isOrderNew_ = true;
    parents_[element] = parent;
    if (parent == ui::noElement) {
        runtime::require(root_ == nullptr, "a second topmost node");
        root_ = makeItem(stage_, element, node, &canvas_);
        items_[element] = root_.get();
        return;
    }
    Item& above = *items_.at(parent);
    auto item = makeItem(stage_, element, node, above.childrenParent());
    items_[element] = item.get();
    above.insertChild(position, std::move(item));
}

void QtRenderer::update(ui::ElementID element, const ui::Node& node) {
    const Stage::Telling telling(stage_);
    items_.at(element)->update(node);
}

void QtRenderer::move(ui::ElementID parent, std::size_t position, ui::ElementID element) {
    const Stage::Telling telling(stage_);
    isOrderNew_ = true;
    items_.at(parent)->moveChild(position, element);
}

void QtRenderer::remove(ui::ElementID element) {
    const Stage::Telling telling(stage_);
    isOrderNew_ = true;
    const auto forget = [this](const auto& self, const Item& item) -> void {
        for (const auto& child : item.children()) self(self, *child);
        const ui::ElementID gone = item.element();
        items_.erase(gone);
        parents_.erase(gone);
        reported_.erase(gone);
    };
    const ui::ElementID parent = parents_.at(element);
    forget(forget, *items_.at(element));
    if (parent == ui::noElement) {
        root_.reset();
    } else {
        items_.at(parent)->removeChild(element);
    }
}

void QtRenderer::finish() {
    {
        const Stage::Telling telling(stage_);
        if (isOrderNew_ && root_) {
            QWidget* last = &canvas_;
            orderWidgets(*root_, last);
        }
        isOrderNew_ = false;
        layOut();
    }
    if (finished_) finished_();
    reportSizes();
}

// The keyboard goes through the widgets in the order of the tree.
void QtRenderer::orderWidgets(const Item& item, QWidget*& last) {
    raiseInOrder(item);
    QWidget* const proxy = item.widget()->focusProxy();
    QWidget* const widget = proxy != nullptr ? proxy : item.widget();
    if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
        QWidget::setTabOrder(last, widget);
        last = widget;
    }
    for (const auto& child : item.children()) orderWidgets(*child, last);
}

QSize QtRenderer::fittingSize() const {
    if (!root_) return {};
    const int width = root_->widths().natural;
    return {width, root_->height(width)};
}

void QtRenderer::layOut() {
    if (!root_) return;
    const QSize fitting = fittingSize();
    root_->place({0, 0, fitting.width(), std::min(fitting.height(), canvas_.height())});
}

void QtRenderer::refresh() {
    if (!root_) return;
    {
        const Stage::Telling telling(stage_);
        root_->refresh();
    }
    finish();
}

// Later: whoever hears of it may not be there before the first tree is shown.
void QtRenderer::reportSizes() {
    for (const auto& [element, item] : items_) {
        if (!item->reportsSize()) continue;
        const QSize size = item == root_.get() ? fittingSize() : item->geometry().size();
        if (const auto known = reported_.find(element); known != reported_.end() && known->second == size)
            continue;
        reported_[element] = size;
        const ui::Size points = Look::current().points(size.width(), size.height());
        QMetaObject::invokeMethod(
            item->widget(), [this, element = element, points] { stage_.send(element, ui::Resized{points}); },
            Qt::QueuedConnection);
    }
}

}  // namespace vantrel::qt
