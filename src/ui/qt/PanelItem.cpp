#include "ui/qt/PanelItem.h"

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

class Panel : public QWidget, public Spoken {
  public:
    explicit Panel(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Grouping) {}

    void show(ui::Background background, int radius) {
        background_ = background;
        radius_ = radius;
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        if (background_ == ui::Background::none) return;
        const Look& look = Look::current();
        QPainter painter(this);
        if (background_ == ui::Background::card) {
            paintRounded(painter, rect(), look.pixels(radius_), look.card, look.cardBorder);
        } else {
            paintRounded(painter, rect(), look.pixels(radius_), look.warningBackground);
        }
    }

  private:
    ui::Background background_ = ui::Background::none;
    int radius_ = 0;
};

}  // namespace

PanelItem::PanelItem(const Making& making) : Item(making, new Panel(making.parent)) {}

void PanelItem::show(const ui::Node& node) {
    if (const auto* const stack = std::get_if<ui::Stack>(&node.element)) {
        static_cast<Panel*>(widget())->show(stack->background, stack->cornerRadius);
    }
}

}  // namespace vantrel::qt
