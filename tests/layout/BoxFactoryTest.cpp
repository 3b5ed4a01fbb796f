#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FakeCanvas.h"
#include "ui/Nodes.h"
#include "ui/layout/BoxFactory.h"
#include "ui/layout/DisclosureBox.h"
#include "ui/layout/FormBox.h"
#include "ui/layout/GridBox.h"
#include "ui/layout/LeafBox.h"
#include "ui/layout/ScrollBox.h"
#include "ui/layout/SectionBox.h"
#include "ui/layout/StackBox.h"

namespace vantrel::layout {
namespace {

using namespace ui;

class BoxFactoryTest : public testing::Test {
  protected:
    template <class Kind>
    bool makes(const Element& element) {
        return dynamic_cast<Kind*>(makeBox(stage_, canvas_, 1, Node{.element = element}, nullptr).get()) !=
               nullptr;
    }

    Stage stage_;
    test::FakeCanvas canvas_;
};

TEST_F(BoxFactoryTest, MakesTheBoxOfEachContainer) {
    EXPECT_TRUE(makes<StackBox>(Stack{}));
    EXPECT_TRUE(makes<GridBox>(Grid{}));
    EXPECT_TRUE(makes<ScrollBox>(Scroll{}));
    EXPECT_TRUE(makes<DisclosureBox>(Disclosure{}));
    EXPECT_TRUE(makes<FormBox>(Form{}));
    EXPECT_TRUE(makes<SectionBox>(Section{}));
}

TEST_F(BoxFactoryTest, MakesALeafOfEverythingElse) {
    EXPECT_TRUE(makes<LeafBox>(Text{}));
    EXPECT_TRUE(makes<LeafBox>(Image{}));
    EXPECT_TRUE(makes<LeafBox>(Spacer{}));
    EXPECT_TRUE(makes<LeafBox>(Divider{}));
    EXPECT_TRUE(makes<LeafBox>(Progress{}));
    EXPECT_TRUE(makes<LeafBox>(Button{}));
    EXPECT_TRUE(makes<LeafBox>(Tile{}));
    EXPECT_TRUE(makes<LeafBox>(Switch{}));
    EXPECT_TRUE(makes<LeafBox>(Slider{}));
    EXPECT_TRUE(makes<LeafBox>(Picker{}));
    EXPECT_TRUE(makes<LeafBox>(Menu{}));
    EXPECT_TRUE(makes<LeafBox>(TextField{}));
}

TEST_F(BoxFactoryTest, ShowsTheNodeOnAControlInItsParents) {
    const auto column = makeBox(stage_, canvas_, 1, ui::column(0, {}).key("column"), nullptr);
    const auto text = makeBox(stage_, canvas_, 2, ui::text("a").key("text"), column.get());
    EXPECT_EQ(canvas_.at("column").parent, nullptr);
    EXPECT_EQ(canvas_.at("text").parent, &column->control());
    EXPECT_EQ(canvas_.at("text").applied, 1);
}

}  // namespace
}  // namespace vantrel::layout
