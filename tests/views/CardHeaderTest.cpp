#include <gtest/gtest.h>

#include "ui/Nodes.h"
#include "ui/outline/Outline.h"
#include "views/Card.h"
#include "views/CardHeader.h"

namespace vantrel::views {
namespace {

TEST(CardHeader, IsASymbolATitleAboveASubtitleAndWhatCanBeDone) {
    EXPECT_EQ(outline::outlineOf(cardHeader({.title = "Alder",
                                             .subtitle = "DDC/CI",
                                             .symbol = "display",
                                             .accessory = {ui::button("Turn On"), ui::button("More")}})),
              "row\n"
              "  image display\n"
              "  column\n"
              "    text \"Alder\"\n"
              "    text \"DDC/CI\" secondary\n"
              "  spacer\n"
              "  button \"Turn On\"\n"
              "  button \"More\"\n");
}

TEST(CardHeader, HasAColumnForTheSymbol) {
    const ui::Node row = cardHeader({.title = "Alder", .subtitle = "DDC/CI", .symbol = "display"});
    EXPECT_EQ(std::get<ui::Stack>(row.element).spacing, 8);
    EXPECT_EQ(row.children.at(0).layout.width, 24);
}

TEST(CardHeader, HasASubtitleSmallerThanItsTitle) {
    const ui::Node titles =
        cardHeader({.title = "Alder", .subtitle = "DDC/CI", .symbol = "display"}).children.at(1);
    EXPECT_EQ(std::get<ui::Text>(titles.children.at(0).element).font, ui::Font::title);
    EXPECT_EQ(std::get<ui::Text>(titles.children.at(1).element).font, ui::Font::caption);
}

TEST(Card, IsARoundedPanel) {
    const ui::Node panel = card({ui::text("Alder")});
    EXPECT_EQ(panel.element, ui::Element(ui::Stack{.axis = ui::Axis::vertical,
                                                   .spacing = 10,
                                                   .background = ui::Background::card,
                                                   .cornerRadius = 10}));
    EXPECT_EQ(panel.layout, (ui::Layout{.horizontalPadding = 12, .verticalPadding = 12, .fillsWidth = true}));
    EXPECT_EQ(panel.children.size(), 1U);
}

}  // namespace
}  // namespace vantrel::views
