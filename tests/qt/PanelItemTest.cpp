#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/Pictures.h"
#include "qt/ViewBench.h"
#include "ui/qt/Look.h"
#include "ui/qt/PanelItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

// In the middle of a square of nothing but this.
QColor shown(Element element) {
    ViewBench bench(Node{.element = std::move(element)}.width(40).height(40).key("panel"));
    return pictureOf(bench.at("panel")).pixelColor(20, 20);
}

TEST(PanelItem, PaintsTheBackgroundThatTheNodeSays) {
    const Look& look = Look::current();
    EXPECT_EQ(shown(Stack{.background = Background::card}), look.card);
    EXPECT_EQ(shown(Stack{.background = Background::warning}).alpha(), look.warningBackground.alpha());
}

TEST(PanelItem, PaintsNothingWhereTheNodeSaysNothing) {
    EXPECT_EQ(shown(Stack{}).alpha(), 0);
    EXPECT_EQ(shown(Grid{}).alpha(), 0);
}

TEST(PanelItem, IsAGroupToAssistiveTechnology) {
    ViewBench bench(column(0, {Node{.element = Grid{}}.key("grid")}).key("stack"));
    for (const std::string key : {"stack", "grid"}) {
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&bench.at(key))->role(), QAccessible::Grouping);
    }
}

}  // namespace
}  // namespace vantrel::qt
