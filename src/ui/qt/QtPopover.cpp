#include "ui/qt/QtPopover.h"

#include <QApplication>
#include <QBitmap>
#include <QCloseEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <cmath>

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/PopoverPlacement.h"
#include "ui/qt/Symbols.h"

namespace vantrel::qt {

using ui::PopoverMode;

namespace {

bool isOn(const char* system) { return QGuiApplication::platformName() == QLatin1String(system); }

// A window that grabs the pointer needs no permission for the keyboard. Wayland has
// such windows only for others to hang under.
Qt::WindowFlags flagsOf(PopoverMode mode) {
    if (mode == PopoverMode::window) {
        return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
               Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
    }
    return (isOn("wayland") ? Qt::Tool : Qt::Popup) | Qt::FramelessWindowHint;
}

}  // namespace

class QtPopover::Panel : public QWidget {
  public:
    explicit Panel(QtStatusItem& item) : item_(item) {
        setWindowIcon(applicationWindowIcon());
        setWindowTitle("Vantrel");
        // The press that closes the panel must not open it again from the icon.
        setAttribute(Qt::WA_NoMouseReplay);
    }

    void setMode(PopoverMode newMode) {
        mode = newMode;
        setAttribute(Qt::WA_TranslucentBackground, mode == PopoverMode::panel && hasAlpha());
        setWindowFlags(flagsOf(mode));
    }

    PopoverMode mode = PopoverMode::panel;
    std::function<void()> closed;
    QWidget* contents = nullptr;

  protected:
    void paintEvent(QPaintEvent*) override {
        const Look& look = Look::current();
        QPainter painter(this);
        if (mode == PopoverMode::window) {
            painter.fillRect(rect(), look.window);
        } else {
            paintRounded(painter, rect(), look.pixels(metrics::popoverRadius), look.window,
                         look.controlBorder);
        }
    }
    void resizeEvent(QResizeEvent*) override {
        if (contents != nullptr) contents->setGeometry(rect());
        if (mode == PopoverMode::window || hasAlpha()) {
            clearMask();
            return;
        }
        QPainterPath outline;
        const double radius = Look::current().pixels(metrics::popoverRadius);
        outline.addRoundedRect(rect(), radius, radius);
        setMask(outline.toFillPolygon().toPolygon());
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
            close();
        } else {
            QWidget::keyPressEvent(event);
        }
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (mode == PopoverMode::panel && !rect().contains(event->position().toPoint())) dismiss();
    }
    void changeEvent(QEvent* event) override {
        QWidget::changeEvent(event);
        const bool isTool = windowType() == Qt::Tool;
        if (event->type() == QEvent::ActivationChange && isTool && isVisible() && !isActiveWindow() &&
            QApplication::activePopupWidget() == nullptr) {
            dismiss();
        }
    }
    void hideEvent(QHideEvent* event) override {
        QWidget::hideEvent(event);
        // Minimised is hidden for the window system only.
        if (!event->spontaneous() && closed) closed();
    }

  private:
    // Without a compositor, which can't be told from here, an X server shows black
    // where a window is transparent.
    static bool hasAlpha() { return !isOn("xcb"); }

    // Because of something else that a person turned to, which may be the icon.
    void dismiss() {
        item_.ignoreClicksForAMoment();
        close();
    }

    QtStatusItem& item_;
};

QtPopover::QtPopover(QtStatusItem& item)
    : item_(item), panel_(std::make_unique<Panel>(item)), view_(std::make_unique<QtView>(panel_.get())) {
    panel_->setMode(PopoverMode::panel);
    panel_->contents = &view_->widget();
}

QtPopover::~QtPopover() { panel_->closed = nullptr; }

ui::View& QtPopover::content() { return *view_; }
bool QtPopover::isShown() const { return panel_->isVisible(); }
void QtPopover::onClose(std::function<void()> action) { panel_->closed = std::move(action); }
QWidget& QtPopover::window() { return *panel_; }

void QtPopover::close() { panel_->close(); }

void QtPopover::setMode(PopoverMode mode) {
    if (mode == panel_->mode) return;
    close();
    panel_->setMode(mode);
}

void QtPopover::show() {
    const bool isNew = !panel_->isVisible();
    const QRect icon = item_.geometry();
    anchor_ = icon.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : icon;
    if (isNew) place();
    panel_->show();
    panel_->raise();
    panel_->activateWindow();
    // The first Tab leads to the first control.
    view_->widget().setFocus(Qt::PopupFocusReason);
}

void QtPopover::setContentSize(ui::Size size) {
    contentSize_ = size;
    place();
}

void QtPopover::place() {
    const Look& look = Look::current();
    const QSize size(look.pixels(std::ceil(contentSize_.width)), look.pixels(std::ceil(contentSize_.height)));
    const QScreen* screen = QGuiApplication::screenAt(anchor_.center());
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QRect available = screen->availableGeometry();
    if (panel_->mode == PopoverMode::panel) {
        panel_->setGeometry(
            popoverPlace(anchor_, size, screen->geometry(), available, look.pixels(metrics::popoverGap)));
        return;
    }
    panel_->setFixedSize(size.boundedTo(available.size() - QSize(0, look.pixels(metrics::roomForFrame))));
    if (!panel_->isVisible()) {
        QRect middle(QPoint(), panel_->size());
        middle.moveCenter(available.center());
        panel_->move(middle.topLeft());
    }
}

}  // namespace vantrel::qt
