#include "ui/qt/QtCanvas.h"

#include <QMetaObject>
#include <utility>

#include "ui/layout/Box.h"
#include "ui/qt/ItemFactory.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {
namespace {

const Item& itemOf(const layout::Box& box) { return static_cast<const Item&>(box.control()); }

// Assistive technology goes through widgets in the order in which their parent has
// them: the one in which they were last raised.
void raiseInOrder(const layout::Box& box) {
    QList<QWidget*> wanted;
    for (const auto& child : box.children()) wanted << itemOf(*child).widget();
    QList<QWidget*> present;
    for (QObject* const child : itemOf(box).childrenParent()->children()) {
        auto* const widget = qobject_cast<QWidget*>(child);
        if (widget != nullptr && wanted.contains(widget)) present << widget;
    }
    if (present == wanted) return;
    for (QWidget* const widget : wanted) widget->raise();
}

void orderWidgets(const layout::Box& box, QWidget*& last) {
    raiseInOrder(box);
    QWidget* const shown = itemOf(box).widget();
    QWidget* const proxy = shown->focusProxy();
    QWidget* const widget = proxy != nullptr ? proxy : shown;
    if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
        QWidget::setTabOrder(last, widget);
        last = widget;
    }
    for (const auto& child : box.children()) orderWidgets(*child, last);
}

}  // namespace

std::unique_ptr<layout::Control> QtCanvas::make(layout::Stage& stage, ui::ElementID element,
                                                const ui::Node& node, layout::Control* parent) {
    QWidget* const below = parent == nullptr ? &widget_ : static_cast<Item*>(parent)->childrenParent();
    return makeItem({stage, graveyard_, element, below}, node);
}

int QtCanvas::pixels(double points) const { return Look::current().pixels(points); }

ui::Size QtCanvas::points(double width, double height) const { return Look::current().points(width, height); }

void QtCanvas::order(const layout::Box& root) {
    QWidget* last = &widget_;
    orderWidgets(root, last);
}

void QtCanvas::later(std::function<void()> work) {
    QMetaObject::invokeMethod(&widget_, std::move(work), Qt::QueuedConnection);
}

}  // namespace vantrel::qt
