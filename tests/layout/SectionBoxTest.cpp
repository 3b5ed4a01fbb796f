#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/LayoutBench.h"
#include "ui/layout/SectionBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::IsEmpty;

Node section(std::string title, std::vector<Node> rows) {
    return Node{.element = Section{.title = std::move(title)}, .children = std::move(rows)}.key("section");
}

Node slider(std::string key) { return Node{.element = Slider{}}.key(std::move(key)); }

TEST(SectionBox, PutsItsPanelBelowItsTitle) {
    LayoutBench bench(column(0, {section("General", {slider("a")})}).width(400));
    EXPECT_EQ(bench.canvas.at("section").title, (Rect{0, 0, 400, 16}));
    EXPECT_EQ(bench.canvas.at("section").panel, (Rect{0, 23, 400, 40}));
    EXPECT_EQ(bench.frame("section"), (Rect{0, 0, 400, 63}));
}

TEST(SectionBox, HasNoRoomForATitleThatItDoesNotHave) {
    LayoutBench bench(column(0, {section("", {slider("a")})}).width(400));
    EXPECT_EQ(bench.canvas.at("section").title, (Rect{0, 0, 400, 0}));
    EXPECT_EQ(bench.canvas.at("section").panel, (Rect{0, 0, 400, 40}));
}

TEST(SectionBox, GivesEachRowItsLineAndAControlThatExpandsAllOfIt) {
    LayoutBench bench(column(0, {section("General", {slider("a"), word("b", "Run")})}).width(400));
    EXPECT_EQ(bench.frame("a"), (Rect{12, 23 + 12, 376, 16}));
    EXPECT_EQ(bench.frame("b"), (Rect{12, 63 + 10, 30, 20}));
}

TEST(SectionBox, DrawsLinesOnlyBetweenItsRows) {
    LayoutBench bench(column(0, {section("General", {word("a", "a"), block("b", 20, 50), word("c", "c")})}));
    EXPECT_THAT(bench.canvas.at("section").lines, ElementsAre(63, 63 + 66));
    bench.show(column(0, {section("General", {word("a", "a")})}));
    EXPECT_THAT(bench.canvas.at("section").lines, IsEmpty());
}

TEST(SectionBox, MakesARowHigherForWhatIsHigh) {
    LayoutBench bench(column(0, {section("", {wrappedText("twenty letters in all").key("a")})}).width(94));
    // Seven letters in a line.
    EXPECT_EQ(bench.frame("a"), (Rect{12, 8, 70, 60}));
    EXPECT_EQ(bench.frame("section").height, 76);
}

TEST(SectionBox, CutsARowThatIsWiderThanItsPanel) {
    LayoutBench bench(column(0, {section("", {word("a", "a text that is long")})}).width(94));
    EXPECT_EQ(bench.frame("a").width, 70);
}

TEST(SectionBox, IsAsWideAsItsWidestRowWhenNobodySaysHowWide) {
    LayoutBench bench(
        section("A title that is longer than each of the rows", {word("a", "a"), word("b", "bbb")}));
    EXPECT_EQ(bench.renderer.fittingSize().width, 30 + 24);
}

TEST(SectionBox, HasItsPaddingAroundTitleAndPanel) {
    LayoutBench bench(column(0, {section("General", {slider("a")}).padding(5, 3)}).width(400));
    EXPECT_EQ(bench.frame("section"), (Rect{0, 0, 400, 69}));
    EXPECT_EQ(bench.canvas.at("section").title, (Rect{5, 3, 390, 16}));
    EXPECT_EQ(bench.canvas.at("section").panel, (Rect{5, 26, 390, 40}));
    EXPECT_EQ(bench.frame("a"), (Rect{17, 38, 366, 16}));
}

}  // namespace
}  // namespace vantrel::layout
