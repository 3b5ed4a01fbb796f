#include "ui/layout/LeafBox.h"

namespace vantrel::layout {

bool LeafBox::expandsVertically() const { return std::holds_alternative<ui::Spacer>(node().element); }

bool LeafBox::contentExpands() const { return expandsVertically() || control().expands(); }

}  // namespace vantrel::layout
