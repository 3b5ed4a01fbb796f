#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/ButtonItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

struct Presses {
    int count = 0;
    Node button(bool isEnabled = true) {
        return ui::button("Turn On", Button::Style::prominent)
            .enabled(isEnabled)
            .onPress([this] { ++count; })
            .key("on");
    }
};

TEST(ButtonItem, IsPressedByThePointer) {
    Presses presses;
    ViewBench bench(presses.button());
    ViewBench::click(bench.at("on"));
    EXPECT_EQ(presses.count, 1);
}

TEST(ButtonItem, IsNotPressedWhenThePointerLeavesItFirst) {
    Presses presses;
    ViewBench bench(presses.button());
    ViewBench::mouse(bench.at("on"), QEvent::MouseButtonPress, {5, 5});
    ViewBench::mouse(bench.at("on"), QEvent::MouseButtonRelease, {-50, 5});
    EXPECT_EQ(presses.count, 0);
}

TEST(ButtonItem, IsPressedBySpaceAndReturn) {
    Presses presses;
    ViewBench bench(presses.button());
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        ViewBench::press(bench.at("on"), key);
    EXPECT_EQ(presses.count, 3);
}

TEST(ButtonItem, DoesNothingWhileItIsDisabled) {
    Presses presses;
    ViewBench bench(presses.button(false));
    ViewBench::click(bench.at("on"));
    EXPECT_EQ(presses.count, 0);
}

TEST(ButtonItem, WithOnlyASymbolIsASquareWithHelp) {
    ViewBench bench(symbolButton("minus.circle", "Remove this input").key("remove"));
    EXPECT_EQ(bench.place("remove").width(), bench.place("remove").height());
    EXPECT_EQ(bench.at("remove").toolTip(), "Remove this input");
}

TEST(ButtonItem, KeepsItsTitleBesideATextThatIsTooLong) {
    ViewBench bench(row(8, {text("A monitor with a name that is far too long for it").key("name"), spacer(),
                            button("Turn On").key("on")})
                        .width(200));
    const int natural = ViewBench(button("Turn On").key("on")).place("on").width();
    EXPECT_EQ(bench.place("on").width(), natural);
    EXPECT_EQ(bench.place("on").right(), 199);
    EXPECT_EQ(bench.at("name").toolTip(), "A monitor with a name that is far too long for it");
}

}  // namespace
}  // namespace vantrel::qt
