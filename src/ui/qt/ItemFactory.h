// The item of a node's kind; it doesn't show the node yet. A picker stays with or
// without a symbol, and a text selectable or not, as it was first.
#pragma once

#include <memory>

#include "ui/qt/Item.h"

namespace vantrel::qt {

std::unique_ptr<Item> makeItem(const Item::Making& making, const ui::Node& node);

}  // namespace vantrel::qt
