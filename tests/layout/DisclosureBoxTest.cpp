#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "ui/layout/DisclosureBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;

Node disclosure(std::vector<Node> children) {
    return Node{.element = Disclosure{.title = "More", .isOpen = !children.empty()},
                .children = std::move(children)}
        .key("more");
}

TEST(DisclosureBox, IsItsTitleWhileItIsClosed) {
    LayoutBench bench(column(0, {disclosure({})}).width(300));
    EXPECT_EQ(bench.frame("more"), (Rect{0, 0, 300, 24}));
    EXPECT_EQ(bench.canvas.at("more").title, (Rect{0, 0, 300, 24}));
}

TEST(DisclosureBox, ShowsItsChildrenBelowItsTitle) {
    LayoutBench bench(column(0, {disclosure({})}).width(300));
    bench.show(column(0, {disclosure({word("a", "four"), Node{.element = Slider{}}.key("b")})}).width(300));
    EXPECT_EQ(bench.canvas.at("more").title, (Rect{0, 0, 300, 24}));
    EXPECT_EQ(bench.frame("a"), (Rect{0, 30, 40, 20}));
    EXPECT_EQ(bench.frame("b"), (Rect{0, 56, 300, 16}));
    EXPECT_EQ(bench.frame("more").height, 72);
}

TEST(DisclosureBox, IsAsWideAsItsTitleOrItsWidestChild) {
    LayoutBench bench(disclosure({}));
    EXPECT_EQ(bench.renderer.fittingSize().width, 40);
    bench.show(disclosure({word("a", "a longer text")}));
    EXPECT_EQ(bench.renderer.fittingSize().width, 130);
}

TEST(DisclosureBox, HasItsPaddingAroundAll) {
    LayoutBench bench(column(0, {disclosure({word("a", "a")}).padding(7, 3)}).width(300));
    EXPECT_EQ(bench.frame("more"), (Rect{0, 0, 300, 56}));
    EXPECT_EQ(bench.canvas.at("more").title, (Rect{7, 3, 286, 24}));
    EXPECT_EQ(bench.frame("a"), (Rect{7, 33, 10, 20}));
}

TEST(DisclosureBox, WrapsWhatIsInItToItsWidth) {
    LayoutBench bench(column(0, {disclosure({wrappedText("12 letters..").key("a")})}).width(60));
    EXPECT_EQ(bench.frame("a"), (Rect{0, 30, 60, 40}));
}

}  // namespace
}  // namespace vantrel::layout
