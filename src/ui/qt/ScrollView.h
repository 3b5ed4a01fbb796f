// An area that scrolls vertically, with a slim bar while there is more than it shows:
// beside its contents where there is room, or else over them. What has the keyboard is always brought into
// sight.
#pragma once

#include <QPointer>
#include <QScrollArea>

namespace vantrel::qt {

class ScrollView : public QScrollArea {
  public:
    explicit ScrollView(QWidget* parent);
    ~ScrollView() override;

    // Of everything in it.
    void setContentSize(const QSize& size);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    class Bar;

    void placeBar();

    QPointer<Bar> bar_;
};

}  // namespace vantrel::qt
