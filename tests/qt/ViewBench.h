// A view on the screen that isn't there, showing the trees that a test writes, and
// what a person does to it.
#pragma once

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "runtime/Fatal.h"
#include "runtime/MainLoop.h"
#include "runtime/Observable.h"
#include "runtime/RealScheduler.h"
#include "ui/Component.h"
#include "ui/Host.h"
#include "ui/Nodes.h"
#include "ui/qt/QtView.h"

namespace vantrel::qt {

class ViewBench {
  public:
    explicit ViewBench(ui::Node first, QSize size = {340, 600}) : tree_(std::move(first)) {
        window_.resize(size);
        view_.widget().setGeometry(window_.rect());
        window_.show();
        view_.onEvent([this](ui::ElementID element, const ui::Event& event) {
            if (host_) host_->deliver(element, event);
        });
        host_ = std::make_unique<ui::Host>(loop_, tree_, view_.renderer());
        settle();
    }
    ~ViewBench() {
        host_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void show(ui::Node tree) {
        tree_.tree = std::move(tree);
        tree_.version.set(tree_.version.get() + 1);
        settle();
    }
    // Everything that has been asked for happens.
    void settle() {
        loop_.runDue();
        QCoreApplication::processEvents();
        loop_.runDue();
    }

    QtView& view() { return view_; }
    QWidget& window() { return window_; }
    QWidget& at(const std::string& key) {
        auto* const found = window_.findChild<QWidget*>(QString::fromStdString(key));
        if (found == nullptr) runtime::fatal("no widget with the key " + key);
        return *found;
    }
    // What the keyboard operates.
    QWidget& control(const std::string& key) {
        QWidget& widget = at(key);
        return widget.focusProxy() == nullptr ? widget : *widget.focusProxy();
    }
    // In the coordinates of the view.
    QRect place(const std::string& key) {
        QWidget& widget = at(key);
        return {widget.mapTo(&view_.widget(), QPoint()), widget.size()};
    }

    static void press(QWidget& widget, int key, const QString& text = {}) {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &down);
        QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &up);
    }
    static void mouse(QWidget& widget, QEvent::Type type, const QPointF& at,
                      Qt::MouseButton button = Qt::LeftButton) {
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, at, widget.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : button,
                          held, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
    static void click(QWidget& widget) {
        const QPointF middle = QRectF(widget.rect()).center();
        mouse(widget, QEvent::MouseButtonPress, middle);
        mouse(widget, QEvent::MouseButtonRelease, middle);
    }
    // In eighths of a degree and milliseconds. As with a real one, whoever has no use for
    // the turn leaves it to what he lies on.
    static void wheel(QWidget& widget, int angle, quint64 time = 0) {
        for (QWidget* taker = &widget; taker != nullptr; taker = taker->parentWidget()) {
            const QPointF middle = QRectF(taker->rect()).center();
            QWheelEvent event(middle, taker->mapToGlobal(middle), {}, {0, angle}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            event.setTimestamp(time);
            event.ignore();
            if (QApplication::sendEvent(taker, &event) && event.isAccepted()) return;
        }
    }

  private:
    struct Tree : ui::Component {
        explicit Tree(ui::Node first) : tree(std::move(first)) {}

        ui::Node body() override {
            version.get();
            return tree;
        }

        runtime::Observable<int> version{0};
        ui::Node tree;
    };

    runtime::RealScheduler scheduler_;
    runtime::MainLoop loop_{scheduler_};
    QWidget window_;
    QtView view_{&window_};
    Tree tree_;
    std::unique_ptr<ui::Host> host_;
};

}  // namespace vantrel::qt
