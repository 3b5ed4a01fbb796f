#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/linux/randr/LightingPlan.h"

namespace vantrel::randr {
namespace {

// Two CRTCs and two outputs; the first one is lit in the upper left, the second dark. Both have
// a large, preferred mode and a small one.
class LightingPlanTest : public testing::Test {
  protected:
    static constexpr xcb_randr_mode_t large = 100;
    static constexpr xcb_randr_mode_t small = 101;

    LightingPlanTest() {
        layout.width = 1920;
        layout.height = 1080;
        layout.mostWidth = 8192;
        layout.mostHeight = 8192;
        layout.modes = {{large, {"1920x1080", 1920, 1080, 60000}}, {small, {"800x600", 800, 600, 75000}}};
        for (const std::string name : {"A", "B"}) {
            Layout::Output output;
            output.id = static_cast<xcb_randr_output_t>(layout.outputs.size() + 1);
            output.name = name;
            output.isConnected = true;
            output.possibleCrtcs = {11, 12};
            output.modes = {large, small};
            layout.outputs.push_back(output);
            Layout::Crtc crtc;
            crtc.id = static_cast<xcb_randr_crtc_t>(layout.crtcs.size() + 11);
            crtc.rotations = 1;
            crtc.possibleOutputs = {1, 2};
            layout.crtcs.push_back(crtc);
        }
        light(0, 0, 0);
        // Where it was.
        before.picture.mode = layout.modes[small];
        before.picture.area = {1920, 100, 800, 600};
        before.crtc = 12;
    }

    void light(std::size_t output, std::size_t crtc, std::int32_t x) {
        layout.outputs[output].crtc = layout.crtcs[crtc].id;
        layout.crtcs[crtc].mode = large;
        layout.crtcs[crtc].picture.mode = layout.modes[large];
        layout.crtcs[crtc].picture.area = {x, 0, 1920, 1080};
        layout.crtcs[crtc].outputs = {layout.outputs[output].id};
    }
    std::vector<LightingPlan> plans(const std::optional<Placement>& placement) const {
        return LightingPlan::all(layout, layout.outputs[1], placement);
    }
    // Of the best plan.
    Area area(const std::optional<Placement>& placement) const {
        const auto all = plans(placement);
        return all.empty() ? Area{} : all.front().picture.area;
    }

    Layout layout;
    Placement before;
    const Area rightOfOthers{1920, 0, 1920, 1080};
};

TEST_F(LightingPlanTest, IsAsItWasWithTheScreenLargeEnough) {
    const LightingPlan plan = plans(before).front();
    EXPECT_EQ(plan.crtc, 12U);
    EXPECT_EQ(plan.mode, small);
    EXPECT_EQ(plan.picture, before.picture);
    EXPECT_EQ(plan.outputs, (std::vector<xcb_randr_output_t>{2}));
    EXPECT_EQ(plan.width, 2720);
    EXPECT_EQ(plan.height, 1080);
    EXPECT_TRUE(plan.isTableOurs);
}

TEST_F(LightingPlanTest, WithoutAPlacementIsThePreferredModeRightOfTheOthersThenAnyOther) {
    const auto all = plans(std::nullopt);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].picture.area, rightOfOthers);
    EXPECT_EQ(all[0].mode, large);
    EXPECT_FALSE(all[0].isTableOurs);
    EXPECT_EQ(all[1].mode, small);
}

TEST_F(LightingPlanTest, HasTheOtherWaysBehindTheOneAsItWas) { EXPECT_EQ(plans(before).size(), 3U); }

TEST_F(LightingPlanTest, AModeIsTheSameByItsSizeAndAlmostItsRate) {
    before.picture.mode.name = "of another session";
    before.picture.mode.refresh += 10;
    EXPECT_EQ(area(before), before.picture.area);
    before.picture.mode.refresh += 1;
    EXPECT_EQ(area(before), rightOfOthers);
}

TEST_F(LightingPlanTest, OfTwoModesThatAreAlikeTakesTheOneWithItsName) {
    layout.modes[102] = {"800x600 too", 800, 600, 75000};
    layout.outputs[1].modes.push_back(102);
    EXPECT_EQ(plans(before).front().mode, small);
    before.picture.mode.name = "800x600 too";
    EXPECT_EQ(plans(before).front().mode, 102U);
}

TEST_F(LightingPlanTest, OverlapsNobodyWhomItDidNotOverlap) {
    before.picture.area.x = 1919;
    EXPECT_EQ(area(before), rightOfOthers);
    before.shared = {"A"};
    EXPECT_EQ(area(before), before.picture.area);
}

TEST_F(LightingPlanTest, StaysWithinTheLargestScreen) {
    layout.mostWidth = 2720;
    EXPECT_EQ(area(before), before.picture.area);
    // The small mode still fits on the right, the large one doesn't.
    before.picture.area.x = 1921;
    const auto all = plans(before);
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].mode, small);
    layout.mostWidth = 2719;
    EXPECT_TRUE(plans(before).empty());
}

TEST_F(LightingPlanTest, APlaceThatIsNoneIsNotTaken) {
    for (const Area& none : {Area{-1, 0, 800, 600}, Area{0, -1, 800, 600}, Area{1920, 0, 0, 600},
                             Area{1920, 0, 800, -600}, Area{65535, 0, 800, 600}}) {
        before.picture.area = none;
        EXPECT_EQ(area(before), rightOfOthers);
    }
}

TEST_F(LightingPlanTest, TakesACrtcThatCanTurnThePicture) {
    before.picture.rotation = 2;
    EXPECT_EQ(area(before), rightOfOthers);
    layout.crtcs[1].rotations = 3;
    EXPECT_EQ(area(before), before.picture.area);
}

TEST_F(LightingPlanTest, OnAnotherCrtcTheTableIsNotItsOwn) {
    before.crtc = 11;
    const LightingPlan plan = plans(before).front();
    EXPECT_EQ(plan.crtc, 12U);
    EXPECT_EQ(plan.picture, before.picture);
    EXPECT_FALSE(plan.isTableOurs);
}

TEST_F(LightingPlanTest, PrefersTheCrtcThatItHad) {
    layout.crtcs.push_back(layout.crtcs[1]);
    layout.crtcs[2].id = 13;
    layout.outputs[1].possibleCrtcs = {11, 12, 13};
    EXPECT_EQ(plans(before).front().crtc, 12U);
    before.crtc = 13;
    EXPECT_EQ(plans(before).front().crtc, 13U);
}

TEST_F(LightingPlanTest, TakesOnlyACrtcThatIsFreeAndPossible) {
    layout.outputs[1].possibleCrtcs = {11};
    EXPECT_TRUE(plans(before).empty());
}

TEST_F(LightingPlanTest, JoinsTheCrtcOfThoseThatStillShowTheSame) {
    before.picture = layout.crtcs[0].picture;
    before.crtc = 11;
    before.shared = {"A"};
    EXPECT_EQ(plans(before).front().outputs, (std::vector<xcb_randr_output_t>{1, 2}));
    EXPECT_TRUE(plans(before).front().isTableOurs);
    // Not that of others, not for another picture, not where the CRTC can't.
    before.shared = {"C"};
    EXPECT_EQ(plans(before).front().crtc, 12U);
    before.shared = {"A"};
    before.picture.rotation = 2;
    EXPECT_EQ(plans(before).front().crtc, 12U);
    before.picture.rotation = 1;
    layout.crtcs[0].possibleOutputs = {1};
    EXPECT_EQ(plans(before).front().crtc, 12U);
}

TEST_F(LightingPlanTest, IsNoneForAnOutputThatIsLit) {
    light(1, 1, 1920);
    EXPECT_TRUE(plans(before).empty());
}

TEST_F(LightingPlanTest, TheFirstOneOfAllIsInTheUpperLeft) {
    layout.crtcs[0].mode = XCB_NONE;
    layout.crtcs[0].outputs.clear();
    layout.outputs[0].crtc = XCB_NONE;
    EXPECT_EQ(area(std::nullopt), (Area{0, 0, 1920, 1080}));
}

}  // namespace
}  // namespace vantrel::randr
