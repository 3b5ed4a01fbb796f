#include "ui/qt/TextItem.h"

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

class Label : public QWidget, public Spoken {
  public:
    explicit Label(QWidget* parent) : QWidget(parent), Spoken(QAccessible::StaticText) {}

    QString spokenText() const override { return lines.text(); }

    TextLines lines;
    ui::Tone tone = ui::Tone::primary;
    Qt::Alignment alignment = Qt::AlignLeft;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (!isEnabled()) painter.setOpacity(disabledOpacity);
        lines.paint(painter, rect(), alignment, Look::current().tone(tone));
    }
};

Label& labelOf(const Item& item) { return *static_cast<Label*>(item.widget()); }

}  // namespace

TextItem::TextItem(const Making& making) : Item(making, new Label(making.parent)) {}

// So that the numbers beside sliders end below one another.
void TextItem::setBehindExpanding(bool isBehind) {
    labelOf(*this).alignment = isBehind ? Qt::AlignRight : Qt::AlignLeft;
}

void TextItem::show(const ui::Node& node) {
    const auto& text = std::get<ui::Text>(node.element);
    Label& label = labelOf(*this);
    label.lines = TextLines(QString::fromStdString(text.text), Look::current().font(text.font),
                            text.wraps ? TextLines::Wrapping::wraps : TextLines::Wrapping::none);
    label.tone = text.tone;
    label.update();
}

layout::WidthRange TextItem::widths() const {
    const TextLines& lines = labelOf(*this).lines;
    return {lines.minimumWidth(), lines.naturalWidth()};
}

int TextItem::height(int width) const { return labelOf(*this).lines.height(width); }

void TextItem::arrange() {
    const TextLines& lines = labelOf(*this).lines;
    const bool needsWhole = node().help.empty() && lines.isCut(widget()->width());
    setToolTip(needsWhole ? lines.text().toStdString() : node().help);
}

}  // namespace vantrel::qt
