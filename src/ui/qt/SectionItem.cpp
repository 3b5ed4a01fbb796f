#include "ui/qt/SectionItem.h"

#include "ui/layout/Metrics.h"
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
    QRect titlePlace;
    QRect panel;
    std::vector<int> lines;

  protected:
    void paintEvent(QPaintEvent*) override {
        const Look& look = Look::current();
        QPainter painter(this);
        if (!title.text().isEmpty()) {
            const int indent = look.pixels(2);
            title.paint(painter, titlePlace.adjusted(indent, 0, 0, 0), Qt::AlignLeft, look.text);
        }
        paintRounded(painter, panel, look.pixels(metrics::sectionRadius), look.card, look.cardBorder);
        const int indent = look.pixels(layout::metrics::rowHorizontalPadding);
        for (const int line : lines) {
            painter.fillRect(panel.left() + indent, line, panel.width() - 2 * indent, 1, look.separator);
        }
    }
};

Group& groupOf(const Item& item) { return *static_cast<Group*>(item.widget()); }

}  // namespace

SectionItem::SectionItem(const Making& making) : Item(making, new Group(making.parent)) {}

void SectionItem::show(const ui::Node& node) {
    const auto& title = std::get<ui::Section>(node.element).title;
    QFont font = Look::current().font(ui::Font::body);
    font.setWeight(QFont::DemiBold);
    groupOf(*this).title = TextLines(QString::fromStdString(title), font, TextLines::Wrapping::none);
    widget()->update();
}

int SectionItem::height(int width) const {
    const TextLines& title = groupOf(*this).title;
    return title.text().isEmpty() ? 0 : title.height(width);
}

void SectionItem::placeTitle(const layout::Rect& title) {
    groupOf(*this).titlePlace = {title.x, title.y, title.width, title.height};
}

void SectionItem::showPanel(const layout::Rect& panel, const std::vector<int>& lines) {
    Group& group = groupOf(*this);
    group.panel = {panel.x, panel.y, panel.width, panel.height};
    group.lines = lines;
    group.update();
}

}  // namespace vantrel::qt
