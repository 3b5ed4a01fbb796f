#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/GridItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node cell(std::string key) {
    Tile tile;
    tile.title = key;
    tile.padding = 6;
    return Node{.element = std::move(tile)}.named(key).key(key);
}

TEST(GridItem, FillsCellsOfEqualWidthRowByRow) {
    ViewBench bench(column(0, {Node{.element = Grid{.columns = 2, .columnSpacing = 6, .rowSpacing = 4},
                                    .children = {cell("a"), cell("b"), cell("c")}}})
                        .width(206));
    EXPECT_EQ(bench.place("a").topLeft(), QPoint(0, 0));
    EXPECT_EQ(bench.place("a").width(), 100);
    EXPECT_EQ(bench.place("b").topLeft(), QPoint(106, 0));
    EXPECT_EQ(bench.place("b").width(), 100);
    EXPECT_EQ(bench.place("c").topLeft(), QPoint(0, bench.place("a").height() + 4));
}

TEST(GridItem, KeepsTheGapsWhereTheWidthsCannotBeEqual) {
    ViewBench bench(column(0, {Node{.element = Grid{.columns = 3, .columnSpacing = 6},
                                    .children = {cell("a"), cell("b"), cell("c")}}})
                        .width(200));
    EXPECT_EQ(bench.place("b").left() - bench.place("a").right() - 1, 6);
    EXPECT_EQ(bench.place("c").left() - bench.place("b").right() - 1, 6);
    EXPECT_EQ(bench.place("c").right(), 199);
}

}  // namespace
}  // namespace vantrel::qt
