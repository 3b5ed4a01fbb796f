#include "ui/qt/TextFieldItem.h"

#include <QLineEdit>
#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"

namespace vantrel::qt {
namespace {

class Field : public QLineEdit {
  public:
    explicit Field(QWidget* parent) : QLineEdit(parent) {
        setFrame(false);
        setAttribute(Qt::WA_Hover);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        const Look& look = Look::current();
        const double radius = look.pixels(metrics::controlRadius);
        {
            QPainter painter(this);
            paintRounded(painter, rect(), radius, look.field, look.controlBorder);
        }
        QLineEdit::paintEvent(event);
        // Writing needs the ring also after a click.
        QPainter painter(this);
        if (hasFocus()) paintFocusRing(painter, rect(), radius);
    }
};

Field& fieldOf(const Item& item) { return *static_cast<Field*>(item.widget()); }

}  // namespace

TextFieldItem::TextFieldItem(const Making& making) : Item(making, new Field(making.parent)) {
    QObject::connect(&fieldOf(*this), &QLineEdit::textEdited, widget(),
                     [this](const QString& text) { send(ui::Edited{text.toStdString()}); });
    // A text that was not taken over is not kept either.
    QObject::connect(&fieldOf(*this), &QLineEdit::editingFinished, widget(), [this] { showText(); });
}

void TextFieldItem::show(const ui::Node& node) {
    const auto& element = std::get<ui::TextField>(node.element);
    const Look& look = Look::current();
    Field& field = fieldOf(*this);
    field.setFont(look.font(ui::Font::body));
    field.setPlaceholderText(QString::fromStdString(element.placeholder));
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, look.text);
    palette.setColor(QPalette::PlaceholderText, look.secondaryText);
    field.setPalette(palette);
    field.setTextMargins(look.pixels(6), 0, look.pixels(6), 0);
    showText();
}

void TextFieldItem::showText() {
    Field& field = fieldOf(*this);
    const QString wanted = QString::fromStdString(std::get<ui::TextField>(node().element).text);
    if (field.text() == wanted) return;
    const QSignalBlocker blocker(field);
    const int cursor = field.cursorPosition();
    field.setText(wanted);
    field.setCursorPosition(std::min(cursor, static_cast<int>(wanted.size())));
}

layout::WidthRange TextFieldItem::widths() const {
    const int width = Look::current().pixels(metrics::fieldMinimumWidth);
    return {width, width};
}

int TextFieldItem::height(int) const {
    return std::max(Look::current().pixels(metrics::fieldHeight),
                    QFontMetrics(fieldOf(*this).font()).height() + 8);
}

}  // namespace vantrel::qt
