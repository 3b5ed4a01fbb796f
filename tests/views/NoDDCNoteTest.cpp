#include <gtest/gtest.h>

#include "views/NoDDCNote.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using model::ControlMode;
using LoadState = model::ExternalDisplay::LoadState;

// In a column, because what it is depends on the control mode.
ui::Node framed(const test::ViewRig& view) {
    return {.element = ui::Stack{}, .children = {noDDCNote(view.environment, view.display())}};
}

const std::string reason =
    "column\n"
    "  text \"This connection does not pass DDC/CI through, so the Mac applies brightness and contrast to "
    "the "
    "picture. Switching inputs needs DDC (for example, a direct USB-C → DisplayPort cable).\" secondary\n";
const std::string advice =
    "column\n"
    "  column\n"
    "    text \"The monitor did not answer DDC/CI on this connection. Use Software mode or a USB-C → "
    "DisplayPort "
    "cable.\" secondary\n";

TEST(NoDDCNote, SaysWhoDimsThePictureInstead) {
    test::ViewRig view(test::deskWith(test::deafAlder()));
    view.show([&] { return framed(view); });
    EXPECT_EQ(view.outline(), reason);
    view.display()->setControlMode(ControlMode::software);
    view.settle();
    EXPECT_EQ(view.outline(), reason);
}

TEST(NoDDCNote, IsSmallAndWraps) {
    test::ViewRig view(test::deskWith(test::deafAlder()));
    const auto text = std::get<ui::Text>(noDDCNote(view.environment, view.display()).element);
    EXPECT_TRUE(text.wraps);
    EXPECT_EQ(text.font, ui::Font::caption);
}

TEST(NoDDCNote, OffersAnotherTryWhereDDCIsAskedFor) {
    test::ViewRig view(test::deskWith(test::deafAlder()));
    view.display()->setControlMode(ControlMode::ddc);
    view.show([&] { return framed(view); });
    EXPECT_EQ(view.outline(), advice + "    button \"Try Again\"\n");
}

TEST(NoDDCNote, TriesAgainFromTheBeginning) {
    test::ViewRig view(test::deskWith(test::deadAlder()));
    view.runFor(std::chrono::minutes(1));
    ASSERT_EQ(view.display()->loadState(), LoadState::unavailable);
    view.display()->setControlMode(ControlMode::ddc);
    view.show([&] { return framed(view); });
    view.rig.monitor(2).becomeHealthy();
    view.press("Try Again");
    EXPECT_EQ(view.display()->loadState(), LoadState::loading);
    view.runFor(std::chrono::minutes(1));
    EXPECT_EQ(view.display()->loadState(), LoadState::ready);
}

TEST(NoDDCNote, OffersNoSecondTryWhileOneIsUnderWay) {
    test::ViewRig view(test::deskWith(test::deadAlder()));
    view.runFor(std::chrono::minutes(1));
    view.display()->setControlMode(ControlMode::ddc);
    view.show([&] { return framed(view); });
    view.press("Try Again");
    EXPECT_EQ(view.outline(), advice + "    button \"Try Again\", disabled\n");
    view.runFor(std::chrono::minutes(1));
    EXPECT_EQ(view.outline(), advice + "    button \"Try Again\"\n");
}

}  // namespace
}  // namespace vantrel::views
