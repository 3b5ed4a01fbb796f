#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/DeathTest.h"
#include "views/FeatureSlider.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using testing::Contains;

class FeatureSliderTest : public test::DeathTest {
  protected:
    FeatureSliderTest() {
        view.show([this] {
            return featureSlider(view.environment, view.display(), view.display()->feature(0x10),
                                 "sun.max.fill");
        });
    }
    model::VCPFeature& feature() { return *view.display()->feature(0x10); }

    test::ViewRig view;
};

TEST_F(FeatureSliderTest, ShowsTheCurrentValueInItsRangeUnderItsName) {
    EXPECT_EQ(view.outline(),
              "row\n"
              "  image sun.max.fill\n"
              "  slider 50 of 0...100, value \"50%\", named \"Brightness\", help\n"
              "  text \"50%\" secondary\n");
}

TEST_F(FeatureSliderTest, FollowsTheValueAndItsMaximum) {
    feature().maximum.set(255);
    feature().current.set(42);
    view.settle();
    EXPECT_THAT(view.lines(), Contains("slider 42 of 0...255, value \"42\", named \"Brightness\", help"));
}

TEST_F(FeatureSliderTest, StandsAtZeroWhileTheValueIsUnknown) {
    feature().current.set(std::nullopt);
    view.settle();
    EXPECT_THAT(view.lines(), Contains("slider 0 of 0...100, value \"0%\", named \"Brightness\", help"));
}

TEST_F(FeatureSliderTest, WritesNothingUntilItIsMoved) {
    view.rig.monitor(2).recordTrace();
    feature().current.set(std::nullopt);
    view.runFor(std::chrono::seconds(5));
    EXPECT_TRUE(view.rig.monitor(2).trace().empty());
    EXPECT_EQ(feature().current.get(), std::nullopt);
}

TEST_F(FeatureSliderTest, WritesTheNearestWholeValue) {
    view.slide("Brightness", 49.5);
    EXPECT_EQ(feature().current.get(), 50);
    view.slide("Brightness", 49.4);
    EXPECT_EQ(feature().current.get(), 49);
    view.runFor(std::chrono::seconds(5));
    EXPECT_EQ(view.rig.monitor(2).value(0x10), 49);
}

TEST_F(FeatureSliderTest, WritesTheLargestValueThatFits) {
    feature().maximum.set(65535);
    view.slide("Brightness", 65535);
    EXPECT_EQ(feature().current.get(), 65535);
}

using FeatureSliderDeathTest = FeatureSliderTest;

TEST_F(FeatureSliderDeathTest, AValueThatIsNoVCPValueStopsTheProgram) {
    EXPECT_DEATH(view.slide("Brightness", -1), "no VCP value");
    EXPECT_DEATH(view.slide("Brightness", 65536), "no VCP value");
}

}  // namespace
}  // namespace vantrel::views
