#include "ui/qt/QtView.h"

#include <QEvent>

#include "ui/qt/Item.h"
#include "ui/qt/Look.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

void collectCut(const layout::Box& box, std::vector<std::string>& texts) {
    const auto& item = static_cast<const Item&>(box.control());
    if (item.isCut()) texts.push_back(item.widget()->toolTip().toStdString());
    for (const auto& child : box.children()) collectCut(*child, texts);
}

}  // namespace

class QtView::Ground : public QWidget {
  public:
    using QWidget::QWidget;

    layout::BoxRenderer* renderer = nullptr;

  protected:
    void resizeEvent(QResizeEvent*) override {
        if (renderer != nullptr) renderer->layOut();
    }
    void changeEvent(QEvent* event) override {
        QWidget::changeEvent(event);
        const auto type = event->type();
        if (renderer != nullptr && (type == QEvent::FontChange || type == QEvent::PaletteChange)) {
            renderer->refresh();
            // With everything on it: a control that stays as it is has other colours.
            update();
        }
    }
};

QtView::QtView(QWidget* parent)
    : ground_(std::make_unique<Ground>(parent)), canvas_(*ground_), renderer_(canvas_) {
    installSpokenWidgets();
    ground_->renderer = &renderer_;
    // Where the keyboard is before its first Tab, and after a click beside everything.
    ground_->setFocusPolicy(Qt::ClickFocus);
}

QtView::~QtView() { ground_->renderer = nullptr; }

QWidget& QtView::widget() { return *ground_; }

void QtView::onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) {
    renderer_.onEvent(std::move(handler));
}

std::vector<std::string> QtView::cutTexts() const {
    std::vector<std::string> texts;
    if (const layout::Box* const root = renderer_.root()) collectCut(*root, texts);
    return texts;
}

QSize QtView::fittingPixels() const {
    const layout::PixelSize size = renderer_.fittingSize();
    return {size.width, size.height};
}

ui::Size QtView::fittingSize() const {
    const layout::PixelSize size = renderer_.fittingSize();
    return Look::current().points(size.width, size.height);
}

}  // namespace vantrel::qt
