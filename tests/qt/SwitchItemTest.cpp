#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/SwitchItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node shown(bool isOn, std::function<void(bool)> toggle) {
    Switch element;
    element.isOn = isOn;
    return Node{.element = element}.named("Output").onToggle(std::move(toggle)).key("switch");
}

bool isOn(ViewBench& bench) {
    return QAccessible::queryAccessibleInterface(&bench.at("switch"))->state().checked;
}

TEST(SwitchItem, AsksForTheOtherStateAndWaitsForTheNode) {
    std::vector<bool> asked;
    ViewBench bench(shown(true, [&](bool wanted) { asked.push_back(wanted); }));
    ViewBench::click(bench.at("switch"));
    EXPECT_EQ(asked, std::vector{false});
    EXPECT_TRUE(isOn(bench));
    bench.show(shown(false, [&](bool wanted) { asked.push_back(wanted); }));
    EXPECT_FALSE(isOn(bench));
    EXPECT_EQ(asked, std::vector{false});
}

TEST(SwitchItem, IsToggledBySpace) {
    int asked = 0;
    ViewBench bench(shown(false, [&](bool wanted) { asked += wanted ? 1 : 0; }));
    ViewBench::press(bench.at("switch"), Qt::Key_Space);
    EXPECT_EQ(asked, 1);
}

TEST(SwitchItem, IsToggledThroughAssistiveTechnology) {
    int asked = 0;
    ViewBench bench(shown(false, [&](bool) { ++asked; }));
    auto* const spoken = QAccessible::queryAccessibleInterface(&bench.at("switch"));
    EXPECT_EQ(spoken->role(), QAccessible::CheckBox);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace vantrel::qt
