#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/FeatureRow.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using testing::Contains;
using testing::Not;

// What a monitor is still told after a moment.
constexpr auto aMoment = std::chrono::seconds(5);

class FeatureRowTest : public testing::Test {
  protected:
    void show(std::uint8_t code) {
        feature = view.display()->feature(code).get();
        view.show(
            std::make_unique<FeatureRow>(view.environment, view.display(), view.display()->feature(code)));
        view.rig.log.clear();
    }
    bool wasTriggered() {
        return std::ranges::any_of(view.rig.log.lines(), [](const test::LogLine& line) {
            return line.text == "Alder: trigger Restore factory defaults";
        });
    }

    test::ViewRig view{test::deskWith(test::richAlder())};
    model::VCPFeature* feature = nullptr;
};

// Continuous

TEST_F(FeatureRowTest, OfAContinuousFeatureIsItsNameAboveASlider) {
    show(0x87);
    EXPECT_EQ(view.outline(),
              "column\n"
              "  text \"Sharpness\"\n"
              "  row\n"
              "    image slider.horizontal.3\n"
              "    slider 7 of 0...10, value \"7\", named \"Sharpness\", help\n"
              "    text \"7\" secondary\n");
    EXPECT_EQ(std::get<ui::Stack>(view.tree().element).spacing, 2);
}

TEST_F(FeatureRowTest, OfAContinuousFeatureWritesWhatTheSliderSays) {
    show(0x87);
    view.slide("Sharpness", 3);
    view.runFor(aMoment);
    EXPECT_EQ(view.rig.monitor(2).value(0x87), 3);
}

// Choice

TEST_F(FeatureRowTest, OfAChoiceOffersItsOptionsByTheirLabels) {
    show(0x14);
    EXPECT_EQ(view.outline(),
              "row\n"
              "  text \"Color preset\"\n"
              "  spacer\n"
              "  picker [\"sRGB\", \"Native\", *\"6500 K\"], named \"Color preset\"\n");
}

TEST_F(FeatureRowTest, OfAChoiceOffersAValueWithoutANameInHexadecimal) {
    show(0xE1);
    EXPECT_THAT(view.lines(), Contains("picker [\"0x00\", *\"0x01\"], named \"Vendor 0xE1\""));
}

TEST_F(FeatureRowTest, OfAChoiceWritesTheChosenValue) {
    show(0x14);
    view.choose("Color preset", 1);
    EXPECT_THAT(view.lines(), Contains("picker [\"sRGB\", *\"Native\", \"6500 K\"], named \"Color preset\""));
    view.runFor(aMoment);
    EXPECT_EQ(view.rig.monitor(2).value(0x14), 2);
}

TEST_F(FeatureRowTest, OfAChoiceShowsNoneWhileTheValueIsUnknown) {
    show(0x14);
    feature->current.set(std::nullopt);
    view.settle();
    EXPECT_THAT(view.lines(), Contains("picker [\"sRGB\", \"Native\", \"6500 K\"], named \"Color preset\""));
}

TEST_F(FeatureRowTest, OfAChoiceShowsNoneForAValueThatIsNoOption) {
    show(0x14);
    feature->current.set(11);
    view.settle();
    EXPECT_THAT(view.lines(), Contains("picker [\"sRGB\", \"Native\", \"6500 K\"], named \"Color preset\""));
}

// Action

TEST_F(FeatureRowTest, OfAnActionOffersToRunIt) {
    show(0x04);
    EXPECT_EQ(view.outline(),
              "row\n"
              "  text \"Restore factory defaults\"\n"
              "  spacer\n"
              "  button \"Run\", described \"Restore factory defaults\", key \"run\"\n");
}

TEST_F(FeatureRowTest, OfAnActionThatIsRunAsksFirst) {
    show(0x04);
    view.press("Run");
    EXPECT_EQ(view.outline(),
              "row\n"
              "  text \"Restore factory defaults\"\n"
              "  spacer\n"
              "  button \"Cancel\", described \"Restore factory defaults\", key \"cancel\"\n"
              "  button \"Confirm\", described \"Restore factory defaults\", key \"confirm\"\n");
    EXPECT_FALSE(wasTriggered());
}

TEST_F(FeatureRowTest, OfAnActionDoesNothingWhenItIsCancelled) {
    show(0x04);
    view.press("Run");
    view.press("Cancel");
    EXPECT_THAT(view.lines(),
                Contains("button \"Run\", described \"Restore factory defaults\", key \"run\""));
    view.runFor(aMoment);
    EXPECT_FALSE(wasTriggered());
}

TEST_F(FeatureRowTest, OfAnActionTriggersItOnceItIsConfirmed) {
    show(0x04);
    view.press("Run");
    view.press("Confirm");
    EXPECT_TRUE(wasTriggered());
    EXPECT_THAT(view.lines(),
                Contains("button \"Run\", described \"Restore factory defaults\", key \"run\""));
}

TEST_F(FeatureRowTest, OfAnActionAsksAgainTheNextTime) {
    show(0x04);
    view.press("Run");
    view.press("Confirm");
    view.rig.log.clear();
    view.press("Run");
    EXPECT_FALSE(wasTriggered());
}

// Read only

TEST_F(FeatureRowTest, OfAReadOnlyFeatureIsItsNameAndItsValue) {
    show(0xC0);
    EXPECT_EQ(view.outline(),
              "row\n"
              "  text \"Usage hours\"\n"
              "  spacer\n"
              "  text \"0x1F4\" secondary\n");
}

}  // namespace
}  // namespace vantrel::views
