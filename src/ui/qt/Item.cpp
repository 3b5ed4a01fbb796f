#include "ui/qt/Item.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTextDocument>
#include <algorithm>
#include <utility>

#include "runtime/Fatal.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {

QString plain(const std::string& text) {
    const QString shown = QString::fromStdString(text);
    return Qt::mightBeRichText(shown) ? "<span>" + shown.toHtmlEscaped() + "</span>" : shown;
}

QString withoutShortcut(const std::string& text) {
    return QString::fromStdString(text).replace('&', QLatin1String("&&"));
}

// Opens where the pointer or the keyboard asks for it, above anything in the node.
struct Item::ContextMenu : QObject {
    ContextMenu(Stage& sharedStage, ui::ElementID node, QWidget* widget)
        : QObject(widget), stage(sharedStage), element(node) {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ContextMenu || items.empty()) return false;
        auto* const widget = static_cast<QWidget*>(watched);
        auto* const menu = new QMenu(widget);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (std::size_t item = 0; item < items.size(); ++item) {
            QObject::connect(menu->addAction(withoutShortcut(items[item])), &QAction::triggered, menu,
                             [this, item] { stage.send(element, ui::ContextChosen{item}); });
        }
        menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
        event->accept();
        return true;
    }

    Stage& stage;
    ui::ElementID element;
    std::vector<std::string> items;
};

Item::Item(Stage& stage, ui::ElementID element, QWidget* widget)
    : stage_(stage), element_(element), widget_(widget), node_{.element = ui::Spacer{}} {}

Item::~Item() { stage_.bury(widget_); }

void Item::update(const ui::Node& node) {
    node_ = node;
    widget_->setObjectName(QString::fromStdString(node.id));
    widget_->setEnabled(node.isEnabled);
    widget_->setAccessibleName(QString::fromStdString(node.accessibility.name));
    widget_->setAccessibleDescription(QString::fromStdString(node.accessibility.description));
    setToolTip(node.help);
    if (contextMenu_ == nullptr && !node.contextMenu.empty()) {
        contextMenu_ = new ContextMenu(stage_, element_, widget_);
    }
    if (contextMenu_ != nullptr) contextMenu_->items = node.contextMenu;
    apply(node);
}

void Item::refresh() {
    const ui::Node same = node_;
    update(same);
    widget_->update();
    for (const auto& child : children_) child->refresh();
}

void Item::setToolTip(const std::string& text) { widget_->setToolTip(plain(text)); }

void Item::insertChild(std::size_t position, std::unique_ptr<Item> child) {
    runtime::require(position <= children_.size(), "a node is inserted behind the end");
    children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(position), std::move(child));
}

void Item::moveChild(std::size_t position, ui::ElementID element) {
    const auto found = std::ranges::find(children_, element, &Item::element_);
    runtime::require(found != children_.end() && position < children_.size(), "no such node to move");
    auto child = std::move(*found);
    children_.erase(found);
    insertChild(position, std::move(child));
}

void Item::removeChild(ui::ElementID element) {
    std::erase_if(children_, [element](const auto& child) { return child->element_ == element; });
}

WidthRange Item::widths() const {
    if (std::exchange(measuredWidths_, stage_.measuring()) != stage_.measuring()) widths_ = measureWidths();
    return widths_;
}

WidthRange Item::measureWidths() const {
    const Look& look = Look::current();
    if (node_.layout.width > 0) return {look.pixels(node_.layout.width), look.pixels(node_.layout.width)};
    WidthRange content = contentWidths();
    content.minimum += 2 * look.pixels(node_.layout.horizontalPadding);
    content.natural += 2 * look.pixels(node_.layout.horizontalPadding);
    return content;
}

int Item::height(int width) const {
    if (measuredHeight_ != stage_.measuring() || heightsWidth_ != width) {
        height_ = measureHeight(width);
        measuredHeight_ = stage_.measuring();
        heightsWidth_ = width;
    }
    return height_;
}

int Item::measureHeight(int width) const {
    const Look& look = Look::current();
    if (node_.layout.height > 0) return look.pixels(node_.layout.height);
    const int inside = std::max(0, width - 2 * look.pixels(node_.layout.horizontalPadding));
    int height = contentHeight(inside) + 2 * look.pixels(node_.layout.verticalPadding);
    if (node_.layout.maximumHeight > 0) height = std::min(height, look.pixels(node_.layout.maximumHeight));
    return std::max(height, look.pixels(node_.layout.minimumHeight));
}

void Item::place(const QRect& geometry) {
    const Look& look = Look::current();
    const int horizontal = look.pixels(node_.layout.horizontalPadding);
    const int vertical = look.pixels(node_.layout.verticalPadding);
    geometry_ = geometry;
    const QRect inside = geometry.adjusted(horizontal, vertical, -horizontal, -vertical);
    widget_->setGeometry(isContainer() ? geometry : inside);
    if (!widget_->isVisibleTo(widget_->parentWidget())) widget_->show();
    arrange(isContainer() ? inside.translated(-geometry.topLeft()) : QRect(QPoint(), inside.size()));
}

}  // namespace vantrel::qt
