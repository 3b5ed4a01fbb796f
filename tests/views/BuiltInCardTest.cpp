#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/BuiltInCard.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using testing::Contains;

class BuiltInCardTest : public testing::Test {
  protected:
    BuiltInCardTest() {
        view.show([this] { return builtInCard(view.environment, view.manager().builtIn()); });
    }

    test::ViewRig view;
};

TEST_F(BuiltInCardTest, IsTheBrightnessOfThePanel) {
    EXPECT_EQ(view.outline(),
              "column card\n"
              "  row\n"
              "    image laptopcomputer\n"
              "    column\n"
              "      text \"Built-in Display\"\n"
              "      text \"MacBook\" secondary\n"
              "    spacer\n"
              "  row\n"
              "    image sun.max.fill\n"
              "    slider 0.5 of 0...1, value \"50%\", named \"Brightness\"\n"
              "    text \"50%\" secondary\n");
}

TEST_F(BuiltInCardTest, SetsThePanelToWhatTheSliderSays) {
    view.slide("Brightness", 0.75);
    EXPECT_EQ(view.manager().builtIn()->brightness(), 0.75F);
    EXPECT_EQ(view.rig.world().brightness(1), 0.75F);
    EXPECT_THAT(view.lines(), Contains("slider 0.75 of 0...1, value \"75%\", named \"Brightness\""));
}

TEST_F(BuiltInCardTest, FollowsThePanelsKeys) {
    view.rig.world().setBrightness(1, 0.25F);
    view.manager().builtIn()->refresh();
    view.settle();
    EXPECT_THAT(view.lines(), Contains("slider 0.25 of 0...1, value \"25%\", named \"Brightness\""));
}

}  // namespace
}  // namespace vantrel::views
