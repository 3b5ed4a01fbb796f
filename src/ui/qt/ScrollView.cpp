#include "ui/qt/ScrollView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"

namespace vantrel::qt {

namespace {

// Between two turns of the wheel that somebody makes to get further down.
constexpr quint64 pauseAtMost = 1000;

}  // namespace

class ScrollView::Bar : public QWidget {
  public:
    Bar(ScrollView* view, QScrollBar* model) : QWidget(view), model_(model) {
        setAttribute(Qt::WA_Hover);
        QObject::connect(model, &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
        QObject::connect(model, &QScrollBar::rangeChanged, this,
                         [this] { setVisible(model_->maximum() > 0); });
        hide();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QColor color = Look::current().text;
        color.setAlphaF(underMouse() || isHeld_ ? 0.5F : 0.28F);
        const QRectF handle(1, top(), width() - 2, length());
        paintRounded(painter, handle, handle.width() / 2, color);
    }

    void mousePressEvent(QMouseEvent* event) override {
        const int at = event->position().toPoint().y();
        isHeld_ = true;
        // Pressed beside the handle, the handle comes under the pointer.
        hold_ = at >= top() && at <= top() + length() ? at - top() : length() / 2;
        drag(at);
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (isHeld_) drag(event->position().toPoint().y());
    }
    void mouseReleaseEvent(QMouseEvent*) override {
        isHeld_ = false;
        update();
    }

  private:
    int length() const {
        const int all = model_->maximum() + model_->pageStep();
        return std::clamp(height() * model_->pageStep() / std::max(1, all), std::min(24, height()), height());
    }
    int top() const { return (height() - length()) * model_->value() / std::max(1, model_->maximum()); }
    void drag(int at) {
        const int way = std::max(1, height() - length());
        model_->setValue((at - hold_) * model_->maximum() / way);
    }

    QScrollBar* model_;
    bool isHeld_ = false;
    int hold_ = 0;
};

ScrollView::ScrollView(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto* const contents = new QWidget;
    setWidget(contents);
    // They lie on whatever the view lies on.
    viewport()->setAutoFillBackground(false);
    contents->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(16);
    bar_ = new Bar(this, verticalScrollBar());
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) {
        // What the pointer presses must not move away under it.
        if (focused == nullptr || QApplication::mouseButtons() != Qt::NoButton) return;
        if (widget()->isAncestorOf(focused)) ensureWidgetVisible(focused, 0, Look::current().pixels(12));
    });
}

void ScrollView::setContentSize(const QSize& size) {
    widget()->resize(size);
    placeBar();
}

void ScrollView::wheelEvent(QWheelEvent* event) {
    turnedAt_ = event->timestamp();
    QScrollArea::wheelEvent(event);
}

bool ScrollView::keeps(const QWheelEvent& turn) const {
    return turnedAt_ && turn.timestamp() - *turnedAt_ <= pauseAtMost;
}

// Perhaps not among its own children.
ScrollView::~ScrollView() { delete bar_; }

void ScrollView::moveEvent(QMoveEvent* event) {
    QScrollArea::moveEvent(event);
    placeBar();
}

void ScrollView::showEvent(QShowEvent* event) {
    QScrollArea::showEvent(event);
    placeBar();
}

void ScrollView::hideEvent(QHideEvent* event) {
    QScrollArea::hideEvent(event);
    bar_->hide();
}

void ScrollView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    placeBar();
}

void ScrollView::placeBar() {
    const int thickness = Look::current().pixels(metrics::scrollBarWidth);
    const int room = parentWidget() != nullptr ? parentWidget()->width() - geometry().right() - 1 : 0;
    const bool isBeside = room >= thickness + 2;
    QWidget* const place = isBeside ? parentWidget() : this;
    if (bar_->parentWidget() != place) bar_->setParent(place);
    const int left = isBeside ? geometry().right() + 1 + (room - thickness) / 2 : width() - thickness - 2;
    const int top = isBeside ? geometry().top() : 0;
    bar_->setGeometry(left, top + 3, thickness, std::max(0, height() - 6));
    bar_->setVisible(isVisibleTo(window()) && verticalScrollBar()->maximum() > 0);
    bar_->raise();
}

}  // namespace vantrel::qt
