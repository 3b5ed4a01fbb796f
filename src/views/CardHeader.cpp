#include "views/CardHeader.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ui/Nodes.h"

namespace vantrel::views {

ui::Node cardHeader(CardHeader header) {
    std::vector<ui::Node> parts{
        ui::image(std::move(header.symbol), ui::Font::title).width(24),
        ui::column(0,
                   {
                       ui::text(std::move(header.title), ui::Font::title),
                       ui::wrappedText(std::move(header.subtitle), ui::Font::caption, ui::Tone::secondary),
                   }),
        ui::spacer(),
    };
    std::ranges::move(header.accessory, std::back_inserter(parts));
    return ui::row(8, std::move(parts)).fillWidth();
}

}  // namespace vantrel::views
