#include "ui/qt/SwitchItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/PaintedButton.h"
#include "ui/qt/Painting.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class SwitchButton : public PaintedButton {
  public:
    explicit SwitchButton(QWidget* parent) : PaintedButton(parent, QAccessible::CheckBox) {}

    void addState(QAccessible::State& state) const override {
        state.checkable = true;
        state.checked = isOn_;
    }
    QString spokenText() const override { return title_.text(); }

    void show(const ui::Switch& shown) {
        const bool hasChanged = isOn_ != shown.isOn;
        isOn_ = shown.isOn;
        title_ = TextLines(QString::fromStdString(shown.title), Look::current().font(ui::Font::body),
                           TextLines::Wrapping::wraps);
        update();
        if (hasChanged && QAccessible::isActive()) {
            QAccessible::State changed;
            changed.checked = true;
            QAccessibleStateChangeEvent event(this, changed);
            QAccessible::updateAccessibility(&event);
        }
    }

    bool hasTitle() const { return !title_.text().isEmpty(); }
    int minimumWidth() const { return switchRoom() + (hasTitle() ? title_.minimumWidth() : 0); }
    int naturalWidth() const { return switchRoom() + (hasTitle() ? title_.naturalWidth() : 0); }
    int naturalHeight(int width) const {
        const int high = Look::current().pixels(metrics::switchHeight);
        return hasTitle() ? std::max(high, title_.height(width - switchRoom())) + 4 : high;
    }

  protected:
    void paint(QPainter& painter) override {
        const Look& look = Look::current();
        if (hasTitle()) {
            const int height = title_.height(width() - switchRoom());
            title_.paint(painter, {0, (this->height() - height) / 2, width() - switchRoom(), height},
                         Qt::AlignLeft, look.text);
        }
        const int wide = look.pixels(metrics::switchWidth);
        const int high = look.pixels(metrics::switchHeight);
        const QRectF track(width() - wide, (height() - high) / 2.0, wide, high);
        QColor rest = look.track;
        if (isEnabled() && underMouse()) rest.setAlphaF(rest.alphaF() + 0.08F);
        paintRounded(painter, track, high / 2.0, isOn_ ? look.accent : rest,
                     isOn_ ? QColor(Qt::transparent) : look.controlBorder);
        const double side = high - 4;
        const QRectF knob(isOn_ ? track.right() - side - 2 : track.left() + 2, track.top() + 2, side, side);
        paintRounded(painter, knob, side / 2, look.knob, isOn_ ? QColor(Qt::transparent) : look.knobBorder);
    }

    double cornerRadius() const override {
        const Look& look = Look::current();
        return hasTitle() ? look.pixels(metrics::controlRadius) : height() / 2.0;
    }

  private:
    // With what is between it and the label.
    int switchRoom() const {
        const Look& look = Look::current();
        return look.pixels(metrics::switchWidth) + (hasTitle() ? look.pixels(12) : 0);
    }

    bool isOn_ = false;
    TextLines title_;
};

SwitchButton& buttonOf(const Item& item) { return *static_cast<SwitchButton*>(item.widget()); }

}  // namespace

SwitchItem::SwitchItem(const Making& making) : Item(making, new SwitchButton(making.parent)) {
    QObject::connect(&buttonOf(*this), &QAbstractButton::clicked, widget(),
                     [this] { send(ui::Toggled{!std::get<ui::Switch>(node().element).isOn}); });
}

void SwitchItem::show(const ui::Node& node) { buttonOf(*this).show(std::get<ui::Switch>(node.element)); }

layout::WidthRange SwitchItem::widths() const {
    return {buttonOf(*this).minimumWidth(), buttonOf(*this).naturalWidth()};
}

int SwitchItem::height(int width) const { return buttonOf(*this).naturalHeight(width); }

bool SwitchItem::expands() const { return buttonOf(*this).hasTitle(); }

}  // namespace vantrel::qt
