#include "ui/qt/ImageItem.h"

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Spoken.h"
#include "ui/qt/Symbols.h"

namespace vantrel::qt {
namespace {

class Picture : public QWidget, public Spoken {
  public:
    explicit Picture(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Graphic) {}

    ui::Image image;
    // Fills the widget instead of having the size of a letter.
    bool fills = false;

  protected:
    void paintEvent(QPaintEvent*) override {
        const Look& look = Look::current();
        QPainter painter(this);
        if (!isEnabled()) painter.setOpacity(disabledOpacity);
        QRectF square = rect();
        if (!fills) {
            const int side = look.symbolSide(image.font);
            square = QRectF(0, 0, side, side);
            square.moveCenter(QRectF(rect()).center());
        }
        paintSymbol(painter, square, image.symbol, look.tone(image.tone));
    }
};

}  // namespace

ImageItem::ImageItem(const Making& making) : Item(making, new Picture(making.parent)) {}

void ImageItem::show(const ui::Node& node) {
    auto& picture = *static_cast<Picture*>(widget());
    picture.image = std::get<ui::Image>(node.element);
    picture.fills = node.layout.width > 0 && node.layout.height > 0;
    picture.update();
}

layout::WidthRange ImageItem::widths() const {
    const int side = Look::current().symbolSide(std::get<ui::Image>(node().element).font);
    return {side, side};
}

int ImageItem::height(int) const {
    return Look::current().symbolSide(std::get<ui::Image>(node().element).font);
}

}  // namespace vantrel::qt
