#include <QScrollArea>
#include <QScrollBar>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/SampleTrees.h"
#include "qt/ViewBench.h"
#include "ui/qt/ScrollItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node tall(int height, int limit) {
    return column(0, {Node{.element = Scroll{.maximumHeight = limit},
                           .children = {column(0, {image("display").width(20).height(height).key("content"),
                                                   button("Last").key("last")})}}
                          .key("scroll")})
        .width(200)
        .key("root");
}

QScrollBar& barOf(ViewBench& bench) {
    return *dynamic_cast<QScrollArea&>(bench.at("scroll")).verticalScrollBar();
}

TEST(ScrollItem, HasNothingToScrollWhileItsContentsFit) {
    ViewBench bench(tall(100, 500));
    EXPECT_EQ(barOf(bench).maximum(), 0);
}

TEST(ScrollItem, ScrollsWhatIsHigherThanItsLimit) {
    ViewBench bench(tall(900, 300));
    EXPECT_EQ(bench.place("scroll").height(), 300);
    EXPECT_EQ(barOf(bench).maximum(), 600 + bench.place("last").height());
    ViewBench::wheel(*dynamic_cast<QScrollArea&>(bench.at("scroll")).viewport(), -120);
    EXPECT_GT(barOf(bench).value(), 0);
}

TEST(ScrollItem, BringsWhatGetsTheKeyboardIntoSight) {
    ViewBench bench(tall(900, 300));
    bench.view().widget().setFocus();
    ViewBench::press(bench.view().widget(), Qt::Key_Tab);
    EXPECT_TRUE(bench.at("last").hasFocus());
    EXPECT_EQ(barOf(bench).value(), barOf(bench).maximum());
}

TEST(ScrollItem, KeepsItsPlaceWhenItsContentsChange) {
    ViewBench bench(tall(900, 300));
    barOf(bench).setValue(200);
    bench.show(tall(950, 300));
    EXPECT_EQ(barOf(bench).value(), 200);
}

TEST(ScrollItem, ScrollsAFormAsWell) {
    Node form = sampleForm();
    form.layout.maximumHeight = 400;
    ViewBench bench(std::move(form), {460, 800});
    EXPECT_EQ(bench.place("form").height(), 400);
    EXPECT_GT(dynamic_cast<QScrollArea&>(bench.at("form")).verticalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace vantrel::qt
