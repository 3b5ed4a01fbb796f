#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/StackItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node box(std::string key, int width, int height) {
    return image("display").width(width).height(height).key(std::move(key));
}

TEST(StackItem, PutsAColumnsChildrenBelowOneAnotherAtTheLeadingEdge) {
    ViewBench bench(column(10, {box("a", 50, 20), box("b", 80, 30)}).padding(12).width(340));
    EXPECT_EQ(bench.place("a"), QRect(12, 12, 50, 20));
    EXPECT_EQ(bench.place("b"), QRect(12, 42, 80, 30));
    EXPECT_EQ(bench.view().fittingSize(), (Size{340, 84}));
}

TEST(StackItem, PutsARowsChildrenBesideOneAnotherInTheMiddle) {
    ViewBench bench(row(8, {box("a", 50, 20), box("b", 80, 30)}));
    EXPECT_EQ(bench.place("a"), QRect(0, 5, 50, 20));
    EXPECT_EQ(bench.place("b"), QRect(58, 0, 80, 30));
}

TEST(StackItem, PushesARowApartWithASpacer) {
    ViewBench bench(row(8, {box("a", 50, 20), spacer(), box("b", 80, 20)}).width(340));
    EXPECT_EQ(bench.place("b"), QRect(260, 0, 80, 20));
}

TEST(StackItem, HasDifferentPaddings) {
    ViewBench bench(column(0, {box("a", 50, 20)}).padding(7, 3));
    EXPECT_EQ(bench.place("a"), QRect(7, 3, 50, 20));
    EXPECT_EQ(bench.view().fittingSize(), (Size{64, 26}));
}

TEST(StackItem, GivesAChildThatFillsTheWidthAllOfIt) {
    ViewBench bench(column(0, {column(0, {}).height(20).fillWidth().key("a")}).padding(12).width(340));
    EXPECT_EQ(bench.place("a"), QRect(12, 12, 316, 20));
}

TEST(StackItem, CentersAcrossAColumn) {
    Node centered{.element = Stack{.alignment = Alignment::center}, .children = {box("a", 40, 20)}};
    ViewBench bench(column(0, {std::move(centered).fillWidth()}).width(340));
    EXPECT_EQ(bench.place("a").x(), 150);
}

TEST(StackItem, CutsTheLongestTextOfARowAndKeepsTheButton) {
    ViewBench bench(row(8, {text("A monitor with a name that is far too long for it").key("name"), spacer(),
                            button("Turn On").key("on")})
                        .width(200));
    const int natural = ViewBench(button("Turn On").key("on")).place("on").width();
    EXPECT_EQ(bench.place("on").width(), natural);
    EXPECT_EQ(bench.place("on").right(), 199);
    EXPECT_EQ(bench.at("name").toolTip(), "A monitor with a name that is far too long for it");
}

TEST(StackItem, HasNoRoomForWhatIsGone) {
    ViewBench bench(column(10, {box("a", 50, 20), box("b", 50, 20)}));
    bench.show(column(10, {box("b", 50, 20)}));
    EXPECT_EQ(bench.place("b"), QRect(0, 0, 50, 20));
    EXPECT_EQ(bench.window().findChild<QWidget*>("a"), nullptr);
}

}  // namespace
}  // namespace vantrel::qt
