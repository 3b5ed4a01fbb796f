#include "ui/qt/SymbolPickerItem.h"

#include "ui/qt/Look.h"
#include "ui/qt/OptionMenu.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Symbols.h"

namespace vantrel::qt {
namespace {

class SymbolButton : public OptionMenu {
  public:
    using OptionMenu::OptionMenu;

    QString spokenText() const override { return QString::fromStdString(picker.title); }
    QString spokenValue() const override {
        if (!picker.selected || *picker.selected >= picker.options.size()) return {};
        return QString::fromStdString(picker.options[*picker.selected]);
    }

    ui::Picker picker;

  protected:
    void paint(QPainter& painter) override {
        const Look& look = Look::current();
        paintRounded(painter, rect(), cornerRadius(), borderlessFill());
        const int side = look.symbolSide(ui::Font::body);
        const int chevron = look.pixels(metrics::chevronSide - 3);
        const int left = (width() - side - chevron - look.pixels(2)) / 2;
        paintSymbol(painter, QRectF(left, (height() - side) / 2.0, side, side), picker.symbol, look.text);
        paintChevron(painter,
                     QRectF(left + side + look.pixels(2), (height() - chevron) / 2.0, chevron, chevron),
                     Chevron::down, look.secondaryText);
    }
};

}  // namespace

SymbolPickerItem::SymbolPickerItem(const Making& making)
    : Item(making,
           new SymbolButton(making.parent, [this](std::size_t option) { send(ui::Chosen{option}); })) {}

void SymbolPickerItem::show(const ui::Node& node) {
    auto& button = *static_cast<SymbolButton*>(widget());
    button.picker = std::get<ui::Picker>(node.element);
    button.setOptions(
        {MenuOptions::Kind::choice, button.picker.options, button.picker.selected, button.picker.note});
    button.update();
}

layout::WidthRange SymbolPickerItem::widths() const {
    const int width = Look::current().pixels(metrics::symbolButtonSide + metrics::chevronSide);
    return {width, width};
}

int SymbolPickerItem::height(int) const { return Look::current().pixels(metrics::symbolButtonSide); }

}  // namespace vantrel::qt
