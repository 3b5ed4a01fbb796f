#include "ui/qt/OptionMenu.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QWidgetAction>

#include "ui/qt/Item.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {
namespace {

// A menu is as wide as its widest item: an explanation has to wrap.
constexpr int noteWidth = 240;

void addNote(QMenu& menu, const std::string& note) {
    menu.addSeparator();
    auto* const action = new QWidgetAction(&menu);
    // What a menu reads out.
    action->setText(withoutShortcut(note));
    action->setEnabled(false);
    auto* const label = new QLabel(QString::fromStdString(note));
    const Look& look = Look::current();
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(look.font(ui::Font::caption));
    label->setContentsMargins(look.pixels(10), look.pixels(4), look.pixels(10), look.pixels(6));
    label->setFixedWidth(look.pixels(noteWidth));
    label->setFixedHeight(label->heightForWidth(look.pixels(noteWidth)));
    QPalette palette = label->palette();
    palette.setColor(QPalette::Disabled, QPalette::WindowText, look.secondaryText);
    label->setPalette(palette);
    action->setDefaultWidget(label);
    menu.addAction(action);
}

}  // namespace

OptionMenu::OptionMenu(QWidget* parent, std::function<void(std::size_t)> choose)
    : PaintedButton(parent, QAccessible::ButtonMenu), choose_(std::move(choose)) {
    QObject::connect(this, &QAbstractButton::clicked, this, [this] { open(); });
}

void OptionMenu::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        open();
    } else {
        PaintedButton::keyPressEvent(event);
    }
}

void OptionMenu::open() {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAccessibleName(accessibleName());
    auto* const group = new QActionGroup(menu);
    const bool isChoice = options_.kind == MenuOptions::Kind::choice;
    for (std::size_t option = 0; option < options_.options.size(); ++option) {
        QAction* const action = menu->addAction(withoutShortcut(options_.options[option]));
        if (isChoice) {
            action->setCheckable(true);
            action->setActionGroup(group);
            action->setChecked(options_.selected == option);
        }
        QObject::connect(action, &QAction::triggered, this, [this, option, isChoice] {
            if (!isChoice || options_.selected != option) choose_(option);
        });
    }
    if (!options_.note.empty()) addNote(*menu, options_.note);
    menu->popup(mapToGlobal(QPoint(0, height() + 2)));
}

}  // namespace vantrel::qt
