#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/SoftwareControls.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using testing::Contains;
using testing::ElementsAre;

class SoftwareControlsTest : public testing::Test {
  protected:
    SoftwareControlsTest() {
        view.show([this] { return softwareControls(view.environment, view.display()); });
        view.rig.calls.clear();
    }

    test::ViewRig view{test::deskWith(test::deafAlder())};
};

TEST_F(SoftwareControlsTest, AreTwoFractionsAsPercentages) {
    EXPECT_EQ(view.outline(),
              "column\n"
              "  row, key \"brightness\"\n"
              "    image sun.max.fill\n"
              "    slider 1 of 0...1, value \"100%\", named \"Brightness (software)\", help\n"
              "    text \"100%\" secondary\n"
              "  row, key \"contrast\"\n"
              "    image circle.lefthalf.filled\n"
              "    slider 0.5 of 0...1, value \"50%\", named \"Contrast (software)\", help\n"
              "    text \"50%\" secondary\n");
}

TEST_F(SoftwareControlsTest, ChangeTheDimmersBrightness) {
    view.slide("Brightness (software)", 0.426);
    EXPECT_EQ(view.display()->dimmer().brightness(), 0.426);
    EXPECT_THAT(view.lines(),
                Contains("slider 0.426 of 0...1, value \"43%\", named \"Brightness (software)\", help"));
}

TEST_F(SoftwareControlsTest, ChangeTheDimmersContrast) {
    view.slide("Contrast (software)", 0.7);
    EXPECT_EQ(view.display()->dimmer().contrast(), 0.7);
}

TEST_F(SoftwareControlsTest, StoreAndApplyOnceForEachChange) {
    view.slide("Brightness (software)", 0.4);
    EXPECT_THAT(view.rig.calls.calls(), ElementsAre("software.1000-22-102", "set table of 2"));
    view.rig.calls.clear();
    view.slide("Contrast (software)", 0.4);
    EXPECT_THAT(view.rig.calls.calls(), ElementsAre("software.1000-22-102", "set table of 2"));
}

TEST_F(SoftwareControlsTest, StoreAndApplyOnceForAnEqualValueToo) {
    view.slide("Brightness (software)", 1);
    EXPECT_THAT(view.rig.calls.calls(), ElementsAre("software.1000-22-102", "set table of 2"));
}

}  // namespace
}  // namespace vantrel::views
