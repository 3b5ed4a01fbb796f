#include "ui/qt/QtWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include "ui/qt/Look.h"
#include "ui/qt/Symbols.h"

namespace vantrel::qt {
class QtWindow::Frame : public QWidget {
  public:
    explicit Frame(const std::string& title) {
        setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
        setWindowTitle(QString::fromStdString(title));
        setWindowIcon(applicationWindowIcon());
    }

    QWidget* contents = nullptr;

  protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Look::current().window); }
    void resizeEvent(QResizeEvent*) override {
        if (contents != nullptr) contents->setGeometry(rect());
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Close)) {
            close();
        } else {
            QWidget::keyPressEvent(event);
        }
    }
};

QtWindow::QtWindow(const std::string& title)
    : frame_(std::make_unique<Frame>(title)), view_(std::make_unique<QtView>(frame_.get())) {
    frame_->contents = &view_->widget();
    view_->onFinish([this] { fit(); });
}

QtWindow::~QtWindow() = default;

ui::View& QtWindow::content() { return *view_; }
QWidget& QtWindow::window() { return *frame_; }

void QtWindow::fit() {
    QSize size = view_->fittingPixels();
    const QScreen* const screen = frame_->screen();
    if (screen != nullptr) {
        size =
            size.boundedTo(screen->availableSize() - QSize(0, Look::current().pixels(metrics::roomForFrame)));
    }
    if (size != frame_->size()) frame_->setFixedSize(size);
}

void QtWindow::show() {
    fit();
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (!wasShown_ && screen != nullptr) {
        QRect middle(QPoint(), frame_->size());
        middle.moveCenter(screen->availableGeometry().center());
        frame_->move(middle.topLeft());
    }
    wasShown_ = true;
    frame_->setWindowState(frame_->windowState() & ~Qt::WindowMinimized);
    frame_->show();
    frame_->raise();
    frame_->activateWindow();
}

}  // namespace vantrel::qt
