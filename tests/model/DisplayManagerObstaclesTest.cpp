#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/DisplayManager.h"
#include "support/ManagerRig.h"
#include "support/PseudoLocalizer.h"

namespace vantrel::model {
namespace {

using namespace std::chrono_literals;
using test::ManagerRig;
using testing::ElementsAre;
using testing::IsEmpty;
using text::Text;

const Text module = Text::translated("Load the module.");
const Text permission = Text::translated("%@ may not.", {"Ann"});

TEST(DisplayManagerObstacles, AreNoneAsARule) {
    ManagerRig rig;
    EXPECT_THAT(rig.startAndLoad().obstacles(), IsEmpty());
}

TEST(DisplayManagerObstacles, AreThereFromTheStart) {
    ManagerRig rig;
    rig.simulated.obstruct({module, permission});
    EXPECT_THAT(rig.start().obstacles(), ElementsAre("Load the module.", "Ann may not."));
}

TEST(DisplayManagerObstacles, AreInTheUsersLanguage) {
    test::PseudoLocalizer localizer;
    ManagerRig rig(test::usualDesk(), &localizer);
    rig.simulated.obstruct({module});
    EXPECT_THAT(rig.start().obstacles(), ElementsAre(localizer.shown(module)));
    EXPECT_NE(localizer.shown(module), "Load the module.");
}

TEST(DisplayManagerObstacles, ComeAndGoWithARefresh) {
    ManagerRig rig;
    DisplayManager& manager = rig.startAndLoad();
    rig.simulated.obstruct({module});
    EXPECT_THAT(manager.obstacles(), IsEmpty());
    manager.refresh();
    EXPECT_THAT(manager.obstacles(), ElementsAre("Load the module."));
    rig.simulated.obstruct({});
    rig.displays.reconfigure(2, 8);
    rig.runFor(1s);
    EXPECT_THAT(manager.obstacles(), IsEmpty());
}

// That a monitor doesn't answer is known only once it was asked.
TEST(DisplayManagerObstacles, ComeOnceAMonitorWasAsked) {
    ManagerRig rig;
    DisplayManager& manager = rig.start();
    rig.simulated.obstruct({module});
    EXPECT_THAT(manager.obstacles(), IsEmpty());
    rig.runFor(10s);
    EXPECT_THAT(manager.obstacles(), ElementsAre("Load the module."));
}

TEST(DisplayManagerObstacles, TellTheirReaders) {
    ManagerRig rig;
    DisplayManager& manager = rig.startAndLoad();
    bool isTold = false;
    runtime::Observer observer([&] { isTold = true; });
    observer.track([&] { manager.obstacles(); });
    manager.refresh();
    EXPECT_FALSE(isTold);
    rig.simulated.obstruct({module});
    manager.refresh();
    EXPECT_TRUE(isTold);
}

TEST(DisplayManagerObstacles, GoWhenTheyAreDismissed) {
    ManagerRig rig;
    rig.simulated.obstruct({module, permission});
    DisplayManager& manager = rig.startAndLoad();
    manager.dismissObstacle("Load the module.");
    EXPECT_THAT(manager.obstacles(), ElementsAre("Ann may not."));
}

TEST(DisplayManagerObstacles, DoNotComeBackOnceDismissed) {
    ManagerRig rig;
    rig.simulated.obstruct({module});
    DisplayManager& manager = rig.startAndLoad();
    manager.dismissObstacle("Load the module.");
    manager.refresh();
    manager.loadAll();
    rig.runFor(10s);
    EXPECT_THAT(manager.obstacles(), IsEmpty());
    rig.simulated.obstruct({});
    manager.refresh();
    rig.simulated.obstruct({module, permission});
    manager.refresh();
    EXPECT_THAT(manager.obstacles(), ElementsAre("Ann may not."));
}

TEST(DisplayManagerObstacles, AreNoErrors) {
    ManagerRig rig;
    rig.simulated.obstruct({module});
    DisplayManager& manager = rig.startAndLoad();
    EXPECT_EQ(manager.lastError(), std::nullopt);
    manager.clearLastError();
    EXPECT_THAT(manager.obstacles(), ElementsAre("Load the module."));
}

TEST(DisplayManagerObstacles, ComeBackWithTheNextRun) {
    ManagerRig rig;
    rig.simulated.obstruct({module});
    rig.startAndLoad().dismissObstacle("Load the module.");
    EXPECT_THAT(rig.restart().obstacles(), ElementsAre("Load the module."));
}

}  // namespace
}  // namespace vantrel::model
