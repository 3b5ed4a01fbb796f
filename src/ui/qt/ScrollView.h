// An area that scrolls vertically, with a slim bar while there is more than it shows:
// beside its contents where there is room, or else over them. What has the keyboard is always brought into
// sight.
#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWheelEvent>
#include <optional>

namespace vantrel::qt {

class ScrollView : public QScrollArea {
  public:
    explicit ScrollView(QWidget* parent);
    ~ScrollView() override;

    // Of everything in it.
    void setContentSize(const QSize& size);

    // Whether the wheel's turn belongs to this view though what lies under the pointer by
    // now has a use for it: it came there because the view was scrolled just before.
    bool keeps(const QWheelEvent& turn) const;

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    class Bar;

    void placeBar();

    QPointer<Bar> bar_;
    // Of the last turn of the wheel that came here, in milliseconds.
    std::optional<quint64> turnedAt_;
};

}  // namespace vantrel::qt
