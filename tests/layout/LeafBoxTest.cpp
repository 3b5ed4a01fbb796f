#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "ui/layout/LeafBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;

TEST(LeafBox, IsAsLargeAsItsControlSays) {
    LayoutBench bench(column(0, {word("a", "seven")}));
    EXPECT_EQ(bench.frame("a"), (Rect{0, 0, 50, 20}));
}

TEST(LeafBox, IsAsHighAsItsControlIsWithTheWidthThatThereIs) {
    LayoutBench bench(column(0, {wrappedText("12 letters..").padding(5).key("a")}).width(60));
    EXPECT_EQ(bench.frame("a"), (Rect{5, 5, 50, 60}));
}

TEST(LeafBox, ExpandsWithItsControl) {
    LayoutBench bench(column(0, {Node{.element = Slider{}}.key("slider"), word("a", "a")}).width(300));
    EXPECT_EQ(bench.frame("slider"), (Rect{0, 0, 300, 16}));
    EXPECT_EQ(bench.frame("a").width, 10);
}

TEST(LeafBox, OfASpacerTakesTheWidthThatIsLeftOver) {
    LayoutBench bench(row(0, {word("a", "a"), spacer().key("spacer"), word("b", "b")}).width(300));
    EXPECT_EQ(bench.frame("spacer").width, 280);
    EXPECT_EQ(bench.frame("b").x, 290);
}

TEST(LeafBox, OfASpacerTakesTheHeightThatIsLeftOver) {
    LayoutBench bench(column(0, {word("a", "a"), spacer(), word("b", "b")}).height(300));
    EXPECT_EQ(bench.frame("b"), (Rect{0, 280, 10, 20}));
}

}  // namespace
}  // namespace vantrel::layout
