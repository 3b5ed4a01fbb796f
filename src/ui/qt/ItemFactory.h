// The item of a node's kind. A picker stays with or without a symbol, and a text
// selectable or not, as it was first.
#pragma once

#include <memory>

#include "ui/qt/Item.h"

namespace vantrel::qt {

std::unique_ptr<Item> makeItem(Stage& stage, ui::ElementID element, const ui::Node& node, QWidget* parent);

}  // namespace vantrel::qt
