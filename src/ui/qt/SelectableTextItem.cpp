#include "ui/qt/SelectableTextItem.h"

#include <QTextEdit>
#include <QWheelEvent>

#include "ui/qt/Look.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class ReadOnlyText : public QTextEdit {
  public:
    explicit ReadOnlyText(QWidget* parent) : QTextEdit(parent) {
        setReadOnly(true);
        setFrameShape(QFrame::NoFrame);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        setTabChangesFocus(true);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        document()->setDocumentMargin(0);
        viewport()->setAutoFillBackground(false);
    }

  protected:
    // It is never higher than its text: what it lies on scrolls.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

ReadOnlyText& textOf(const Item& item) { return *static_cast<ReadOnlyText*>(item.widget()); }

}  // namespace

SelectableTextItem::SelectableTextItem(const Making& making)
    : Item(making, new ReadOnlyText(making.parent)) {}

void SelectableTextItem::show(const ui::Node& node) {
    const auto& text = std::get<ui::Text>(node.element);
    const Look& look = Look::current();
    ReadOnlyText& shown = textOf(*this);
    shown.setFont(look.font(text.font));
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, look.tone(text.tone));
    shown.setPalette(palette);
    // Setting it would drop what a person has selected.
    const QString wanted = QString::fromStdString(text.text);
    if (shown.toPlainText() != wanted) shown.setPlainText(wanted);
}

layout::WidthRange SelectableTextItem::widths() const {
    const auto& text = std::get<ui::Text>(node().element);
    const TextLines lines(QString::fromStdString(text.text), Look::current().font(text.font),
                          TextLines::Wrapping::wraps);
    return {lines.minimumWidth(), lines.naturalWidth() + 1};
}

int SelectableTextItem::height(int width) const {
    const auto& text = std::get<ui::Text>(node().element);
    return TextLines(QString::fromStdString(text.text), Look::current().font(text.font),
                     TextLines::Wrapping::wraps)
        .height(width);
}

}  // namespace vantrel::qt
