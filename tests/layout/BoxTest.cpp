#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "support/DeathTest.h"
#include "ui/layout/Box.h"
#include "ui/layout/BoxFactory.h"

namespace vantrel::layout {
namespace {

using namespace ui;
using testing::ElementsAre;

TEST(Box, LeavesItsPaddingAroundAControl) {
    LayoutBench bench(column(0, {word("a", "four").padding(7, 3), word("b", "b")}));
    EXPECT_EQ(bench.frame("a"), (Rect{7, 3, 40, 20}));
    EXPECT_EQ(bench.frame("b"), (Rect{0, 26, 10, 20}));
}

TEST(Box, GivesAPanelItsPadding) {
    LayoutBench bench(column(0, {column(0, {word("a", "four")}).padding(7, 3).key("panel")}));
    EXPECT_EQ(bench.frame("panel"), (Rect{0, 0, 54, 26}));
    EXPECT_EQ(bench.frame("a"), (Rect{7, 3, 40, 20}));
}

TEST(Box, IsAsWideAndHighAsTheNodeSays) {
    LayoutBench bench(column(0, {word("a", "four").width(100).height(50).padding(10)}));
    EXPECT_EQ(bench.frame("a"), (Rect{10, 10, 80, 30}));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{100, 50}));
}

TEST(Box, StaysWithinTheHeightsThatTheNodeSays) {
    LayoutBench bench(column(0, {column(0, {}).heightBetween(30, 60).key("low"),
                                 column(0, {block("b", 10, 100)}).heightBetween(30, 60).key("high")}));
    EXPECT_EQ(bench.frame("low").height, 30);
    EXPECT_EQ(bench.frame("high").height, 60);
}

TEST(Box, CountsInPixels) {
    LayoutBench bench(column(0, {block("a", 50, 20).padding(5)}));
    bench.canvas.scale = 2;
    bench.renderer.refresh();
    EXPECT_EQ(bench.frame("a"), (Rect{10, 10, 80, 20}));
}

TEST(Box, HasNoNegativeRoomInside) {
    LayoutBench bench(column(0, {wrappedText("a b").padding(30).key("a")}).width(40));
    // One letter in a line.
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{40, 60 + 3 * 20}));
}

TEST(Box, MeasuresItsControlOnceForEachChange) {
    const auto tree = [](std::string shown) {
        return column(0, {row(0, {column(0, {row(0, {word("a", shown), spacer()})})})});
    };
    LayoutBench bench(tree("first"));
    EXPECT_EQ(bench.canvas.at("a").measured, 1);
    bench.renderer.layOut();
    EXPECT_EQ(bench.canvas.at("a").measured, 1);
    bench.show(tree("second"));
    EXPECT_EQ(bench.canvas.at("a").measured, 2);
    EXPECT_EQ(bench.frame("a").width, 60);
}

TEST(Box, KeepsItsChildrenInTheOrderThatItIsTold) {
    const auto tree = [](const std::string& letters) {
        std::vector<Node> nodes;
        for (const char letter : letters) nodes.push_back(block({letter}, 10, 10));
        return column(0, std::move(nodes)).key("column");
    };
    LayoutBench bench(tree("abcd"));
    bench.show(tree("dbXa"));
    EXPECT_THAT(bench.canvas.ordered, ElementsAre("column", "d", "b", "X", "a"));
    EXPECT_EQ(bench.frame("X").y, 20);
    EXPECT_THAT(bench.canvas.gone, ElementsAre("c"));
}

TEST(Box, LosesItsControlBeforeItsChildrenLoseTheirs) {
    LayoutBench bench(column(0, {column(0, {column(0, {}).key("c")}).key("b")}));
    bench.show(column(0, {}));
    EXPECT_THAT(bench.canvas.gone, ElementsAre("b", "c"));
}

class BoxDeathTest : public test::DeathTest {
  protected:
    Stage stage_;
    test::FakeCanvas canvas_;
    std::unique_ptr<Box> column_ = makeBox(stage_, canvas_, 1, column(0, {}), nullptr);
};

TEST_F(BoxDeathTest, TakesNoChildBehindTheEnd) {
    EXPECT_DEATH(column_->insertChild(1, makeBox(stage_, canvas_, 2, text("a"), column_.get())),
                 "a node is inserted behind the end");
}

TEST_F(BoxDeathTest, MovesNoChildThatItDoesNotHave) {
    EXPECT_DEATH(column_->moveChild(0, 7), "no such node to move");
}

}  // namespace
}  // namespace vantrel::layout
