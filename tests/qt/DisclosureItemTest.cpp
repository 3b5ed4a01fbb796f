#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/DisclosureItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node shown(
    bool isOpen, std::function<void(bool)> toggle = [](bool) {}) {
    Node node{.element = Disclosure{.title = "More", .isOpen = isOpen}};
    if (isOpen) node.children.push_back(text("Inside").key("inside"));
    return column(0, {std::move(node).named("More").onToggle(std::move(toggle)).key("more")}).width(300);
}

TEST(DisclosureItem, AsksToBeOpenedByPointerAndKeyboard) {
    std::vector<bool> asked;
    ViewBench bench(shown(false, [&](bool wanted) { asked.push_back(wanted); }));
    ViewBench::click(bench.control("more"));
    ViewBench::press(bench.control("more"), Qt::Key_Space);
    EXPECT_EQ(asked, (std::vector{true, true}));
}

TEST(DisclosureItem, ShowsItsChildrenBelowItsTitle) {
    ViewBench bench(shown(false));
    const int closed = bench.place("more").height();
    bench.show(shown(true));
    EXPECT_GE(bench.place("inside").top(), closed);
    EXPECT_GT(bench.place("more").height(), closed);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&bench.control("more"))->state().expanded);
}

}  // namespace
}  // namespace vantrel::qt
