#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "ui/layout/StackBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;

TEST(StackBox, PutsAColumnsChildrenBelowOneAnotherAtTheLeadingEdge) {
    LayoutBench bench(column(10, {block("a", 50, 20), block("b", 80, 30)}).padding(12).width(340));
    EXPECT_EQ(bench.frame("a"), (Rect{12, 12, 50, 20}));
    EXPECT_EQ(bench.frame("b"), (Rect{12, 42, 80, 30}));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{340, 84}));
}

TEST(StackBox, PutsARowsChildrenBesideOneAnotherInTheMiddle) {
    LayoutBench bench(row(8, {block("a", 50, 20), block("b", 80, 30)}));
    EXPECT_EQ(bench.frame("a"), (Rect{0, 5, 50, 20}));
    EXPECT_EQ(bench.frame("b"), (Rect{58, 0, 80, 30}));
}

TEST(StackBox, PutsARowsChildrenAtTheTopWhenTheNodeSaysSo) {
    Node leading{.element = Stack{.axis = Axis::horizontal, .spacing = 8, .alignment = Alignment::leading},
                 .children = {block("a", 50, 20), block("b", 80, 30)}};
    LayoutBench bench(std::move(leading).padding(4));
    EXPECT_EQ(bench.frame("a"), (Rect{4, 4, 50, 20}));
}

TEST(StackBox, PushesARowApartWithASpacer) {
    LayoutBench bench(row(8, {block("a", 50, 20), spacer(), block("b", 80, 20)}).width(340));
    EXPECT_EQ(bench.frame("b"), (Rect{260, 0, 80, 20}));
}

TEST(StackBox, GivesAChildThatFillsTheWidthAllOfIt) {
    LayoutBench bench(column(0, {column(0, {}).height(20).fillWidth().key("a")}).padding(12).width(340));
    EXPECT_EQ(bench.frame("a"), (Rect{12, 12, 316, 20}));
}

TEST(StackBox, CentersAcrossAColumn) {
    Node centered{.element = Stack{.alignment = Alignment::center}, .children = {block("a", 40, 20)}};
    LayoutBench bench(column(0, {std::move(centered).fillWidth()}).width(340));
    EXPECT_EQ(bench.frame("a").x, 150);
}

TEST(StackBox, LetsTheWidestOfARowGiveWayFirst) {
    LayoutBench bench(
        row(8, {word("long", "a long name for a monitor"), spacer(), word("short", "short")}).width(200));
    EXPECT_EQ(bench.frame("short"), (Rect{150, 0, 50, 20}));
    EXPECT_EQ(bench.frame("long"), (Rect{0, 0, 134, 20}));
}

TEST(StackBox, IsAsHighAsWhatWrapsInTheWidthThatItGets) {
    LayoutBench bench(
        row(0, {wrappedText("20 letters in a row.").key("text"), block("b", 50, 10)}).width(150));
    EXPECT_EQ(bench.frame("text"), (Rect{0, 0, 100, 40}));
    EXPECT_EQ(bench.frame("b"), (Rect{100, 15, 50, 10}));
}

TEST(StackBox, ExpandsWhenSomethingInItDoes) {
    LayoutBench bench(column(0, {row(0, {column(0, {row(0, {spacer(), block("a", 20, 20)})}).key("inner")})
                                     .padding(5)
                                     .key("outer"),
                                 row(0, {block("b", 20, 20)}).key("narrow")})
                          .width(200));
    EXPECT_EQ(bench.frame("outer").width, 200);
    EXPECT_EQ(bench.frame("inner"), (Rect{5, 5, 190, 20}));
    EXPECT_EQ(bench.frame("a").x, 170);
    EXPECT_EQ(bench.frame("narrow").width, 20);
}

TEST(StackBox, GivesHeightToAColumnWithASpacerInIt) {
    LayoutBench bench(column(4, {column(0, {block("a", 10, 10), spacer(), block("b", 10, 10)}).key("inner"),
                                 row(0, {spacer(), block("c", 10, 10)}).key("row")})
                          .height(100));
    EXPECT_EQ(bench.frame("inner").height, 86);
    EXPECT_EQ(bench.frame("b").y, 76);
    // A row doesn't grow for a spacer that lies in it.
    EXPECT_EQ(bench.frame("row"), (Rect{0, 90, 10, 10}));
}

TEST(StackBox, TellsAControlWhetherItIsBehindOneThatExpands) {
    const auto tree = [](bool hasSlider) {
        Node first = hasSlider ? Node{.element = Slider{}} : word("a", "a");
        return row(8, {std::move(first), word("b", "42%"), word("c", "c")}).width(300);
    };
    LayoutBench bench(tree(true));
    EXPECT_TRUE(bench.canvas.at("b").isBehindExpanding);
    EXPECT_FALSE(bench.canvas.at("c").isBehindExpanding);
    bench.show(tree(false));
    EXPECT_FALSE(bench.canvas.at("b").isBehindExpanding);
}

TEST(StackBox, TellsAPanelOfSeveralThatItIsBehindOneThatExpands) {
    LayoutBench bench(row(8, {row(0, {spacer()}), column(0, {word("b", "42%")}).key("panel")}).width(300));
    EXPECT_TRUE(bench.canvas.at("panel").isBehindExpanding);
    // It is the first of its own stack.
    EXPECT_FALSE(bench.canvas.at("b").isBehindExpanding);
}

TEST(StackBox, HasNoRoomForWhatIsGone) {
    LayoutBench bench(column(10, {block("a", 50, 20), block("b", 50, 20)}));
    bench.show(column(10, {block("b", 50, 20)}));
    EXPECT_EQ(bench.frame("b"), (Rect{0, 0, 50, 20}));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{50, 20}));
}

TEST(StackBox, WithNothingInItIsNothingButPadding) {
    LayoutBench bench(column(10, {}).padding(6));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{12, 12}));
    bench.show(row(10, {}).padding(6));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{12, 12}));
}

}  // namespace
}  // namespace vantrel::layout
