// An area that scrolls vertically, with a slim bar over its contents while there is
// more than it shows. What has the keyboard is always brought into sight.
#pragma once

#include <QScrollArea>

namespace vantrel::qt {

class ScrollView : public QScrollArea {
  public:
    explicit ScrollView(QWidget* parent);

    // Of everything in it.
    void setContentSize(const QSize& size);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    class Bar;

    void placeBar();

    Bar* bar_;
};

}  // namespace vantrel::qt
