#include <QComboBox>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/PickerItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node shown(
    std::optional<std::size_t> selected, std::function<void(std::size_t)> choose = [](std::size_t) {},
    std::vector<std::string> options = {"Automatic", "DDC & more", "Software"}) {
    Picker picker;
    picker.title = "Control mode";
    picker.options = std::move(options);
    picker.selected = selected;
    return column(0, {Node{.element = picker}.named("Control mode").onChoose(std::move(choose)).key("mode")})
        .width(300);
}

QComboBox& boxOf(ViewBench& bench) { return dynamic_cast<QComboBox&>(bench.control("mode")); }

TEST(PickerItem, ShowsWhatTheNodeHasChosen) {
    int chosen = 0;
    const auto count = [&](std::size_t) { ++chosen; };
    ViewBench bench(shown(1, count));
    EXPECT_EQ(boxOf(bench).currentText(), "DDC & more");
    bench.show(shown(2, count));
    EXPECT_EQ(boxOf(bench).currentIndex(), 2);
    bench.show(shown({}, count));
    EXPECT_EQ(boxOf(bench).currentIndex(), -1);
    bench.show(shown(0, count, {"Only"}));
    EXPECT_EQ(boxOf(bench).count(), 1);
    EXPECT_EQ(chosen, 0);
}

TEST(PickerItem, TellsWhatIsChosenWithTheKeyboardAndWaitsForTheNode) {
    std::vector<std::size_t> chosen;
    ViewBench bench(shown(1, [&](std::size_t option) { chosen.push_back(option); }));
    ViewBench::press(boxOf(bench), Qt::Key_Down);
    EXPECT_THAT(chosen, testing::ElementsAre(2));
    EXPECT_EQ(boxOf(bench).currentIndex(), 1);
}

TEST(PickerItem, IsNotChangedByScrollingPastIt) {
    std::vector<std::size_t> chosen;
    ViewBench bench(shown(1, [&](std::size_t option) { chosen.push_back(option); }));
    ViewBench::wheel(boxOf(bench), -120);
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(boxOf(bench).currentIndex(), 1);
}

TEST(PickerItem, KeepsTheEscapeThatHasClosedItsList) {
    ViewBench bench(shown(1));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    boxOf(bench).showPopup();
    boxOf(bench).hidePopup();
    escape.ignore();
    QApplication::sendEvent(&boxOf(bench), &escape);
    EXPECT_TRUE(escape.isAccepted());
    bench.settle();
    escape.ignore();
    QApplication::sendEvent(&boxOf(bench), &escape);
    EXPECT_FALSE(escape.isAccepted());
}

TEST(PickerItem, PutsItsBoxAtTheEndOfTheRow) {
    ViewBench bench(shown(1));
    EXPECT_EQ(boxOf(bench).geometry().right(), 299);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&boxOf(bench))->text(QAccessible::Name), "Control mode");
}

}  // namespace
}  // namespace vantrel::qt
