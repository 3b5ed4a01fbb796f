#include <algorithm>
#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "linux/LinuxBench.h"
#include "platform/DisplayToggler.h"
#include "support/DeathTest.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using platform::DisplayID;
using platform::DisplayToggler::Output;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Calls = std::vector<std::pair<DisplayID, std::uint32_t>>;

constexpr std::uint32_t begins = platform::DisplayServices::beginConfigurationFlag;
constexpr std::uint32_t added = platform::DisplayServices::addFlag;
constexpr std::uint32_t removed = platform::DisplayServices::removeFlag;
constexpr std::uint32_t setMode = 1U << 3;

class LinuxDisplayServicesTest : public testing::Test {
  protected:
    LinuxDisplayServicesTest() {
        bench.loop.run();
        displays().onReconfiguration(
            [this](DisplayID display, std::uint32_t flags) { heard.emplace_back(display, flags); });
    }

    platform::DisplayServices& displays() { return bench.platform.displays; }
    LinuxHardware& hardware() { return bench.hardware; }
    const std::string& outputName(DisplayID display) { return hardware().place(display).output; }
    Desktop::Output& output(DisplayID display) { return hardware().desktop.output(outputName(display)); }
    bool turn(DisplayID display, Output wanted) {
        return platform::DisplayToggler::setEnabled(displays(), bench.platform.functions, display, wanted);
    }
    // Everything that was announced until now.
    Calls news() {
        bench.loop.run();
        return std::exchange(heard, {});
    }

    LinuxBench bench;
    Calls heard;
    // The panel, Alder and Birch.
    const DisplayID panel = bench.id(1).value();
    const DisplayID alder = bench.id(2).value();
    const DisplayID birch = bench.id(3).value();
};

TEST_F(LinuxDisplayServicesTest, ListsThePluggedInThatHaveAPicture) {
    EXPECT_THAT(displays().onlineDisplays(), UnorderedElementsAre(panel, alder, birch));
    hardware().unplug(2);
    EXPECT_THAT(displays().onlineDisplays(), UnorderedElementsAre(panel, birch));
    output(3).isLit = false;
    EXPECT_THAT(displays().onlineDisplays(), ElementsAre(panel));
}

TEST_F(LinuxDisplayServicesTest, ListsThemInTheKernelsOrder) {
    // By their connectors: DP-1, HDMI-A-2, eDP-1.
    EXPECT_THAT(displays().onlineDisplays(), ElementsAre(alder, birch, panel));
}

TEST_F(LinuxDisplayServicesTest, BelievesTheKernelWhereTheDesktopDoesNotKnowADisplay) {
    hardware().desktop.remove(outputName(2));
    hardware().tree.enable(hardware().place(2).connector);
    EXPECT_THAT(displays().onlineDisplays(), UnorderedElementsAre(panel, alder, birch));
    hardware().tree.disable(hardware().place(2).connector);
    EXPECT_THAT(displays().onlineDisplays(), UnorderedElementsAre(panel, birch));
    EXPECT_EQ(displays().vendorNumber(alder), 1000U);
}

TEST_F(LinuxDisplayServicesTest, BelievesTheDesktopMoreThanTheKernel) {
    hardware().tree.disable(hardware().place(2).connector);
    EXPECT_THAT(displays().onlineDisplays(), UnorderedElementsAre(panel, alder, birch));
}

TEST_F(LinuxDisplayServicesTest, CountsNoPanelUnderAClosedLid) {
    hardware().session.closeLid();
    EXPECT_THAT(displays().onlineDisplays(), UnorderedElementsAre(alder, birch));
    EXPECT_TRUE(displays().isBuiltIn(panel));
    hardware().session.openLid();
    EXPECT_THAT(displays().onlineDisplays(), UnorderedElementsAre(panel, alder, birch));
}

TEST_F(LinuxDisplayServicesTest, TellsWhoADisplayIs) {
    EXPECT_EQ(displays().vendorNumber(alder), 1000U);
    EXPECT_EQ(displays().modelNumber(alder), 22U);
    EXPECT_EQ(displays().serialNumber(alder), 102U);
    EXPECT_EQ(displays().screenName(alder), "Alder");
    EXPECT_FALSE(displays().isBuiltIn(alder));
    EXPECT_TRUE(displays().isBuiltIn(panel));
}

TEST_F(LinuxDisplayServicesTest, KnowsNothingOfSomebodyUnknown) {
    const DisplayID nobody = 0xFFFFFF42;
    EXPECT_EQ(displays().vendorNumber(nobody), 0U);
    EXPECT_EQ(displays().modelNumber(nobody), 0U);
    EXPECT_EQ(displays().serialNumber(nobody), 0U);
    EXPECT_EQ(displays().screenName(nobody), std::nullopt);
    EXPECT_FALSE(displays().isBuiltIn(nobody));
    EXPECT_EQ(displays().transferTableCapacity(nobody), 0U);
    EXPECT_EQ(displays().transferTable(nobody, 256), std::nullopt);
    displays().setTransferTable(nobody, FakeDesktop::straightTable(256));
    EXPECT_FALSE(turn(nobody, Output::off));
    EXPECT_FALSE(turn(nobody, Output::on));
    EXPECT_THAT(hardware().desktop.calls, IsEmpty());
}

TEST_F(LinuxDisplayServicesTest, HasAScreenOnlyForWhoIsOnline) {
    EXPECT_TRUE(turn(alder, Output::off));
    bench.loop.run();
    EXPECT_EQ(displays().screenName(alder), std::nullopt);
    EXPECT_EQ(displays().transferTableCapacity(alder), 0U);
    EXPECT_EQ(displays().transferTable(alder, 256), std::nullopt);
    EXPECT_EQ(displays().serialNumber(alder), 102U);
}

TEST_F(LinuxDisplayServicesTest, PutsWhoIsOnlineFirstInTheRegistry) {
    const auto externals = [this] {
        std::vector<DisplayID> ids;
        const auto walk = bench.platform.registry.iterateServicePlane();
        while (const auto entry = walk->next()) {
            if (entry->name() == "DCPAVServiceProxy") ids.push_back(entry->object());
        }
        return ids;
    };
    EXPECT_THAT(externals(), ElementsAre(alder, birch, panel));
    turn(alder, Output::off);
    displays().onlineDisplays();
    EXPECT_THAT(externals(), ElementsAre(birch, panel, alder));
    turn(alder, Output::on);
    displays().onlineDisplays();
    EXPECT_THAT(externals(), ElementsAre(alder, birch, panel));
}

TEST_F(LinuxDisplayServicesTest, HasATableAsLongAsTheOutputs) {
    EXPECT_EQ(displays().transferTableCapacity(alder), 256U);
    EXPECT_EQ(displays().transferTable(alder, 256), FakeDesktop::straightTable(256));
    EXPECT_EQ(displays().transferTable(alder, 1000), FakeDesktop::straightTable(256));
    const auto shorter = displays().transferTable(alder, 10);
    ASSERT_TRUE(shorter);
    for (const auto* channel : {&shorter->red, &shorter->green, &shorter->blue}) {
        EXPECT_EQ(channel->size(), 10U);
    }
}

TEST_F(LinuxDisplayServicesTest, HasNoTableWhereTheDesktopGivesNone) {
    output(2).tableCapacity = 0;
    displays().onlineDisplays();
    EXPECT_EQ(displays().transferTableCapacity(alder), 0U);
    EXPECT_EQ(displays().transferTable(alder, 256), std::nullopt);
    hardware().desktop.hidesTables = true;
    EXPECT_EQ(displays().transferTable(birch, 256), std::nullopt);
}

TEST_F(LinuxDisplayServicesTest, SetsATableOfTheRightLengthOnly) {
    const auto table = FakeDesktop::straightTable(256);
    for (auto channel :
         {&platform::TransferTable::red, &platform::TransferTable::green, &platform::TransferTable::blue}) {
        auto wrong = table;
        (wrong.*channel).pop_back();
        displays().setTransferTable(alder, wrong);
        (wrong.*channel).resize(257);
        displays().setTransferTable(alder, wrong);
    }
    displays().setTransferTable(alder, {});
    EXPECT_THAT(hardware().desktop.calls, IsEmpty());
    displays().setTransferTable(alder, table);
    EXPECT_THAT(hardware().desktop.calls, ElementsAre("table " + outputName(2)));
}

TEST_F(LinuxDisplayServicesTest, GivesTablesBackOnRequest) {
    auto dark = FakeDesktop::straightTable(256);
    std::ranges::fill(dark.red, 0.0F);
    displays().setTransferTable(alder, dark);
    EXPECT_EQ(displays().transferTable(alder, 256), dark);
    displays().restoreColorSyncSettings();
    EXPECT_EQ(displays().transferTable(alder, 256), FakeDesktop::straightTable(256));
}

TEST_F(LinuxDisplayServicesTest, TurnsAnOutputOffWhenTheConfigurationIsCompleted) {
    const auto configuration = displays().beginConfiguration();
    ASSERT_TRUE(configuration);
    EXPECT_EQ(bench.platform.functions.configureEnabled()(*configuration, alder, false), 0);
    EXPECT_TRUE(output(2).isLit);
    EXPECT_TRUE(displays().completeConfiguration(*configuration, 1));
    EXPECT_FALSE(output(2).isLit);
    EXPECT_TRUE(turn(alder, Output::on));
    EXPECT_TRUE(output(2).isLit);
}

TEST_F(LinuxDisplayServicesTest, MakesEveryChangeOfAConfigurationInTheirOrder) {
    const auto configuration = displays().beginConfiguration();
    const auto configure = bench.platform.functions.configureEnabled();
    configure(*configuration, alder, false);
    configure(*configuration, birch, false);
    EXPECT_TRUE(displays().completeConfiguration(*configuration, 1));
    EXPECT_THAT(hardware().desktop.calls, ElementsAre("darken " + outputName(2), "darken " + outputName(3)));
}

TEST_F(LinuxDisplayServicesTest, KeepsConfigurationsApart) {
    const auto first = displays().beginConfiguration();
    const auto second = displays().beginConfiguration();
    ASSERT_NE(*first, *second);
    bench.platform.functions.configureEnabled()(*first, alder, false);
    EXPECT_TRUE(displays().completeConfiguration(*second, 1));
    EXPECT_TRUE(output(2).isLit);
    EXPECT_TRUE(displays().completeConfiguration(*first, 1));
    EXPECT_FALSE(output(2).isLit);
}

TEST_F(LinuxDisplayServicesTest, SaysWhenTheDesktopRefuses) {
    hardware().desktop.refuses = true;
    EXPECT_FALSE(turn(alder, Output::off));
    EXPECT_TRUE(output(2).isLit);
    hardware().desktop.refuses = false;
    turn(alder, Output::off);
    hardware().desktop.refuses = true;
    EXPECT_FALSE(turn(alder, Output::on));
}

TEST_F(LinuxDisplayServicesTest, LeavesTheLastOneThatCanBeSeen) {
    EXPECT_TRUE(turn(alder, Output::off));
    EXPECT_TRUE(turn(panel, Output::off));
    EXPECT_FALSE(turn(birch, Output::off));
    EXPECT_TRUE(output(3).isLit);
}

TEST_F(LinuxDisplayServicesTest, SwitchesNoOutputThatTheDesktopDoesNotKnow) {
    hardware().desktop.remove(outputName(2));
    EXPECT_FALSE(turn(alder, Output::off));
    EXPECT_FALSE(turn(alder, Output::on));
}

TEST_F(LinuxDisplayServicesTest, MakesNoChangeOfADisplayThatHasGoneMeanwhile) {
    const auto configuration = displays().beginConfiguration();
    bench.platform.functions.configureEnabled()(*configuration, alder, false);
    hardware().unplug(2);
    displays().onlineDisplays();
    hardware().desktop.calls.clear();
    EXPECT_FALSE(displays().completeConfiguration(*configuration, 1));
    EXPECT_THAT(hardware().desktop.calls, IsEmpty());
}

TEST_F(LinuxDisplayServicesTest, AnnouncesNothingAtFirst) { EXPECT_EQ(news(), Calls()); }

TEST_F(LinuxDisplayServicesTest, AnnouncesAMonitorThatIsUnpluggedAndPluggedIn) {
    hardware().unplug(2);
    EXPECT_EQ(heard, Calls());
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, removed}}));
    hardware().plug(2);
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, added}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesAnOutputThatIsTurnedOffAndOn) {
    turn(alder, Output::off);
    EXPECT_EQ(heard, Calls());
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, removed}}));
    turn(alder, Output::on);
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, added}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesTheBeginningsOfAllBeforeTheirEnds) {
    hardware().unplug(2);
    hardware().unplug(3);
    EXPECT_EQ(news(), (Calls{{alder, begins}, {birch, begins}, {alder, removed}, {birch, removed}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesWhoGoesBeforeWhoComes) {
    hardware().unplug(2);
    news();
    hardware().unplug(3);
    hardware().plug(2);
    EXPECT_EQ(news(), (Calls{{birch, begins}, {alder, begins}, {birch, removed}, {alder, added}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesManyEventsAtOnceAsOneRound) {
    hardware().unplug(2);
    hardware().events.announce();
    hardware().events.announce();
    hardware().desktop.changed();
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, removed}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesNothingWhenNothingChanged) {
    hardware().events.announce();
    hardware().desktop.changed();
    EXPECT_EQ(news(), Calls());
    hardware().unplug(2);
    hardware().plug(2);
    EXPECT_EQ(news(), Calls());
}

TEST_F(LinuxDisplayServicesTest, AnnouncesTheLid) {
    hardware().session.closeLid();
    EXPECT_EQ(news(), (Calls{{panel, begins}, {panel, removed}}));
    hardware().session.openLid();
    EXPECT_EQ(news(), (Calls{{panel, begins}, {panel, added}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesAnotherModeOrPlace) {
    output(2).place = "1280x720+0+0";
    hardware().desktop.changed();
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, setMode}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesAnotherBusOfAMonitorThatIsTurnedOff) {
    turn(alder, Output::off);
    news();
    hardware().tree.renumber(*hardware().place(2).bus, 9);
    hardware().devices.renumber(*hardware().place(2).bus, 9);
    hardware().events.announce();
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, setMode}}));
}

TEST_F(LinuxDisplayServicesTest, AnnouncesWhatSomebodyHasSeenAlready) {
    hardware().unplug(2);
    displays().onlineDisplays();
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, removed}}));
}

TEST_F(LinuxDisplayServicesTest, TellsEverybodyWhoListens) {
    Calls others;
    displays().onReconfiguration([&](DisplayID display, std::uint32_t flags) {
        if (others.empty()) {
            displays().onReconfiguration(
                [&](DisplayID again, std::uint32_t more) { others.emplace_back(again, more + 100); });
        }
        others.emplace_back(display, flags);
    });
    hardware().unplug(2);
    EXPECT_EQ(news(), (Calls{{alder, begins}, {alder, removed}}));
    EXPECT_EQ(others,
              (Calls{{alder, begins}, {alder, begins + 100}, {alder, removed}, {alder, removed + 100}}));
}

TEST_F(LinuxDisplayServicesTest, LightsWhatItTurnedOffBeforeItTellsWhatHasGone) {
    turn(alder, Output::off);
    turn(panel, Output::off);
    news();
    hardware().unplug(3);
    const Calls calls = news();
    EXPECT_TRUE(output(2).isLit);
    EXPECT_TRUE(output(1).isLit);
    EXPECT_THAT(calls, UnorderedElementsAre(std::pair(alder, begins), std::pair(panel, begins),
                                            std::pair(birch, begins), std::pair(birch, removed),
                                            std::pair(alder, added), std::pair(panel, added)));
}

TEST_F(LinuxDisplayServicesTest, TriesAgainToLightWhereTheDesktopRefused) {
    turn(alder, Output::off);
    turn(panel, Output::off);
    news();
    hardware().desktop.refuses = true;
    hardware().unplug(3);
    bench.loop.runFor(10s);
    EXPECT_FALSE(output(2).isLit);
    hardware().desktop.refuses = false;
    bench.loop.runFor(1s);
    EXPECT_TRUE(output(2).isLit);
    EXPECT_FALSE(bench.loop.nextDue());
}

TEST_F(LinuxDisplayServicesTest, ListensToNobodyOnceItHasGone) {
    hardware().events.announce();
    bench.linux.reset();
    EXPECT_FALSE(hardware().events.isHeard());
    hardware().desktop.changed();
    hardware().session.closeLid();
    bench.loop.run();
    EXPECT_EQ(heard, Calls());
}

// Two panels: a laptop whose second screen is one too.
TEST(LinuxDisplayServices, TakesTheFirstOfSeveralPanelsForTheBuiltInOne) {
    LinuxBench bench;
    bench.hardware.tree.addConnector("card0-eDP-2");
    const EDIDBytes edid = edidOf(1552, 8, 1, "Second");
    bench.hardware.tree.plug("card0-eDP-2", edid);
    bench.hardware.desktop.add(FakeDesktop::outputOf("eDP-2", edid), "card0-eDP-2");
    const auto online = bench.platform.displays.onlineDisplays();
    ASSERT_EQ(online.size(), 4U);
    EXPECT_EQ(
        std::ranges::count_if(online, [&](DisplayID id) { return bench.platform.displays.isBuiltIn(id); }),
        1);
    EXPECT_TRUE(bench.platform.displays.isBuiltIn(*bench.id(1)));
    bench.hardware.session.closeLid();
    EXPECT_EQ(bench.platform.displays.onlineDisplays().size(), 2U);
}

using LinuxDisplayServicesDeathTest = test::DeathTest;

TEST_F(LinuxDisplayServicesDeathTest, StopsAtAConfigurationThatHasEnded) {
    LinuxBench bench;
    auto& displays = bench.platform.displays;
    const auto ended = displays.beginConfiguration();
    displays.cancelConfiguration(*ended);
    EXPECT_DEATH(displays.completeConfiguration(*ended, 1), "not in progress");
    EXPECT_DEATH(displays.cancelConfiguration(*ended), "not in progress");
    const auto completed = displays.beginConfiguration();
    displays.completeConfiguration(*completed, 1);
    EXPECT_DEATH(displays.completeConfiguration(*completed, 1), "not in progress");
    EXPECT_DEATH(bench.platform.functions.configureEnabled()(*completed, 1, false), "not in progress");
    EXPECT_DEATH(displays.cancelConfiguration(nullptr), "not in progress");
}

}  // namespace
}  // namespace vantrel::linux
