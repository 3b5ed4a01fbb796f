#include "ui/qt/Symbols.h"

#include <QFile>
#include <QPixmap>
#include <QSvgRenderer>
#include <cmath>
#include <map>
#include <memory>

// Must be called outside of every namespace.
static void initializeSymbolResources() { Q_INIT_RESOURCE(symbols); }

namespace vantrel::qt {
namespace {

// Null for a name without a picture. Parsed once.
QSvgRenderer* rendererOf(const ui::Symbol& symbol) {
    static std::map<ui::Symbol, std::unique_ptr<QSvgRenderer>> known;
    const auto found = known.find(symbol);
    if (found != known.end()) return found->second.get();
    initializeSymbolResources();
    const QString file = ":/vantrel/" + QString::fromStdString(symbol) + ".svg";
    auto renderer = QFile::exists(file) ? std::make_unique<QSvgRenderer>(file) : nullptr;
    return known.emplace(symbol, std::move(renderer)).first->second.get();
}

void paintPlaceholder(QPainter& painter, const QRectF& square, const QColor& color) {
    const double side = square.width();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, side / 14));
    const double inset = side * 0.16;
    painter.drawRoundedRect(square.adjusted(inset, inset, -inset, -inset), side / 6, side / 6);
    painter.restore();
}

QRectF largestSquare(const QRectF& rectangle) {
    const double side = std::min(rectangle.width(), rectangle.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(rectangle.center());
    return square;
}

}  // namespace

bool hasSymbol(const ui::Symbol& symbol) { return rendererOf(symbol) != nullptr; }

void paintSymbol(QPainter& painter, const QRectF& rectangle, const ui::Symbol& symbol, const QColor& color) {
    const QRectF square = largestSquare(rectangle);
    if (square.width() < 1) return;
    QSvgRenderer* const renderer = rendererOf(symbol);
    if (renderer == nullptr) {
        paintPlaceholder(painter, square, color);
        return;
    }
    const double ratio = painter.device()->devicePixelRatioF();
    const int pixels = static_cast<int>(std::lround(square.width() * ratio));
    QPixmap image(pixels, pixels);
    image.fill(Qt::transparent);
    QPainter inside(&image);
    renderer->render(&inside, QRectF(0, 0, pixels, pixels));
    if (symbol != ui::applicationIcon) {
        inside.setCompositionMode(QPainter::CompositionMode_SourceIn);
        inside.fillRect(image.rect(), color);
    }
    inside.end();
    image.setDevicePixelRatio(ratio);
    // On whole pixels, or it would be drawn blurred.
    const QPointF corner(std::round(square.x() * ratio) / ratio, std::round(square.y() * ratio) / ratio);
    painter.drawPixmap(corner, image);
}

QIcon applicationWindowIcon() {
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QPixmap image(side, side);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paintSymbol(painter, QRectF(0, 0, side, side), ui::applicationIcon, Qt::black);
        icon.addPixmap(image);
    }
    return icon;
}

}  // namespace vantrel::qt
