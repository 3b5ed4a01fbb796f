#include <QMenu>
#include <QWidgetAction>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/SymbolPickerItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node shown(std::size_t selected, std::function<void(std::size_t)> choose) {
    Picker picker;
    picker.title = "Control mode";
    picker.symbol = "dial.medium";
    picker.options = {"Automatic", "DDC", "Software"};
    picker.selected = selected;
    picker.note = "Uses DDC when the monitor answers.";
    return column(
        0, {Node{.element = picker}.named("Control mode: DDC").onChoose(std::move(choose)).key("mode")});
}

QMenu* menuOf(ViewBench& bench) { return bench.at("mode").findChild<QMenu*>(); }

TEST(SymbolPickerItem, OpensAMenuOfOptionsWithTheNoteBelow) {
    ViewBench bench(shown(1, [](std::size_t) {}));
    ViewBench::press(bench.at("mode"), Qt::Key_Down);
    const QMenu* const menu = menuOf(bench);
    ASSERT_NE(menu, nullptr);
    const auto actions = menu->actions();
    ASSERT_EQ(actions.size(), 5);
    EXPECT_TRUE(actions[1]->isChecked());
    EXPECT_TRUE(actions[3]->isSeparator());
    EXPECT_EQ(actions[4]->text(), "Uses DDC when the monitor answers.");
    EXPECT_FALSE(actions[4]->isEnabled());
}

TEST(SymbolPickerItem, TellsAChoiceThatIsAnotherOne) {
    std::vector<std::size_t> chosen;
    ViewBench bench(shown(1, [&](std::size_t option) { chosen.push_back(option); }));
    ViewBench::click(bench.at("mode"));
    menuOf(bench)->actions()[1]->trigger();
    menuOf(bench)->actions()[2]->trigger();
    EXPECT_THAT(chosen, testing::ElementsAre(2));
}

TEST(SymbolPickerItem, TakesItsOpenMenuWithIt) {
    ViewBench bench(shown(1, [](std::size_t) {}));
    ViewBench::click(bench.at("mode"));
    const QPointer<QMenu> menu = menuOf(bench);
    bench.show(column(0, {}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(menu.isNull());
}

TEST(SymbolPickerItem, SpeaksTheChosenOption) {
    ViewBench bench(shown(1, [](std::size_t) {}));
    auto* const spoken = QAccessible::queryAccessibleInterface(&bench.at("mode"));
    EXPECT_EQ(spoken->text(QAccessible::Name), "Control mode: DDC");
    EXPECT_EQ(spoken->text(QAccessible::Value), "DDC");
    EXPECT_TRUE(spoken->state().hasPopup);
}

}  // namespace
}  // namespace vantrel::qt
