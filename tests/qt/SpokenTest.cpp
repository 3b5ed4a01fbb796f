#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/SampleTrees.h"
#include "qt/ViewBench.h"
#include "ui/qt/PaintedButton.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

using namespace ui;

// Everything that the keyboard reaches, as assistive technology sees it.
void walk(QAccessibleInterface& at, const std::function<void(QAccessibleInterface&)>& visit) {
    visit(at);
    for (int i = 0; i < at.childCount(); ++i) {
        if (at.child(i) != nullptr) walk(*at.child(i), visit);
    }
}

TEST(Spoken, GivesEverythingThatCanBeOperatedANameAndARole) {
    ViewBench bench(column(0, {samplePopover(), sampleForm()}), {500, 3000});
    int operable = 0;
    walk(*QAccessible::queryAccessibleInterface(&bench.view().widget()), [&](QAccessibleInterface& found) {
        if (dynamic_cast<PaintedButton*>(found.object()) == nullptr) return;
        ++operable;
        EXPECT_FALSE(found.text(QAccessible::Name).isEmpty());
        EXPECT_NE(found.role(), QAccessible::Client);
        EXPECT_TRUE(found.state().focusable || found.state().disabled);
    });
    EXPECT_GT(operable, 20);
}

TEST(Spoken, SaysNameValueAndDescriptionOfTheNode) {
    ViewBench bench(column(0, {text("42").named("Brightness").key("text"),
                               button("Run").described("Resets the monitor").key("run")}));
    auto* const label = QAccessible::queryAccessibleInterface(&bench.at("text"));
    EXPECT_EQ(label->role(), QAccessible::StaticText);
    EXPECT_EQ(label->text(QAccessible::Name), "Brightness");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bench.at("run"))->text(QAccessible::Description),
              "Resets the monitor");
}

TEST(Spoken, SaysATextThatHasNoOtherName) {
    ViewBench bench(column(0, {text("Mac output off").key("text")}));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bench.at("text"))->text(QAccessible::Name),
              "Mac output off");
}

TEST(Spoken, PressesAButton) {
    int presses = 0;
    ViewBench bench(column(0, {button("Run").onPress([&] { ++presses; }).key("run")}));
    auto* const spoken = QAccessible::queryAccessibleInterface(&bench.at("run"));
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses, 1);
}

}  // namespace
}  // namespace vantrel::qt
