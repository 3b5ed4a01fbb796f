#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/VCPCodes.h"
#include "support/MonitorPlans.h"
#include "views/InputPicker.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

class InputPickerTest : public testing::Test {
  protected:
    InputPickerTest() {
        view.show([this] { return inputPicker(view.environment, view.display()); });
    }
    ui::Symbol symbolOf(std::uint16_t input) {
        view.display()->setCustomInputs({{input}});
        view.settle();
        return std::get<ui::Tile>(view.tree().children.at(0).element).symbol;
    }
    model::InputSettings& settings() { return view.display()->inputSettings(); }

    test::ViewRig view;
};

TEST_F(InputPickerTest, IsATileForEachVisibleInputInTheirOrder) {
    view.display()->setCustomInputs({{0x12, 0x0F, 0x11}});
    view.settle();
    EXPECT_EQ(
        view.outline(),
        "grid of 2\n"
        "  tile \"HDMI 2\" cable.connector.horizontal, key \"input 12\"\n"
        "  tile \"DisplayPort 1\" rectangle.connected.to.line.below selected, badge laptopcomputer \"The Mac "
        "is connected to this input\", described \"The Mac is connected to this input\", key \"input 0F\"\n"
        "  tile \"HDMI 1\" cable.connector.horizontal, key \"input 11\"\n");
}

TEST_F(InputPickerTest, HasSixPointsBetweenItsCells) {
    EXPECT_EQ(std::get<ui::Grid>(view.tree().element),
              (ui::Grid{.columns = 2, .columnSpacing = 6, .rowSpacing = 6}));
}

TEST_F(InputPickerTest, HasTilesWithRoundCorners) {
    const auto tile = std::get<ui::Tile>(view.named("HDMI 1").element);
    EXPECT_EQ(tile.padding, 6);
    EXPECT_EQ(tile.cornerRadius, 7);
}

TEST_F(InputPickerTest, LeavesHiddenInputsOut) {
    settings().setHidden({0x11});
    view.settle();
    EXPECT_THAT(view.tree().children, SizeIs(2));
}

TEST_F(InputPickerTest, IsEmptyWhenEveryInputIsHidden) {
    settings().setHidden({0x0F, 0x11, 0x12});
    view.settle();
    EXPECT_EQ(view.outline(), "grid of 2\n");
}

TEST_F(InputPickerTest, CallsAnInputByItsNickname) {
    settings().setAliases({{0x11, "Windows PC"}});
    view.settle();
    EXPECT_THAT(view.lines(), Contains("tile \"Windows PC\" cable.connector.horizontal, key \"input 11\""));
}

TEST_F(InputPickerTest, ShowsADisplayPortAsALineToAScreen) {
    EXPECT_EQ(symbolOf(0x0F), "rectangle.connected.to.line.below");
    EXPECT_EQ(symbolOf(0x10), "rectangle.connected.to.line.below");
}

TEST_F(InputPickerTest, ShowsHDMIAsAFlatPlug) {
    EXPECT_EQ(symbolOf(0x11), "cable.connector.horizontal");
    EXPECT_EQ(symbolOf(0x12), "cable.connector.horizontal");
    EXPECT_EQ(symbolOf(0x13), "cable.connector.horizontal");
    EXPECT_EQ(symbolOf(0x14), "cable.connector.horizontal");
}

TEST_F(InputPickerTest, ShowsUSBCAsAnArrow) {
    EXPECT_EQ(symbolOf(0x19), "arrow.right.circle");
    EXPECT_EQ(symbolOf(0x1B), "arrow.right.circle");
}

TEST_F(InputPickerTest, ShowsAnyOtherInputAsAPlug) {
    EXPECT_EQ(symbolOf(0x05), "cable.connector");
    EXPECT_EQ(symbolOf(0x0E), "cable.connector");
    EXPECT_EQ(symbolOf(0x15), "cable.connector");
    EXPECT_EQ(symbolOf(0x18), "cable.connector");
    EXPECT_EQ(symbolOf(0x1A), "cable.connector");
    EXPECT_EQ(symbolOf(0x0111), "cable.connector");
}

TEST_F(InputPickerTest, MarksTheInputOfTheComputerOnly) {
    settings().setMacInput(0x12);
    view.settle();
    EXPECT_EQ(std::get<ui::Tile>(view.named("DisplayPort 1").element).badge, "");
    EXPECT_EQ(std::get<ui::Tile>(view.named("HDMI 2").element).badge, "laptopcomputer");
}

TEST_F(InputPickerTest, MarksNoInputWhenThatOfTheComputerIsUnknown) {
    settings().setMacInput(std::nullopt);
    view.settle();
    EXPECT_THAT(view.outline(), testing::Not(HasSubstr("laptopcomputer")));
}

TEST_F(InputPickerTest, HighlightsTheCurrentInputOnly) {
    view.display()->feature(model::inputSource)->current.set(0x11);
    view.settle();
    EXPECT_TRUE(std::get<ui::Tile>(view.named("HDMI 1").element).isSelected);
    EXPECT_FALSE(std::get<ui::Tile>(view.named("DisplayPort 1").element).isSelected);
}

TEST_F(InputPickerTest, HighlightsNothingWhileTheInputIsUnknown) {
    view.display()->feature(model::inputSource)->current.set(std::nullopt);
    view.settle();
    EXPECT_THAT(view.outline(), testing::Not(HasSubstr("selected")));
}

TEST_F(InputPickerTest, LetsTheManagerSwitchToTheClickedInput) {
    settings().setMacInput(std::nullopt);
    view.press("HDMI 1");
    view.runFor(5s);
    EXPECT_EQ(view.rig.monitor(2).shownInput(), 0x11);
}

TEST_F(InputPickerTest, TurnsTheOutputOffForAnotherComputersInput) {
    view.press("HDMI 1");
    view.runFor(5s);
    EXPECT_EQ(view.rig.monitor(2).shownInput(), 0x11);
    EXPECT_THAT(view.manager().disabled(), SizeIs(1));
}

TEST_F(InputPickerTest, ReturnsToTheComputerWithTheComputersInput) {
    view.press("DisplayPort 1");
    EXPECT_TRUE(view.display()->isReturningToMac());
}

}  // namespace
}  // namespace vantrel::views
