#include "ui/qt/MenuItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/OptionMenu.h"
#include "ui/qt/Painting.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class TitledButton : public OptionMenu {
  public:
    using OptionMenu::OptionMenu;

    QString spokenText() const override { return title.text(); }

    int around() const {
        const Look& look = Look::current();
        return 2 * look.pixels(metrics::controlPadding) + look.pixels(metrics::chevronSide + 2);
    }

    TextLines title;

  protected:
    void paint(QPainter& painter) override {
        const Look& look = Look::current();
        paintRounded(painter, rect(), cornerRadius(), fill(), look.controlBorder);
        const int left = look.pixels(metrics::controlPadding);
        title.paint(painter, {left, 0, width() - around(), height()}, Qt::AlignLeft, look.text);
        const int side = look.pixels(metrics::chevronSide);
        paintChevron(painter, QRectF(width() - side - look.pixels(8), (height() - side) / 2.0, side, side),
                     Chevron::down, look.secondaryText);
    }
};

TitledButton& buttonOf(const Item& item) { return *static_cast<TitledButton*>(item.widget()); }

}  // namespace

MenuItem::MenuItem(const Making& making)
    : Item(making,
           new TitledButton(making.parent, [this](std::size_t option) { send(ui::Chosen{option}); })) {}

void MenuItem::show(const ui::Node& node) {
    const auto& menu = std::get<ui::Menu>(node.element);
    TitledButton& button = buttonOf(*this);
    button.title = TextLines(QString::fromStdString(menu.title), Look::current().font(ui::Font::body),
                             TextLines::Wrapping::none);
    button.setOptions({MenuOptions::Kind::actions, menu.options, {}, {}});
    button.update();
}

layout::WidthRange MenuItem::widths() const {
    const TitledButton& button = buttonOf(*this);
    return {button.around() + button.title.minimumWidth(), button.around() + button.title.naturalWidth()};
}

int MenuItem::height(int) const {
    return std::max(Look::current().pixels(metrics::controlHeight), buttonOf(*this).title.height(0) + 6);
}

}  // namespace vantrel::qt
