#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

#include "layout/LayoutBench.h"
#include "support/DeathTest.h"
#include "ui/layout/BoxRenderer.h"

namespace vantrel::layout {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::IsEmpty;

// Laying out

TEST(BoxRenderer, ShowsTheTopmostNodeInItsNaturalSize) {
    LayoutBench bench(column(0, {block("a", 50, 20)}).key("root"));
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{50, 20}));
    EXPECT_EQ(bench.frame("root"), (Rect{0, 0, 50, 20}));
}

TEST(BoxRenderer, ShowsTheTopmostNodeLowerWhenTheCanvasIs) {
    LayoutBench bench(column(0, {block("a", 50, 200)}).key("root"), 120);
    EXPECT_EQ(bench.renderer.fittingSize(), (PixelSize{50, 200}));
    EXPECT_EQ(bench.frame("root").height, 120);
    bench.canvas.available = 180;
    bench.renderer.layOut();
    EXPECT_EQ(bench.frame("root").height, 180);
}

TEST(BoxRenderer, WantsNoRoomForNothing) {
    test::FakeCanvas canvas;
    BoxRenderer renderer(canvas);
    EXPECT_EQ(renderer.fittingSize(), PixelSize{});
    EXPECT_EQ(renderer.root(), nullptr);
    renderer.layOut();
    renderer.refresh();
    EXPECT_THAT(canvas.controls, IsEmpty());
}

TEST(BoxRenderer, LaysOutBeforeItTellsThatItHasFinished) {
    LayoutBench bench(column(0, {block("a", 50, 20)}));
    int width = 0;
    bench.renderer.onFinish([&] { width = bench.frame("a").width; });
    bench.show(column(0, {block("a", 70, 20)}));
    EXPECT_EQ(width, 70);
}

TEST(BoxRenderer, ShowsEverythingAgainWhenTheLookHasChanged) {
    LayoutBench bench(column(0, {column(0, {block("a", 50, 20)}).key("inner")}));
    const int before = bench.canvas.at("a").applied;
    bench.canvas.scale = 2;
    bench.renderer.refresh();
    EXPECT_EQ(bench.canvas.at("a").applied, before + 1);
    EXPECT_EQ(bench.frame("a"), (Rect{0, 0, 100, 40}));
    EXPECT_EQ(bench.frame("inner"), (Rect{0, 0, 100, 40}));
}

TEST(BoxRenderer, KnowsWhatIsShown) {
    test::FakeCanvas canvas;
    BoxRenderer renderer(canvas);
    renderer.insert(noElement, 0, 1, column(0, {}));
    renderer.insert(1, 0, 2, column(0, {}));
    renderer.insert(2, 0, 3, block("a", 50, 20));
    renderer.finish();
    ASSERT_NE(renderer.item(3), nullptr);
    EXPECT_EQ(renderer.item(3)->frame(), (Rect{0, 0, 50, 20}));
    EXPECT_EQ(renderer.root(), renderer.item(1));
    renderer.remove(2);
    EXPECT_EQ(renderer.item(3), nullptr);
    renderer.remove(1);
    EXPECT_EQ(renderer.root(), nullptr);
    EXPECT_THAT(canvas.controls, IsEmpty());
}

// The order of the controls

TEST(BoxRenderer, TellsTheOrderOnlyWhenItIsAnotherOne) {
    const auto tree = [](int spacing, std::vector<std::string> keys) {
        std::vector<Node> nodes;
        for (const auto& key : keys) nodes.push_back(block(key, 10, 10));
        return column(spacing, std::move(nodes)).key("root");
    };
    LayoutBench bench(tree(0, {"a", "b"}));
    EXPECT_THAT(bench.canvas.ordered, ElementsAre("root", "a", "b"));
    const int before = bench.canvas.orders;
    bench.show(tree(8, {"a", "b"}));
    EXPECT_EQ(bench.canvas.orders, before);
    bench.show(tree(8, {"b", "a"}));
    EXPECT_EQ(bench.canvas.orders, before + 1);
    EXPECT_THAT(bench.canvas.ordered, ElementsAre("root", "b", "a"));
    bench.show(tree(8, {"a"}));
    EXPECT_EQ(bench.canvas.orders, before + 2);
}

// Events

TEST(BoxRenderer, SendsNothingThatComesOfTellingTheControls) {
    test::FakeCanvas canvas;
    canvas.eagerEvents = true;
    BoxRenderer renderer(canvas);
    std::vector<ElementID> pressed;
    renderer.onEvent([&](ElementID element, const Event&) { pressed.push_back(element); });
    renderer.insert(noElement, 0, 1, text("a").key("a"));
    renderer.update(1, text("b").key("a"));
    renderer.finish();
    renderer.refresh();
    EXPECT_THAT(pressed, IsEmpty());
    canvas.at("a").onApply();
    EXPECT_THAT(pressed, ElementsAre(1));
}

// Sizes

class BoxRendererSizes : public testing::Test {
  protected:
    Node reporting(Node node) {
        return std::move(node).onResize([this](Size size) { sizes.push_back(size); });
    }

    std::vector<Size> sizes;
};

TEST_F(BoxRendererSizes, ReportsTheSizeThatTheWholeWouldLikeToHaveOncePerChange) {
    const auto tree = [&](int height) { return reporting(column(0, {block("a", 20, height)}).width(340)); };
    LayoutBench bench(tree(100), 50);
    bench.show(tree(100));
    bench.show(tree(160));
    EXPECT_THAT(sizes, ElementsAre(Size{340, 100}, Size{340, 160}));
}

TEST_F(BoxRendererSizes, ReportsTheSizeThatANodeInItHas) {
    const auto tree = [&](int height) {
        return column(0, {reporting(column(0, {block("a", 20, 100)}).fillWidth()), block("b", 20, height)})
            .width(340);
    };
    LayoutBench bench(tree(10));
    bench.show(tree(20));
    EXPECT_THAT(sizes, ElementsAre(Size{340, 100}));
}

TEST_F(BoxRendererSizes, ReportsASizeAgainThatItHasHadInBetween) {
    const auto tree = [&](int height) { return reporting(column(0, {block("a", 20, height)})); };
    LayoutBench bench(tree(10));
    bench.show(tree(20));
    bench.show(tree(10));
    EXPECT_THAT(sizes, ElementsAre(Size{20, 10}, Size{20, 20}, Size{20, 10}));
}

TEST_F(BoxRendererSizes, ReportsInPoints) {
    LayoutBench bench(reporting(column(0, {block("a", 20, 10)})));
    bench.canvas.scale = 2;
    bench.renderer.refresh();
    bench.settle();
    bench.show(reporting(column(0, {block("a", 30, 10)})));
    EXPECT_THAT(sizes, ElementsAre(Size{20, 10}, Size{20, 10}, Size{30, 10}));
}

TEST_F(BoxRendererSizes, ReportsNothingBeforeTheTreeIsShown) {
    test::FakeCanvas canvas;
    BoxRenderer renderer(canvas);
    int events = 0;
    renderer.insert(noElement, 0, 1, reporting(column(0, {})));
    renderer.finish();
    renderer.onEvent([&](ElementID, const Event&) { ++events; });
    EXPECT_EQ(events, 0);
    canvas.runLater();
    EXPECT_EQ(events, 1);
}

TEST_F(BoxRendererSizes, ReportsNothingOfANodeThatIsGoneByThen) {
    test::FakeCanvas canvas;
    BoxRenderer renderer(canvas);
    int events = 0;
    renderer.onEvent([&](ElementID, const Event&) { ++events; });
    renderer.insert(noElement, 0, 1, reporting(column(0, {})));
    renderer.finish();
    renderer.remove(1);
    canvas.runLater();
    EXPECT_EQ(events, 0);
}

TEST_F(BoxRendererSizes, ReportsNothingWhenItIsGoneItself) {
    test::FakeCanvas canvas;
    int events = 0;
    {
        BoxRenderer renderer(canvas);
        renderer.onEvent([&](ElementID, const Event&) { ++events; });
        renderer.insert(noElement, 0, 1, reporting(column(0, {})));
        renderer.finish();
    }
    ASSERT_EQ(canvas.waiting.size(), 1);
    canvas.runLater();
    EXPECT_EQ(events, 0);
}

class BoxRendererDeathTest : public test::DeathTest {};

TEST_F(BoxRendererDeathTest, ShowsOneTreeOnly) {
    test::FakeCanvas canvas;
    BoxRenderer renderer(canvas);
    renderer.insert(noElement, 0, 1, column(0, {}));
    EXPECT_DEATH(renderer.insert(noElement, 0, 2, column(0, {})), "a second topmost node");
}

}  // namespace
}  // namespace vantrel::layout
