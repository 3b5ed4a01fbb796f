#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/DisabledCard.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using testing::IsEmpty;

class DisabledCardTest : public testing::Test {
  protected:
    DisabledCardTest() {
        view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
        entry = view.manager().disabled().at(0);
        view.show([this] { return disabledCard(view.environment, entry); });
    }

    test::ViewRig view;
    persistence::DisabledDisplay entry;
};

TEST_F(DisabledCardTest, IsANameAndAWayBack) {
    EXPECT_EQ(view.outline(),
              "column card, named \"Alder\", context menu [\"Forget This Monitor\"]\n"
              "  row\n"
              "    image display.trianglebadge.exclamationmark\n"
              "    column\n"
              "      text \"Alder\"\n"
              "      text \"Mac output off\" secondary\n"
              "    spacer\n"
              "    button \"Turn On\" prominent, described \"Alder\", key \"turn on\"\n");
}

TEST_F(DisabledCardTest, TurnsTheOutputOn) {
    view.press("Turn On");
    view.runFor(std::chrono::seconds(10));
    EXPECT_TRUE(view.rig.world().isOnline(2));
    EXPECT_THAT(view.manager().disabled(), IsEmpty());
}

TEST_F(DisabledCardTest, ForgetsTheMonitorAndLeavesItsOutputOff) {
    view.chooseInContextMenu("Alder", 0);
    EXPECT_THAT(view.manager().disabled(), IsEmpty());
    EXPECT_THAT(view.rig.stored(), IsEmpty());
    EXPECT_FALSE(view.rig.world().isOnline(2));
}

}  // namespace
}  // namespace vantrel::views
