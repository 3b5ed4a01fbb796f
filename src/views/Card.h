// The rounded panel around what belongs to one display.
#pragma once

#include <utility>
#include <vector>

#include "ui/Node.h"

namespace vantrel::views {

inline ui::Node card(std::vector<ui::Node> content) {
    return ui::Node{.element = ui::Stack{.axis = ui::Axis::vertical,
                                         .spacing = 10,
                                         .background = ui::Background::card,
                                         .cornerRadius = 10},
                    .children = std::move(content)}
        .padding(12)
        .fillWidth();
}

}  // namespace vantrel::views
