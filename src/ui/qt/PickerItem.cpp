#include "ui/qt/PickerItem.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>

#include "ui/qt/FocusRing.h"
#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Spoken.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class Box : public QComboBox, public Spoken {
  public:
    explicit Box(QWidget* parent) : QComboBox(parent), Spoken(QAccessible::ComboBox) {
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
    }

    QString spokenValue() const override { return currentText(); }
    void addState(QAccessible::State& state) const override { state.hasPopup = true; }

    int naturalWidth() const {
        const Look& look = Look::current();
        int widest = 0;
        for (int i = 0; i < count(); ++i) widest = std::max(widest, lines(itemText(i)).naturalWidth());
        return std::max(look.pixels(metrics::pickerMinimumWidth), widest + 2 * padding() + chevronRoom());
    }
    int naturalHeight() const {
        return std::max(Look::current().pixels(metrics::controlHeight), QFontMetrics(font()).height() + 6);
    }
    bool isCut() const { return lines(currentText()).isCut(textRoom()); }

  protected:
    bool event(QEvent* event) override {
        ring_.follow(*this, *event);
        return QComboBox::event(event);
    }
    void hidePopup() override {
        QComboBox::hidePopup();
        hasJustClosed_ = true;
        QMetaObject::invokeMethod(
            this, [this] { hasJustClosed_ = false; }, Qt::QueuedConnection);
    }
    void keyPressEvent(QKeyEvent* event) override {
        // The Escape that has closed the list comes here next; it must not go on and
        // close what is around the box as well.
        if (hasJustClosed_ && event->matches(QKeySequence::Cancel)) {
            event->accept();
        } else {
            QComboBox::keyPressEvent(event);
        }
    }
    // Scrolling past it must not change it.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

    void paintEvent(QPaintEvent*) override {
        const Look& look = Look::current();
        QPainter painter(this);
        if (!isEnabled()) painter.setOpacity(disabledOpacity);
        const double radius = look.pixels(metrics::controlRadius);
        const bool isHovered = isEnabled() && underMouse();
        paintRounded(painter, rect(), radius, isHovered ? look.hoveredControl : look.control,
                     look.controlBorder);
        lines(currentText()).paint(painter, {padding(), 0, textRoom(), height()}, Qt::AlignLeft, look.text);
        const int side = look.pixels(metrics::chevronSide);
        paintChevron(painter, QRectF(width() - side - look.pixels(6), (height() - side) / 2.0, side, side),
                     Chevron::upAndDown, look.secondaryText);
        if (hasFocus() && ring_.isShown()) paintFocusRing(painter, rect(), radius);
    }

  private:
    TextLines lines(const QString& text) const { return {text, font(), TextLines::Wrapping::none}; }
    int textRoom() const { return width() - 2 * padding() - chevronRoom(); }
    static int padding() { return Look::current().pixels(9); }
    static int chevronRoom() { return Look::current().pixels(metrics::chevronSide + 2); }

    FocusRing ring_;
    bool hasJustClosed_ = false;
};

// The label and the box, as one widget.
class Labelled : public QWidget, public Spoken {
  public:
    explicit Labelled(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Grouping), box(new Box(this)) {
        setFocusProxy(box);
    }

    TextLines label;
    int labelWidth = 0;
    Box* box;

  protected:
    void paintEvent(QPaintEvent*) override {
        if (label.text().isEmpty()) return;
        QPainter painter(this);
        if (!isEnabled()) painter.setOpacity(disabledOpacity);
        const int high = label.height(labelWidth);
        label.paint(painter, {0, (height() - high) / 2, labelWidth, high}, Qt::AlignLeft,
                    Look::current().text);
    }
    // As with a label in a form anywhere.
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) box->setFocus(Qt::MouseFocusReason);
    }
};

Labelled& widgetsOf(const Item& item) { return *static_cast<Labelled*>(item.widget()); }

int gap() { return Look::current().pixels(12); }

}  // namespace

PickerItem::PickerItem(const Making& making) : Item(making, new Labelled(making.parent)) {
    QObject::connect(widgetsOf(*this).box, &QComboBox::activated, widget(), [this](int option) {
        const auto& picker = std::get<ui::Picker>(node().element);
        const bool isOther = picker.selected != static_cast<std::size_t>(option);
        // The node says what is chosen.
        showChosen();
        if (isOther) send(ui::Chosen{static_cast<std::size_t>(option)});
    });
}

void PickerItem::show(const ui::Node& node) {
    const auto& picker = std::get<ui::Picker>(node.element);
    Labelled& widgets = widgetsOf(*this);
    const Look& look = Look::current();
    widgets.label = TextLines(QString::fromStdString(picker.title), look.font(ui::Font::body),
                              TextLines::Wrapping::wraps);
    Box& box = *widgets.box;
    box.setFont(look.font(ui::Font::body));
    // The box is what is operated.
    box.setAccessibleName(widget()->accessibleName());
    box.setAccessibleDescription(widget()->accessibleDescription());
    widget()->setAccessibleName({});
    widget()->setAccessibleDescription({});
    const QSignalBlocker blocker(box);
    QStringList wanted;
    for (const std::string& option : picker.options) wanted << QString::fromStdString(option);
    QStringList shown;
    for (int i = 0; i < box.count(); ++i) shown << box.itemText(i);
    // An open list stays open.
    if (wanted != shown) {
        box.clear();
        box.addItems(wanted);
    }
    showChosen();
    widget()->update();
}

void PickerItem::showChosen() {
    Box& box = *widgetsOf(*this).box;
    const auto& selected = std::get<ui::Picker>(node().element).selected;
    const QSignalBlocker blocker(box);
    box.setCurrentIndex(selected ? static_cast<int>(*selected) : -1);
    box.update();
}

// The box has its natural width as long as that leaves the label half of it all.
int PickerItem::labelWidth(int width) const {
    const Labelled& widgets = widgetsOf(*this);
    if (widgets.label.text().isEmpty()) return 0;
    const int box = widgets.box->naturalWidth();
    const int label = widgets.label.naturalWidth() + 1;
    if (label + gap() + box <= width) return label;
    return std::min(label, std::max(width / 2, width - gap() - box));
}

layout::WidthRange PickerItem::widths() const {
    const Labelled& widgets = widgetsOf(*this);
    const bool hasLabel = !widgets.label.text().isEmpty();
    const int label = hasLabel ? widgets.label.naturalWidth() + 1 + gap() : 0;
    const int least = Look::current().pixels(metrics::pickerMinimumWidth);
    return {least + (hasLabel ? widgets.label.minimumWidth() + gap() : 0),
            label + widgets.box->naturalWidth()};
}

int PickerItem::height(int width) const {
    const Labelled& widgets = widgetsOf(*this);
    const int label = widgets.label.text().isEmpty() ? 0 : widgets.label.height(labelWidth(width));
    return std::max(label, widgets.box->naturalHeight());
}

bool PickerItem::expands() const { return !widgetsOf(*this).label.text().isEmpty(); }

void PickerItem::arrange() {
    Labelled& widgets = widgetsOf(*this);
    widgets.labelWidth = labelWidth(widget()->width());
    const int used = widgets.labelWidth > 0 ? widgets.labelWidth + gap() : 0;
    const int width = std::min(widget()->width() - used,
                               std::max(widgets.box->naturalWidth(), used == 0 ? widget()->width() : 0));
    const int height = widgets.box->naturalHeight();
    widgets.box->setGeometry(widget()->width() - width, (widget()->height() - height) / 2, width, height);
    const bool needsWhole = node().help.empty() && widgets.box->isCut();
    setToolTip(needsWhole ? widgets.box->currentText().toStdString() : node().help);
    widgets.update();
}

}  // namespace vantrel::qt
