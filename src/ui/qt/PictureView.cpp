#include "ui/qt/PictureView.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "ui/qt/Look.h"
#include "ui/qt/Palettes.h"
#include "ui/qt/QtView.h"

namespace vantrel::qt {

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
