#include <gmock/gmock.h>

#include "mutter/MutterRig.h"
#include "platform/linux/mutter/MutterDesktop.h"

namespace vantrel::mutter {
namespace {

class MutterDesktopTest : public MutterRig {
  protected:
    static platform::TransferTable dimmed(std::size_t capacity = 256) {
        const std::vector<float> ramp(capacity, 0.5F);
        return {ramp, ramp, std::vector<float>(capacity, 0.25F)};
    }
    int configurations() { return mutter.desk().configurations; }
};

TEST_F(MutterDesktopTest, IsNotThereWithoutMutter) {
    mutter.leave();
    EXPECT_EQ(MutterDesktop::open(descriptors, loop), nullptr);
}

TEST_F(MutterDesktopTest, IsTheSameForEveryProgramOnOneBus) {
    EXPECT_EQ(desktop->name(), "GNOME");
    EXPECT_THAT(desktop->identity(), testing::MatchesRegex("mutter-[0-9a-f]+"));
    EXPECT_EQ(MutterDesktop::open(descriptors, loop)->identity(), desktop->identity());
}

TEST_F(MutterDesktopTest, ListsItsMonitors) {
    mutter.run([](MockMutter::Desk& desk) { desk.screen("DP-2").edid = {0, 255, 255}; });
    const auto outputs = desktop->outputs();
    ASSERT_EQ(outputs.size(), 3U);
    EXPECT_EQ(outputs[1].name, "DP-2");
    EXPECT_EQ(outputs[1].monitor, "Mock 24\"");
    EXPECT_TRUE(outputs[1].isConnected);
    EXPECT_TRUE(outputs[1].isLit);
    EXPECT_EQ(outputs[1].tableCapacity, 256U);
    EXPECT_THAT(outputs[1].edid, testing::ElementsAre(0, 255, 255));
    EXPECT_TRUE(outputs[0].edid.empty());
    EXPECT_NE(outputs[0].place, outputs[1].place);
}

TEST_F(MutterDesktopTest, ReadsTables) {
    mutter.run([](MockMutter::Desk& desk) { desk.screen("DP-1").table = {0, 65535, 1, 65534, 32768, 0}; });
    desktop = MutterDesktop::open(descriptors, loop);
    EXPECT_EQ(output("DP-1").tableCapacity, 2U);
    const auto table = desktop->table("DP-1");
    ASSERT_TRUE(table);
    EXPECT_THAT(table->red, testing::ElementsAre(0, 1));
    EXPECT_THAT(table->green,
                testing::ElementsAre(testing::FloatEq(1 / 65535.0F), testing::FloatEq(65534 / 65535.0F)));
    EXPECT_EQ(desktop->table("DP-9"), std::nullopt);
}

TEST_F(MutterDesktopTest, SetsTheTableThatItWasGivenAndOnlyThatOne) {
    ASSERT_TRUE(desktop->setTable("DP-2", dimmed()));
    const auto desk = mutter.desk();
    EXPECT_EQ(desk.screens[1].table.at(0), 32768);
    EXPECT_EQ(desk.screens[1].table.at(767), 16384);
    EXPECT_EQ(desk.screens[0].table.at(0), 7);
    EXPECT_FALSE(desktop->setTable("DP-2", dimmed(255)));
    EXPECT_FALSE(desktop->setTable("DP-9", dimmed()));
}

TEST_F(MutterDesktopTest, GivesBackExactlyTheTableThatItRead) {
    mutter.run([](MockMutter::Desk& desk) {
        for (std::size_t index = 0; index < 768; ++index) {
            desk.screen("DP-1").table[index] = static_cast<std::uint16_t>(index * 85 + 3);
        }
    });
    const auto before = mutter.desk().screens[0].table;
    const auto table = desktop->table("DP-1");
    ASSERT_TRUE(table);
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    ASSERT_TRUE(desktop->setTable("DP-1", *table));
    EXPECT_EQ(mutter.desk().screens[0].table, before);
}

TEST_F(MutterDesktopTest, SetsATableAlthoughTheMonitorsChangeMeanwhile) {
    mutter.run([](MockMutter::Desk& desk) { desk.interruptions = 2; });
    EXPECT_TRUE(desktop->setTable("DP-1", dimmed()));
    EXPECT_EQ(mutter.desk().screens[0].table.at(0), 32768);
}

TEST_F(MutterDesktopTest, KeepsATableWhenItGoes) {
    EXPECT_TRUE(desktop->keepsTables());
    ASSERT_TRUE(desktop->setTable("DP-1", dimmed()));
    desktop = MutterDesktop::open(descriptors, loop);
    EXPECT_EQ(mutter.desk().screens[0].table.at(0), 32768);
}

TEST_F(MutterDesktopTest, HasNoTablesWhereMutterHasNone) {
    mutter.change([](MockMutter::Desk& desk) { desk.hasTables = false; });
    EXPECT_EQ(output("DP-1").tableCapacity, 0U);
    EXPECT_EQ(desktop->table("DP-1"), std::nullopt);
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
}

TEST_F(MutterDesktopTest, TurnsOneMonitorOffForTheTimeBeing) {
    EXPECT_TRUE(desktop->canSwitch());
    ASSERT_TRUE(desktop->darken("HDMI-1"));
    EXPECT_EQ(place("DP-1"), std::pair(0, 0));
    EXPECT_EQ(place("DP-2"), std::pair(1920, 0));
    EXPECT_EQ(mutter.desk().find("HDMI-1"), nullptr);
    EXPECT_EQ(mutter.desk().lastMethod, 1U);
    EXPECT_FALSE(output("HDMI-1").isLit);
    EXPECT_TRUE(output("HDMI-1").isConnected);
    EXPECT_EQ(output("HDMI-1").tableCapacity, 0U);
    EXPECT_EQ(output("HDMI-1").place, "");
    EXPECT_FALSE(desktop->setTable("HDMI-1", dimmed()));
}

TEST_F(MutterDesktopTest, ClosesTheGapThatAMonitorLeaves) {
    ASSERT_TRUE(desktop->darken("DP-2"));
    EXPECT_EQ(place("DP-1"), std::pair(0, 0));
    EXPECT_EQ(place("HDMI-1"), std::pair(1920, 0));
}

TEST_F(MutterDesktopTest, BeginsAtTheOriginWithAnotherPrimaryMonitor) {
    ASSERT_TRUE(desktop->darken("DP-1"));
    EXPECT_EQ(place("DP-2"), std::pair(0, 0));
    EXPECT_EQ(place("HDMI-1"), std::pair(1920, 0));
    EXPECT_TRUE(mutter.desk().find("DP-2")->isPrimary);
}

TEST_F(MutterDesktopTest, BringsEverythingBackAsItWas) {
    const auto before = mutter.desk().logical;
    for (const char* const connector : {"DP-1", "DP-2", "HDMI-1"}) {
        const auto arrangement = desktop->arrangement(connector);
        ASSERT_TRUE(arrangement);
        EXPECT_EQ(arrangement->find('\n'), std::string::npos);
        ASSERT_TRUE(desktop->darken(connector));
        EXPECT_EQ(desktop->arrangement(connector), std::nullopt);
        desktop = MutterDesktop::open(descriptors, loop);
        ASSERT_TRUE(desktop->light(connector, arrangement));
        EXPECT_EQ(mutter.desk().logical, before) << connector;
    }
}

TEST_F(MutterDesktopTest, BringsSeveralBackInWhateverOrder) {
    const auto before = mutter.desk().logical;
    const auto first = desktop->arrangement("DP-1");
    ASSERT_TRUE(desktop->darken("DP-1"));
    const auto second = desktop->arrangement("DP-2");
    ASSERT_TRUE(desktop->darken("DP-2"));
    ASSERT_TRUE(desktop->light("DP-1", first));
    ASSERT_TRUE(desktop->light("DP-2", second));
    EXPECT_EQ(place("DP-1"), std::pair(0, 0));
    EXPECT_TRUE(mutter.desk().find("DP-1")->isPrimary);
    EXPECT_EQ(mutter.desk().logical.size(), before.size());
}

TEST_F(MutterDesktopTest, KeepsWhatTheOthersHaveOfModesAndTurnsAndScales) {
    mutter.change([](MockMutter::Desk& desk) {
        desk.logical = {{0, 0, 1, 0, false, {{"DP-1", "1920x1080@60.000"}}},
                        {1920, 200, 2, 1, true, {{"DP-2", "1280x1024@75.025"}}},
                        {2432, 200, 1, 0, false, {{"HDMI-1", "1920x1080@60.000"}}}};
        desk.screen("HDMI-1").isUnderscanning = true;
        desk.screen("HDMI-1").colorMode = 1;
    });
    ASSERT_TRUE(desktop->darken("DP-1"));
    const auto desk = mutter.desk();
    EXPECT_EQ(*desk.find("DP-2"), (Logical{0, 0, 2, 1, true, {{"DP-2", "1280x1024@75.025"}}}));
    EXPECT_EQ(*desk.find("HDMI-1"), (Logical{512, 0, 1, 0, false, {{"HDMI-1", "1920x1080@60.000"}}}));
    EXPECT_THAT(desk.lastProperties, testing::Contains("HDMI-1 underscanning 1"));
    EXPECT_THAT(desk.lastProperties, testing::Contains("HDMI-1 color-mode 1"));
    EXPECT_THAT(desk.lastProperties, testing::Contains("DP-2 underscanning 0"));
}

TEST_F(MutterDesktopTest, LaysOutPixelsWhereMutterDoes) {
    mutter.change([](MockMutter::Desk& desk) {
        desk.layoutMode = 2;
        desk.canChangeLayoutMode = true;
        desk.logical.resize(2);
        desk.logical[0].scale = 2;
    });
    const auto before = mutter.desk().logical;
    const auto arrangement = desktop->arrangement("DP-2");
    ASSERT_TRUE(desktop->darken("DP-2"));
    ASSERT_TRUE(desktop->light("DP-2", arrangement));
    EXPECT_EQ(mutter.desk().logical, before);
    EXPECT_EQ(mutter.desk().lastLayoutMode, 2U);
}

TEST_F(MutterDesktopTest, TakesOneOfTwoMonitorsThatShowTheSame) {
    mutter.change([](MockMutter::Desk& desk) {
        desk.logical.resize(2);
        desk.logical[1].modes["HDMI-1"] = "1920x1080@60.000";
    });
    const auto before = mutter.desk().logical;
    const auto arrangement = desktop->arrangement("HDMI-1");
    ASSERT_TRUE(desktop->darken("HDMI-1"));
    EXPECT_EQ(place("DP-2"), std::pair(1920, 0));
    ASSERT_TRUE(desktop->light("HDMI-1", arrangement));
    EXPECT_EQ(mutter.desk().logical, before);
}

TEST_F(MutterDesktopTest, LightsANewcomerToTheRightInItsPreferredMode) {
    mutter.change([](MockMutter::Desk& desk) {
        desk.logical.resize(2);
        desk.screen("HDMI-1").modes = {{"800x600@60", 800, 600, false, 1},
                                       {"3840x2160@60", 3840, 2160, true, 2}};
    });
    ASSERT_TRUE(desktop->light("HDMI-1", std::nullopt));
    EXPECT_EQ(*mutter.desk().find("HDMI-1"), (Logical{3840, 0, 2, 0, false, {{"HDMI-1", "3840x2160@60"}}}));
    EXPECT_EQ(place("DP-2"), std::pair(1920, 0));
}

TEST_F(MutterDesktopTest, GivesANewcomerTheScaleOfAllWhereThereIsOne) {
    mutter.change([](MockMutter::Desk& desk) {
        desk.needsOneScale = true;
        desk.logical.resize(2);
        desk.screen("HDMI-1").modes = {{"3840x2160@60", 3840, 2160, true, 2}};
    });
    ASSERT_TRUE(desktop->light("HDMI-1", std::nullopt));
    EXPECT_EQ(mutter.desk().find("HDMI-1")->scale, 1);
}

TEST_F(MutterDesktopTest, TreatsAMonitorWithoutTheOldModeAsANewcomer) {
    const auto arrangement = desktop->arrangement("DP-1");
    ASSERT_TRUE(desktop->darken("DP-1"));
    mutter.change([](MockMutter::Desk& desk) {
        desk.screen("DP-1").modes = {{"800x600@60", 800, 600, true, 1}};
    });
    ASSERT_TRUE(desktop->light("DP-1", arrangement));
    EXPECT_EQ(place("DP-1"), std::pair(3840, 0));
}

TEST_F(MutterDesktopTest, LeavesOthersAloneThatWereMovedMeanwhile) {
    const auto arrangement = desktop->arrangement("DP-1");
    ASSERT_TRUE(desktop->darken("DP-1"));
    mutter.change([](MockMutter::Desk& desk) {
        desk.logical = {{0, 0, 1, 0, true, {{"HDMI-1", "1920x1080@60.000"}}},
                        {1920, 0, 1, 0, false, {{"DP-2", "1920x1080@60.000"}}}};
    });
    ASSERT_TRUE(desktop->light("DP-1", arrangement));
    EXPECT_EQ(place("HDMI-1"), std::pair(0, 0));
    EXPECT_EQ(place("DP-2"), std::pair(1920, 0));
    EXPECT_EQ(place("DP-1"), std::pair(3840, 0));
}

TEST_F(MutterDesktopTest, TreatsAnUnreadableArrangementAsNone) {
    ASSERT_TRUE(desktop->darken("DP-1"));
    ASSERT_TRUE(desktop->light("DP-1", "wayland mode=1920x1080@60000"));
    EXPECT_EQ(place("DP-1"), std::pair(3840, 0));
}

TEST_F(MutterDesktopTest, LightsAMonitorAfreshWhenItsArrangementIsRefused) {
    const auto arrangement = desktop->arrangement("DP-1");
    ASSERT_TRUE(desktop->darken("DP-1"));
    mutter.run([](MockMutter::Desk& desk) { desk.refusals = 1; });
    ASSERT_TRUE(desktop->light("DP-1", arrangement));
    EXPECT_EQ(place("DP-1"), std::pair(3840, 0));
}

TEST_F(MutterDesktopTest, TriesAgainWithWhatIsNewWhenItWasOutdated) {
    mutter.run([](MockMutter::Desk& desk) { desk.interruptions = 2; });
    EXPECT_TRUE(desktop->darken("DP-1"));
    EXPECT_EQ(configurations(), 3);
}

TEST_F(MutterDesktopTest, DoesNotTryForEver) {
    mutter.run([](MockMutter::Desk& desk) { desk.interruptions = 100; });
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_EQ(configurations(), 4);
    EXPECT_TRUE(output("DP-1").isLit);
}

TEST_F(MutterDesktopTest, SaysSoWhenMutterRefuses) {
    mutter.run([](MockMutter::Desk& desk) { desk.refusals = 1; });
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_EQ(configurations(), 1);
    EXPECT_TRUE(output("DP-1").isLit);
    EXPECT_FALSE(desktop->darken("DP-9"));
    EXPECT_FALSE(desktop->light("DP-9", std::nullopt));
}

TEST_F(MutterDesktopTest, LeavesItToMutterToRefuseTheLastOne) {
    ASSERT_TRUE(desktop->darken("DP-1"));
    ASSERT_TRUE(desktop->darken("DP-2"));
    EXPECT_FALSE(desktop->darken("HDMI-1"));
    EXPECT_TRUE(output("HDMI-1").isLit);
}

TEST_F(MutterDesktopTest, AsksForNothingThatIsThereAlready) {
    EXPECT_TRUE(desktop->light("DP-1", std::nullopt));
    EXPECT_EQ(configurations(), 0);
    ASSERT_TRUE(desktop->darken("DP-1"));
    EXPECT_TRUE(desktop->darken("DP-1"));
    EXPECT_EQ(configurations(), 1);
}

TEST_F(MutterDesktopTest, CanNotSwitchWhereNobodyMay) {
    mutter.run([](MockMutter::Desk& desk) { desk.isApplyAllowed = false; });
    EXPECT_FALSE(desktop->canSwitch());
    EXPECT_FALSE(desktop->darken("DP-1"));
}

TEST_F(MutterDesktopTest, TellsOfAMonitorThatIsPulledOut) {
    mutter.change([](MockMutter::Desk& desk) {
        desk.screen("HDMI-1").isPlugged = false;
        desk.logical.resize(2);
    });
    waitForChange([&] { return desktop->outputs().size() == 2; });
}

TEST_F(MutterDesktopTest, TellsOfItsOwnChangesLater) {
    int changes = 0;
    desktop->onChange([&] {
        ++changes;
        loop.quit();
    });
    ASSERT_TRUE(desktop->darken("DP-1"));
    EXPECT_EQ(changes, 0);
    loop.run();
    EXPECT_EQ(changes, 1);
}

TEST_F(MutterDesktopTest, SaysNothingWhenNothingIsDifferent) {
    int changes = 0;
    desktop->onChange([&] {
        ++changes;
        loop.quit();
    });
    mutter.change([](MockMutter::Desk&) {});
    mutter.change([](MockMutter::Desk& desk) { desk.logical[2].y = 5; });
    loop.run();
    EXPECT_EQ(changes, 1);
    EXPECT_NE(output("HDMI-1").place.find("3840,5,"), std::string::npos);
}

TEST_F(MutterDesktopTest, LetsTheListenerEndTheDesktop) {
    desktop->onChange([&] {
        desktop.reset();
        loop.quit();
    });
    mutter.change([](MockMutter::Desk& desk) { desk.logical[2].y = 5; });
    loop.run();
    EXPECT_EQ(desktop, nullptr);
}

TEST_F(MutterDesktopTest, HasNoOutputsWhileMutterIsAway) {
    mutter.leave();
    waitForChange([&] { return desktop->outputs().empty(); });
    EXPECT_FALSE(desktop->canSwitch());
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_FALSE(desktop->light("DP-1", std::nullopt));
    EXPECT_EQ(desktop->arrangement("DP-1"), std::nullopt);
    EXPECT_EQ(desktop->table("DP-1"), std::nullopt);
    EXPECT_FALSE(desktop->setTable("DP-1", dimmed()));
    mutter.comeBack();
    waitForChange([&] { return desktop->outputs().size() == 3; });
}

TEST_F(MutterDesktopTest, IsThereAsLongAsMutterIs) {
    EXPECT_TRUE(desktop->isThere());
    mutter.change([](MockMutter::Desk& desk) {
        for (MockScreen& screen : desk.screens) screen.isPlugged = false;
        desk.logical.clear();
    });
    EXPECT_TRUE(desktop->outputs().empty());
    EXPECT_TRUE(desktop->isThere());
    mutter.leave();
    EXPECT_FALSE(desktop->isThere());
    mutter.comeBack();
    EXPECT_TRUE(desktop->isThere());
}

TEST_F(MutterDesktopTest, IsThereWhileMutterSleeps) {
    mutter.pause();
    EXPECT_TRUE(desktop->isThere());
    mutter.goOn();
}

TEST_F(MutterDesktopTest, SeesWhatHappenedWhileMutterSlept) {
    mutter.pause();
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_TRUE(desktop->outputs().empty());
    mutter.goOn();
    // Not a word of it.
    mutter.run([](MockMutter::Desk& desk) { desk.logical.erase(desk.logical.begin()); });
    waitForChange([&] { return desktop->outputs().size() == 3 && !output("DP-1").isLit; });
}

TEST_F(MutterDesktopTest, GivesUpOnAMutterThatDoesNotAnswer) {
    mutter.run([](MockMutter::Desk& desk) { desk.isSilent = true; });
    EXPECT_FALSE(desktop->darken("DP-1"));
    EXPECT_TRUE(output("DP-1").isLit);
}

}  // namespace
}  // namespace vantrel::mutter
