#include "ui/qt/DividerItem.h"

#include <QPainter>

#include "ui/qt/Look.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

class Line : public QWidget, public Spoken {
  public:
    explicit Line(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Separator) {}

  protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Look::current().separator); }
};

}  // namespace

DividerItem::DividerItem(const Making& making) : Item(making, new Line(making.parent)) {}

}  // namespace vantrel::qt
