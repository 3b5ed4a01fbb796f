#include "ui/qt/DisclosureItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/PaintedButton.h"
#include "ui/qt/Painting.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

class TitleButton : public PaintedButton {
  public:
    explicit TitleButton(QWidget* parent) : PaintedButton(parent, QAccessible::Button) {}

    void addState(QAccessible::State& state) const override {
        state.expandable = true;
        state.expanded = isOpen_;
        state.collapsed = !isOpen_;
    }
    QString spokenText() const override { return title_.text(); }

    void show(const ui::Disclosure& disclosure) {
        isOpen_ = disclosure.isOpen;
        title_ = TextLines(QString::fromStdString(disclosure.title), Look::current().font(ui::Font::body),
                           TextLines::Wrapping::none);
        update();
    }

    int naturalWidth() const { return indent() + title_.naturalWidth() + Look::current().pixels(4); }
    int naturalHeight() const {
        return std::max(Look::current().pixels(metrics::controlHeight), title_.height(0) + 4);
    }

  protected:
    void paint(QPainter& painter) override {
        const Look& look = Look::current();
        paintRounded(painter, rect(), cornerRadius(), borderlessFill());
        const int side = look.pixels(metrics::chevronSide);
        paintChevron(painter, QRectF(look.pixels(3), (height() - side) / 2.0, side, side),
                     isOpen_ ? Chevron::down : Chevron::right, look.secondaryText);
        title_.paint(painter, {indent(), 0, width() - indent(), height()}, Qt::AlignLeft, look.text);
    }

  private:
    static int indent() {
        const Look& look = Look::current();
        return look.pixels(3) + look.pixels(metrics::chevronSide) + look.pixels(metrics::symbolGap);
    }

    bool isOpen_ = false;
    TextLines title_;
};

class Body : public QWidget, public Spoken {
  public:
    explicit Body(QWidget* parent)
        : QWidget(parent), Spoken(QAccessible::Grouping), title(new TitleButton(this)) {}

    TitleButton* title;
};

Body& bodyOf(const Item& item) { return *static_cast<Body*>(item.widget()); }

}  // namespace

DisclosureItem::DisclosureItem(const Making& making) : Item(making, new Body(making.parent)) {
    widget()->setFocusProxy(bodyOf(*this).title);
    QObject::connect(bodyOf(*this).title, &QAbstractButton::clicked, widget(),
                     [this] { send(ui::Toggled{!std::get<ui::Disclosure>(node().element).isOpen}); });
}

void DisclosureItem::show(const ui::Node& node) {
    TitleButton& title = *bodyOf(*this).title;
    // The button is what is operated; the group around it has no name to repeat.
    title.setAccessibleName(widget()->accessibleName());
    title.setAccessibleDescription(widget()->accessibleDescription());
    widget()->setAccessibleName({});
    widget()->setAccessibleDescription({});
    title.show(std::get<ui::Disclosure>(node.element));
}

layout::WidthRange DisclosureItem::widths() const { return {0, bodyOf(*this).title->naturalWidth()}; }

int DisclosureItem::height(int) const { return bodyOf(*this).title->naturalHeight(); }

void DisclosureItem::placeTitle(const layout::Rect& title) {
    bodyOf(*this).title->setGeometry(title.x, title.y, title.width, title.height);
}

}  // namespace vantrel::qt
