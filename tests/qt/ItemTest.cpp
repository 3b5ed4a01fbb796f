#include <QMenu>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/Item.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node card(std::vector<std::string> items, std::function<void(std::size_t)> choose) {
    return column(0, {column(10, {text("Arcora"), button("Turn On").key("on")})
                          .withContextMenu(std::move(items), std::move(choose))
                          .key("card")});
}

void askForMenu(QWidget& widget, QContextMenuEvent::Reason reason) {
    const QPoint middle = widget.rect().center();
    QContextMenuEvent event(reason, middle, widget.mapToGlobal(middle));
    QApplication::sendEvent(&widget, &event);
}

TEST(Item, OpensItsContextMenuAnywhereInIt) {
    std::vector<std::size_t> chosen;
    ViewBench bench(
        card({"Rename", "Forget This Monitor"}, [&](std::size_t item) { chosen.push_back(item); }));
    askForMenu(bench.at("on"), QContextMenuEvent::Mouse);
    auto* const menu = bench.at("card").findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->isVisible());
    menu->actions()[1]->trigger();
    EXPECT_THAT(chosen, testing::ElementsAre(1));
}

TEST(Item, OpensItsContextMenuForTheKeyboardToo) {
    ViewBench bench(card({"Forget This Monitor"}, [](std::size_t) {}));
    bench.at("on").setFocus();
    askForMenu(bench.at("on"), QContextMenuEvent::Keyboard);
    EXPECT_NE(bench.at("card").findChild<QMenu*>(), nullptr);
}

TEST(Item, HasNoContextMenuWithoutItems) {
    ViewBench bench(card({}, [](std::size_t) {}));
    askForMenu(bench.at("card"), QContextMenuEvent::Mouse);
    EXPECT_EQ(bench.at("card").findChild<QMenu*>(), nullptr);
}

TEST(Item, EnablesAndDisablesWhatTheNodeSays) {
    ViewBench bench(column(0, {button("Try Again").enabled(false).key("again")}));
    EXPECT_FALSE(bench.at("again").isEnabled());
    bench.show(column(0, {button("Try Again").key("again")}));
    EXPECT_TRUE(bench.at("again").isEnabled());
}

}  // namespace
}  // namespace vantrel::qt
