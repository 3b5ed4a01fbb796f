#include "ui/qt/Item.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTextDocument>

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
    ContextMenu(layout::Stage& sharedStage, ui::ElementID node, QWidget* widget)
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

    layout::Stage& stage;
    ui::ElementID element;
    std::vector<std::string> items;
};

Item::Item(const Making& making, QWidget* widget)
    : making_(making), widget_(widget), node_{.element = ui::Spacer{}} {}

Item::~Item() { making_.graveyard.bury(widget_); }

void Item::apply(const ui::Node& node) {
    node_ = node;
    widget_->setObjectName(QString::fromStdString(node.id));
    widget_->setEnabled(node.isEnabled);
    widget_->setAccessibleName(QString::fromStdString(node.accessibility.name));
    widget_->setAccessibleDescription(QString::fromStdString(node.accessibility.description));
    setToolTip(node.help);
    if (contextMenu_ == nullptr && !node.contextMenu.empty()) {
        contextMenu_ = new ContextMenu(making_.stage, making_.element, widget_);
    }
    if (contextMenu_ != nullptr) contextMenu_->items = node.contextMenu;
    show(node_);
}

void Item::setToolTip(const std::string& text) { widget_->setToolTip(plain(text)); }

void Item::setFrame(const layout::Rect& frame) {
    widget_->setGeometry(frame.x, frame.y, frame.width, frame.height);
    if (!widget_->isVisibleTo(widget_->parentWidget())) widget_->show();
    arrange();
}

}  // namespace vantrel::qt
