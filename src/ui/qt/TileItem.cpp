#include "ui/qt/TileItem.h"

#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/PaintedButton.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Symbols.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class Tile : public PaintedButton {
  public:
    explicit Tile(QWidget* parent) : PaintedButton(parent, QAccessible::RadioButton) {}

    void addState(QAccessible::State& state) const override {
        state.checkable = true;
        state.checked = tile_.isSelected;
    }
    QString spokenText() const override { return title_.text(); }

    void show(const ui::Tile& tile) {
        tile_ = tile;
        QFont font = Look::current().font(ui::Font::callout);
        if (tile.isSelected) font.setWeight(QFont::Medium);
        title_ = TextLines(QString::fromStdString(tile.title), font, TextLines::Wrapping::none);
        update();
    }

    int minimumWidth() const { return around() + title_.minimumWidth(); }
    int naturalWidth() const { return around() + title_.naturalWidth(); }
    int naturalHeight() const {
        const Look& look = Look::current();
        return 2 * look.pixels(tile_.padding) + std::max(title_.height(0), symbolSide());
    }
    bool isCut() const { return title_.isCut(width() - around()); }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ToolTip && showBadgeHelp(static_cast<QHelpEvent&>(*event))) return true;
        return PaintedButton::event(event);
    }

    void paint(QPainter& painter) override {
        const Look& look = Look::current();
        const int padding = look.pixels(tile_.padding);
        if (tile_.isSelected) {
            paintRounded(painter, rect(), cornerRadius(), look.plate);
            if (isDown()) paintRounded(painter, rect(), cornerRadius(), look.pressedControl);
        } else {
            paintRounded(painter, rect(), cornerRadius(), fill(), look.controlBorder);
        }
        const QColor ink = tile_.isSelected ? look.onPlate : look.text;
        const int side = symbolSide();
        paintSymbol(painter, QRectF(padding, (height() - side) / 2.0, side, side), tile_.symbol, ink);
        const int left = padding + side + gap();
        title_.paint(painter, {left, 0, width() - around(), height()}, Qt::AlignLeft, ink);
        if (!tile_.badge.empty()) paintSymbol(painter, badgePlace(), tile_.badge, ink);
    }

    double cornerRadius() const override { return Look::current().pixels(tile_.cornerRadius); }

  private:
    static int symbolSide() { return Look::current().symbolSide(ui::Font::body); }
    static int badgeSide() { return Look::current().symbolSide(ui::Font::caption); }
    static int gap() { return Look::current().pixels(metrics::symbolGap); }
    // What is not title.
    int around() const {
        const int badge = tile_.badge.empty() ? 0 : gap() + badgeSide();
        return 2 * Look::current().pixels(tile_.padding) + symbolSide() + gap() + badge;
    }
    QRect badgePlace() const {
        const int side = badgeSide();
        return {width() - Look::current().pixels(tile_.padding) - side, (height() - side) / 2, side, side};
    }
    bool showBadgeHelp(const QHelpEvent& event) {
        if (tile_.badge.empty() || tile_.badgeHelp.empty() || !badgePlace().contains(event.pos()))
            return false;
        QToolTip::showText(event.globalPos(), plain(tile_.badgeHelp), this, badgePlace());
        return true;
    }

    ui::Tile tile_;
    TextLines title_;
};

Tile& tileOf(const Item& item) { return *static_cast<Tile*>(item.widget()); }

}  // namespace

TileItem::TileItem(const Making& making) : Item(making, new Tile(making.parent)) {
    QObject::connect(&tileOf(*this), &QAbstractButton::clicked, widget(), [this] { send(ui::Pressed{}); });
}

void TileItem::show(const ui::Node& node) { tileOf(*this).show(std::get<ui::Tile>(node.element)); }

layout::WidthRange TileItem::widths() const {
    return {tileOf(*this).minimumWidth(), tileOf(*this).naturalWidth()};
}

int TileItem::height(int) const { return tileOf(*this).naturalHeight(); }

void TileItem::arrange() {
    const auto& title = std::get<ui::Tile>(node().element).title;
    setToolTip(node().help.empty() && tileOf(*this).isCut() ? title : node().help);
}

}  // namespace vantrel::qt
