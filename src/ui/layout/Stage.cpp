#include "ui/layout/Stage.h"

namespace vantrel::layout {

void Stage::send(ui::ElementID element, const ui::Event& event) {
    if (telling_ > 0 || !handler_) return;
    const auto handler = handler_;
    handler(element, event);
}

}  // namespace vantrel::layout
