// The first row of every card: which display it is, how it is doing, and what can
// be done with it as a whole.
#pragma once

#include <string>
#include <vector>

#include "ui/Node.h"

namespace vantrel::views {

struct CardHeader {
    std::string title;
    std::string subtitle;
    ui::Symbol symbol;
    // At the trailing edge.
    std::vector<ui::Node> accessory = {};
};

ui::Node cardHeader(CardHeader header);

}  // namespace vantrel::views
