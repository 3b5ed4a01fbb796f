#include "ui/qt/PictureView.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "ui/qt/Look.h"
#include "ui/qt/QtView.h"

namespace vantrel::qt {
namespace {

// Those of a desktop without colours of its own.
QPalette lightPalette() {
    QPalette palette(QColor(0xf3, 0xf3, 0xf4));
    palette.setColor(QPalette::Window, QColor(0xee, 0xee, 0xef));
    palette.setColor(QPalette::WindowText, QColor(0x1d, 0x1d, 0x1f));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x1d, 0x1d, 0x1f));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xdb));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QPalette darkPalette() {
    QPalette palette(QColor(0x2b, 0x2b, 0x2e));
    palette.setColor(QPalette::Window, QColor(0x26, 0x27, 0x2a));
    palette.setColor(QPalette::WindowText, QColor(0xf0, 0xf0, 0xf2));
    palette.setColor(QPalette::Base, QColor(0x1c, 0x1d, 0x1f));
    palette.setColor(QPalette::Text, QColor(0xf0, 0xf0, 0xf2));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0xff));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

}  // namespace

struct PictureView::Parts {
    QWidget window;
    QtView view{&window};
};

void PictureView::use(Scheme scheme) {
    QApplication::setPalette(scheme == Scheme::dark ? darkPalette() : lightPalette());
}

PictureView::PictureView() : parts_(std::make_unique<Parts>()) {
    // Laid out like what is shown, and never shown.
    parts_->window.setAttribute(Qt::WA_DontShowOnScreen);
    parts_->window.show();
}

PictureView::~PictureView() = default;

ui::View& PictureView::view() { return parts_->view; }

void PictureView::layOut(ui::Size size) {
    const Look& look = Look::current();
    parts_->window.resize(look.pixels(std::ceil(size.width)), look.pixels(std::ceil(size.height)));
    parts_->view.widget().setGeometry(parts_->window.rect());
    // A scroll area lays out its contents when it has been resized itself.
    QCoreApplication::processEvents();
}

std::vector<std::string> PictureView::cutTexts() const { return parts_->view.cutTexts(); }

bool PictureView::save(const std::string& path, double ratio) {
    QWidget& widget = parts_->view.widget();
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Look::current().window);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image.save(QString::fromStdString(path), "PNG");
}

}  // namespace vantrel::qt
