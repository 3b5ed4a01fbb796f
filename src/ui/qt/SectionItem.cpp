#include "ui/qt/SectionItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Spoken.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class Group : public QWidget, public Spoken {
  public:
    explicit Group(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Grouping) {}

    QString spokenText() const override { return title.text(); }

    TextLines title;
    QRect panel;
    std::vector<int> lines;

  protected:
    void paintEvent(QPaintEvent*) override {
        const Look& look = Look::current();
        QPainter painter(this);
        if (!title.text().isEmpty()) {
            const int indent = look.pixels(2);
            title.paint(painter, {indent, 0, width() - indent, title.height(width())}, Qt::AlignLeft,
                        look.text);
        }
        paintRounded(painter, panel, look.pixels(metrics::sectionRadius), look.card, look.cardBorder);
        const int indent = look.pixels(metrics::rowHorizontalPadding);
        for (const int line : lines) {
            painter.fillRect(panel.left() + indent, line, panel.width() - 2 * indent, 1, look.separator);
        }
    }
};

Group& groupOf(const Item& item) { return *static_cast<Group*>(item.widget()); }

}  // namespace

SectionItem::SectionItem(Stage& stage, ui::ElementID element, QWidget* parent)
    : Item(stage, element, new Group(parent)) {}

void SectionItem::apply(const ui::Node& node) {
    const auto& title = std::get<ui::Section>(node.element).title;
    QFont font = Look::current().font(ui::Font::body);
    font.setWeight(QFont::DemiBold);
    groupOf(*this).title = TextLines(QString::fromStdString(title), font, TextLines::Wrapping::none);
    widget()->update();
}

int SectionItem::titleHeight() const {
    const TextLines& title = groupOf(*this).title;
    if (title.text().isEmpty()) return 0;
    return title.height(0) + Look::current().pixels(metrics::sectionTitleSpacing);
}

int SectionItem::rowHeight(const Item& row, int width) const {
    const Look& look = Look::current();
    const int used = row.expands() ? width : std::min(width, row.widths().natural);
    return std::max(look.pixels(metrics::rowMinimumHeight),
                    row.height(used) + 2 * look.pixels(metrics::rowVerticalPadding));
}

WidthRange SectionItem::contentWidths() const {
    const int padding = 2 * Look::current().pixels(metrics::rowHorizontalPadding);
    WidthRange widest;
    for (const auto& child : children()) {
        const WidthRange range = child->widths();
        widest = {std::max(widest.minimum, range.minimum), std::max(widest.natural, range.natural)};
    }
    return {widest.minimum + padding, widest.natural + padding};
}

int SectionItem::contentHeight(int width) const {
    const int inside = width - 2 * Look::current().pixels(metrics::rowHorizontalPadding);
    int height = titleHeight();
    for (const auto& child : children()) height += rowHeight(*child, inside);
    return height;
}

void SectionItem::arrange(const QRect& inside) {
    const Look& look = Look::current();
    const int indent = look.pixels(metrics::rowHorizontalPadding);
    const int width = inside.width() - 2 * indent;
    Group& group = groupOf(*this);
    group.panel = inside.adjusted(0, titleHeight(), 0, 0);
    group.lines.clear();
    int top = group.panel.top();
    for (const auto& child : children()) {
        if (child != children().front()) group.lines.push_back(top);
        const int used = child->expands() ? width : std::min(width, child->widths().natural);
        const int row = rowHeight(*child, width);
        const int height = child->height(used);
        child->place({inside.left() + indent, top + (row - height) / 2, used, height});
        top += row;
    }
    group.update();
}

}  // namespace vantrel::qt
