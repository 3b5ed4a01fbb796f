#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "ui/layout/ScrollBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;

Node scroll(int limit, std::vector<Node> children) {
    return Node{.element = Scroll{.maximumHeight = limit}, .children = std::move(children)}.key("scroll");
}

TEST(ScrollBox, IsAsHighAsItsContents) {
    LayoutBench bench(column(0, {scroll(500, {block("a", 20, 100), block("b", 20, 30)})}).width(200));
    EXPECT_EQ(bench.frame("scroll"), (Rect{0, 0, 200, 130}));
    EXPECT_EQ(bench.canvas.at("scroll").content, (Rect{0, 0, 200, 130}));
    EXPECT_EQ(bench.frame("b"), (Rect{0, 100, 200, 30}));
}

TEST(ScrollBox, ScrollsWhatIsHigherThanItsLimit) {
    LayoutBench bench(column(0, {scroll(300, {block("a", 20, 900)})}).width(200));
    EXPECT_EQ(bench.frame("scroll").height, 300);
    EXPECT_EQ(bench.canvas.at("scroll").content.height, 900);
    EXPECT_EQ(bench.frame("a").height, 900);
}

TEST(ScrollBox, WithoutALimitShowsAll) {
    LayoutBench bench(column(0, {scroll(0, {block("a", 20, 2000)})}).width(200), 3000);
    EXPECT_EQ(bench.frame("scroll").height, 2000);
}

TEST(ScrollBox, DoesWithLessWhenTheViewHasLess) {
    LayoutBench bench(
        column(0, {block("above", 20, 50), scroll(800, {block("a", 20, 900)}), block("below", 20, 30)})
            .width(200),
        400);
    EXPECT_EQ(bench.frame("scroll"), (Rect{0, 50, 200, 320}));
    EXPECT_EQ(bench.frame("below").y, 370);
    EXPECT_EQ(bench.canvas.at("scroll").content.height, 900);
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{200, 880}));
}

TEST(ScrollBox, DoesWithLessInAColumnOfAColumn) {
    LayoutBench bench(column(0, {column(0, {scroll(800, {block("a", 20, 900)})}).key("inner")}), 400);
    EXPECT_EQ(bench.frame("inner").height, 400);
    EXPECT_EQ(bench.frame("scroll").height, 400);
}

TEST(ScrollBox, GivesWayBeforeTheNextOne) {
    Node second = scroll(0, {block("b", 20, 100)});
    second.id = "second";
    LayoutBench bench(column(0, {scroll(0, {block("a", 20, 100)}), std::move(second)}), 50);
    EXPECT_EQ(bench.frame("scroll").height, 0);
    EXPECT_EQ(bench.frame("second"), (Rect{0, 0, 20, 50}));
}

TEST(ScrollBox, DoesNotShrinkInARow) {
    LayoutBench bench(column(0, {row(0, {scroll(0, {block("a", 20, 500)})}).key("row")}), 400);
    EXPECT_EQ(bench.frame("row").height, 500);
}

TEST(ScrollBox, HasItsPaddingAroundIt) {
    LayoutBench bench(column(0, {scroll(100, {block("a", 20, 200)}).padding(8)}).width(200));
    EXPECT_EQ(bench.frame("scroll"), (Rect{8, 8, 184, 100}));
    EXPECT_EQ(bench.frame("a"), (Rect{0, 0, 184, 200}));
}

}  // namespace
}  // namespace vantrel::layout
