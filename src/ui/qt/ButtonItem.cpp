#include "ui/qt/ButtonItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/PaintedButton.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Symbols.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class PushButton : public PaintedButton {
  public:
    explicit PushButton(QWidget* parent) : PaintedButton(parent, QAccessible::Button) {}

    void show(const ui::Button& button) {
        button_ = button;
        const Look& look = Look::current();
        QFont font = look.font(button.font);
        if (button.style == ui::Button::Style::prominent) font.setWeight(QFont::Medium);
        title_ = TextLines(QString::fromStdString(button.title), font, TextLines::Wrapping::none);
        update();
    }

    QString spokenText() const override { return title_.text(); }

    int naturalWidth() const {
        if (isSymbolOnly()) return Look::current().pixels(metrics::symbolButtonSide);
        return 2 * padding() + symbolWidth() + title_.naturalWidth();
    }
    int minimumWidth() const {
        if (isSymbolOnly()) return naturalWidth();
        // What is beside it gives way first, unless the title is very long.
        const int least = Look::current().pixels(metrics::buttonWidthKept);
        return std::max(std::min(naturalWidth(), least),
                        2 * padding() + symbolWidth() + title_.minimumWidth());
    }
    int naturalHeight() const {
        const Look& look = Look::current();
        if (isSymbolOnly()) return look.pixels(metrics::symbolButtonSide);
        const bool isSmall = button_.font == ui::Font::callout || button_.font == ui::Font::caption;
        const int height = look.pixels(isSmall ? metrics::smallControlHeight : metrics::controlHeight);
        return std::max(height, title_.height(0) + look.pixels(6));
    }
    bool isCut() const { return title_.isCut(width() - 2 * padding() - symbolWidth()); }

  protected:
    void paint(QPainter& painter) override {
        const Look& look = Look::current();
        const bool isProminent = button_.style == ui::Button::Style::prominent;
        paintPlate(painter);
        const QColor ink = isProminent ? look.onPlate : look.text;
        if (isSymbolOnly()) {
            paintSymbol(painter, centered(look.symbolSide(button_.font)), button_.symbol, ink);
            return;
        }
        const int room = width() - 2 * padding() - symbolWidth();
        const int used = std::min(room, title_.naturalWidth());
        const int left = padding() + (room - used) / 2;
        if (symbolWidth() > 0) {
            const int side = look.symbolSide(button_.font);
            paintSymbol(painter, QRectF(left, (height() - side) / 2.0, side, side), button_.symbol, ink);
        }
        title_.paint(painter, {left + symbolWidth(), 0, used, height()}, Qt::AlignLeft, ink);
    }

  private:
    bool isSymbolOnly() const { return button_.title.empty(); }
    int padding() const {
        const bool isBorderless = button_.style == ui::Button::Style::borderless;
        return Look::current().pixels(isBorderless ? metrics::borderlessPadding : metrics::controlPadding);
    }
    int symbolWidth() const {
        const Look& look = Look::current();
        if (button_.symbol.empty()) return 0;
        return look.symbolSide(button_.font) + look.pixels(metrics::symbolGap);
    }
    QRectF centered(int side) const {
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(rect()).center());
        return square;
    }

    void paintPlate(QPainter& painter) const {
        const Look& look = Look::current();
        const double radius = cornerRadius();
        switch (button_.style) {
            case ui::Button::Style::bordered:
                paintRounded(painter, rect(), radius, fill(), look.controlBorder);
                break;
            case ui::Button::Style::prominent:
                paintRounded(painter, rect(), radius, look.plate);
                if (isDown() || underMouse()) paintRounded(painter, rect(), radius, shade());
                break;
            case ui::Button::Style::borderless:
                paintRounded(painter, rect(), radius, borderlessFill());
                break;
        }
    }
    // Over the accent: towards what is written on it would make that hard to read.
    QColor shade() const {
        QColor shade = Look::current().onPlate.lightnessF() > 0.5F ? Qt::black : Qt::white;
        shade.setAlphaF(!isEnabled() ? 0.0F : isDown() ? 0.2F : 0.08F);
        return shade;
    }

    ui::Button button_;
    TextLines title_;
};

PushButton& buttonOf(const Item& item) { return *static_cast<PushButton*>(item.widget()); }

}  // namespace

ButtonItem::ButtonItem(const Making& making) : Item(making, new PushButton(making.parent)) {
    QObject::connect(&buttonOf(*this), &QAbstractButton::clicked, widget(), [this] { send(ui::Pressed{}); });
}

void ButtonItem::show(const ui::Node& node) { buttonOf(*this).show(std::get<ui::Button>(node.element)); }

layout::WidthRange ButtonItem::widths() const {
    return {buttonOf(*this).minimumWidth(), buttonOf(*this).naturalWidth()};
}

int ButtonItem::height(int) const { return buttonOf(*this).naturalHeight(); }

void ButtonItem::arrange() {
    const auto& title = std::get<ui::Button>(node().element).title;
    setToolTip(node().help.empty() && buttonOf(*this).isCut() ? title : node().help);
}

}  // namespace vantrel::qt
