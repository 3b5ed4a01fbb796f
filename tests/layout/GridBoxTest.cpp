#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "ui/layout/GridBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;

Node grid(Grid grid, std::vector<Node> cells) {
    return Node{.element = grid, .children = std::move(cells)}.key("grid");
}

TEST(GridBox, FillsCellsOfEqualWidthRowByRow) {
    LayoutBench bench(column(0, {grid({.columns = 2, .columnSpacing = 6, .rowSpacing = 4},
                                      {word("a", "a"), word("b", "b"), word("c", "c")})})
                          .width(206));
    EXPECT_EQ(bench.frame("a"), (Rect{0, 0, 100, 20}));
    EXPECT_EQ(bench.frame("b"), (Rect{106, 0, 100, 20}));
    EXPECT_EQ(bench.frame("c"), (Rect{0, 24, 100, 20}));
    EXPECT_EQ(bench.frame("grid"), (Rect{0, 0, 206, 44}));
}

TEST(GridBox, KeepsTheGapsWhereTheWidthsCannotBeEqual) {
    LayoutBench bench(column(0, {grid({.columns = 3, .columnSpacing = 6},
                                      {word("a", "a"), word("b", "b"), word("c", "c")})})
                          .width(200));
    EXPECT_EQ(bench.frame("a"), (Rect{0, 0, 62, 20}));
    EXPECT_EQ(bench.frame("b"), (Rect{68, 0, 63, 20}));
    EXPECT_EQ(bench.frame("c"), (Rect{137, 0, 63, 20}));
}

TEST(GridBox, IsAsWideAsItsWidestCellInEachColumn) {
    LayoutBench bench(
        grid({.columns = 2, .columnSpacing = 6}, {word("a", "a"), word("b", "seven")}).padding(3));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{2 * 50 + 6 + 6, 26}));
    EXPECT_EQ(bench.frame("a"), (Rect{3, 3, 50, 20}));
}

TEST(GridBox, MakesTheCellsOfARowEquallyHigh) {
    LayoutBench bench(grid({.columns = 2, .rowSpacing = 4},
                           {wrappedText("two lines").key("a"), word("b", "b"), word("c", "c")})
                          .width(100));
    EXPECT_EQ(bench.frame("a").height, 40);
    EXPECT_EQ(bench.frame("b").height, 40);
    EXPECT_EQ(bench.frame("c"), (Rect{0, 44, 50, 20}));
}

TEST(GridBox, WithoutCellsHasNoHeight) {
    LayoutBench bench(column(0, {grid({.columns = 2, .rowSpacing = 4}, {})}).width(100));
    EXPECT_EQ(bench.frame("grid"), (Rect{0, 0, 100, 0}));
}

TEST(GridBox, WithoutColumnsHasOne) {
    LayoutBench bench(grid({.columns = 0, .rowSpacing = 4}, {word("a", "a"), word("b", "b")}));
    EXPECT_EQ(bench.frame("b"), (Rect{0, 24, 10, 20}));
}

}  // namespace
}  // namespace vantrel::layout
