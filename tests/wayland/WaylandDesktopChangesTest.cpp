#include <gmock/gmock.h>

#include "wayland/WaylandRig.h"

namespace vantrel::wayland {
namespace {

class WaylandDesktopChangesTest : public WaylandRig {};

TEST_F(WaylandDesktopChangesTest, TellsOfAMonitorThatIsPluggedIn) {
    compositor.change([](MockDesk& desk) { desk.monitors.push_back(std::make_unique<MockMonitor>("DP-3")); });
    waitForChange([&] { return names().size() == 3; });
}

TEST_F(WaylandDesktopChangesTest, TellsOfAMonitorThatIsPulledOut) {
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").isPlugged = false; });
    waitForChange([&] { return names().size() == 1; });
    EXPECT_EQ(names(), std::vector<std::string>{"DP-1"});
}

TEST_F(WaylandDesktopChangesTest, TellsOfAnotherPlace) {
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").state.y = 100; });
    waitForChange([&] { return output("DP-2").place.find("1920,100") != std::string::npos; });
}

TEST_F(WaylandDesktopChangesTest, TellsOfItsOwnChangesLater) {
    desktop->onChange([&] {
        ++changes;
        loop.quit();
    });
    ASSERT_TRUE(desktop->darken("DP-1"));
    EXPECT_EQ(changes, 0);
    loop.run();
    EXPECT_EQ(changes, 1);
}

TEST_F(WaylandDesktopChangesTest, TellsOnceOfWhatCameTogether) {
    desktop->onChange([&] {
        ++changes;
        loop.quit();
    });
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").state.y = 1; });
    desktop->outputs();
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").state.y = 2; });
    desktop->outputs();
    loop.run();
    EXPECT_EQ(changes, 1);
}

TEST_F(WaylandDesktopChangesTest, SaysNothingWhenNothingIsDifferent) {
    desktop->onChange([&] {
        ++changes;
        loop.quit();
    });
    compositor.change([](MockDesk&) {});
    desktop->outputs();
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").state.y = 1; });
    loop.run();
    EXPECT_EQ(changes, 1);
    EXPECT_NE(output("DP-2").place.find("1920,1 "), std::string::npos);
}

TEST_F(WaylandDesktopChangesTest, LetsTheListenerAskAndChange) {
    desktop->onChange([&] {
        if (++changes == 1) {
            EXPECT_TRUE(desktop->darken("DP-1"));
            EXPECT_EQ(changes, 1);
        } else if (!output("DP-1").isLit) {
            loop.quit();
        }
    });
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").state.y = 1; });
    loop.run();
    EXPECT_GE(changes, 2);
}

TEST_F(WaylandDesktopChangesTest, LetsTheListenerEndTheDesktop) {
    desktop->onChange([&] {
        desktop.reset();
        loop.quit();
    });
    compositor.change([](MockDesk& desk) { desk.monitor("DP-2").state.y = 1; });
    loop.run();
    EXPECT_EQ(desktop, nullptr);
}

TEST_F(WaylandDesktopChangesTest, HasNoOutputsOnceTheCompositorHasDied) {
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    compositor.die();
    waitUntil([&] { return desktop->outputs().empty(); });
    EXPECT_FALSE(desktop->canSwitch());
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_FALSE(desktop->light("DP-1", std::nullopt));
    EXPECT_EQ(desktop->arrangement("DP-1"), std::nullopt);
    EXPECT_EQ(desktop->table("DP-1"), std::nullopt);
    EXPECT_FALSE(desktop->setTable("DP-1", plain()));
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
}

TEST_F(WaylandDesktopChangesTest, IsThereAsLongAsTheCompositorLives) {
    EXPECT_TRUE(desktop->isThere());
    compositor.change([](MockDesk& desk) {
        for (const auto& monitor : desk.monitors) monitor->isPlugged = false;
    });
    waitUntil([&] { return desktop->outputs().empty(); });
    EXPECT_TRUE(desktop->isThere());
    compositor.die();
    EXPECT_FALSE(desktop->isThere());
}

TEST_F(WaylandDesktopChangesTest, IsThereWhileTheCompositorSleeps) {
    compositor.pause();
    clock.hurry();
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_TRUE(desktop->isThere());
    clock.calmDown();
    compositor.goOn();
}

TEST_F(WaylandDesktopChangesTest, SurvivesACompositorThatDiesBeforeACall) {
    compositor.die();
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
    EXPECT_TRUE(desktop->outputs().empty());
}

TEST_F(WaylandDesktopChangesTest, TellsOfACompositorThatDiesWithoutBeingAsked) {
    bool isTold = false;
    desktop->onChange([&] {
        isTold = true;
        loop.quit();
    });
    compositor.die();
    loop.run();
    EXPECT_TRUE(isTold);
    // Nothing is left to be called for.
    loop.runFor(std::chrono::milliseconds(1));
    EXPECT_TRUE(desktop->outputs().empty());
}

}  // namespace
}  // namespace vantrel::wayland
