#include "ui/qt/QtView.h"

#include <QEvent>

#include "ui/qt/Look.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {

class QtView::Canvas : public QWidget {
  public:
    using QWidget::QWidget;

    QtRenderer* renderer = nullptr;

  protected:
    void resizeEvent(QResizeEvent*) override {
        if (renderer != nullptr) renderer->layOut();
    }
    void changeEvent(QEvent* event) override {
        QWidget::changeEvent(event);
        const auto type = event->type();
        if (renderer != nullptr && (type == QEvent::FontChange || type == QEvent::PaletteChange)) {
            renderer->refresh();
        }
    }
};

QtView::QtView(QWidget* parent)
    : canvas_(std::make_unique<Canvas>(parent)), renderer_(std::make_unique<QtRenderer>(*canvas_)) {
    installSpokenWidgets();
    canvas_->renderer = renderer_.get();
    // Where the keyboard is before its first Tab, and after a click beside everything.
    canvas_->setFocusPolicy(Qt::ClickFocus);
}

QtView::~QtView() { canvas_->renderer = nullptr; }

QWidget& QtView::widget() { return *canvas_; }

void QtView::onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) {
    renderer_->onEvent(std::move(handler));
}

ui::Size QtView::fittingSize() const {
    const QSize size = fittingPixels();
    return Look::current().points(size.width(), size.height());
}

}  // namespace vantrel::qt
