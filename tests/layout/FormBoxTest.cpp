#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "ui/layout/FormBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;

Node form(std::vector<Node> children) {
    return Node{.element = Form{}, .children = std::move(children)}.width(460).key("form");
}

TEST(FormBox, ShowsItsSectionsBelowOneAnotherWithRoomAround) {
    LayoutBench bench(form({block("a", 100, 50), block("b", 100, 70)}));
    EXPECT_EQ(bench.frame("a"), (Rect{20, 20, 420, 50}));
    EXPECT_EQ(bench.frame("b"), (Rect{20, 88, 420, 70}));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{460, 178}));
    EXPECT_EQ(bench.canvas.at("form").content, (Rect{0, 0, 460, 178}));
}

TEST(FormBox, HasTheHeightOfItsSectionsWithinItsLimits) {
    LayoutBench bench(form({}).heightBetween(360, 720), 800);
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{460, 360}));
    bench.show(form({block("a", 100, 1000)}).heightBetween(360, 720));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{460, 720}));
    EXPECT_EQ(bench.canvas.at("form").content.height, 1040);
}

TEST(FormBox, WithNothingInItHasOnlyItsRoomAround) {
    LayoutBench bench(form({}));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{460, 40}));
}

TEST(FormBox, IsAsWideAsItsWidestSectionWhenNobodySaysHowWide) {
    Node free = form({block("a", 100, 50), block("b", 130, 50)});
    free.layout.width = 0;
    LayoutBench bench(std::move(free));
    EXPECT_EQ(bench.renderer.fittingSize().width, 170);
}

TEST(FormBox, DoesWithLessWhenTheViewHasLess) {
    LayoutBench bench(column(0, {form({block("a", 100, 500)}), block("below", 10, 30)}), 300);
    EXPECT_EQ(bench.frame("form"), (Rect{0, 0, 460, 270}));
    EXPECT_EQ(bench.frame("a").height, 500);
}

}  // namespace
}  // namespace vantrel::layout
