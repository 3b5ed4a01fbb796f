#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macos/MacBench.h"
#include "simulated/DeskBench.h"

namespace vantrel::macos {
namespace {

using namespace std::chrono_literals;
using simulated::added;
using simulated::begins;
using simulated::removed;
using testing::ElementsAre;
using testing::IsEmpty;
using Calls = simulated::DeskBench::Calls;

class MacDisplayServicesTest : public testing::Test {
  protected:
    platform::DisplayServices& displays() { return bench.platform.displays; }
    void failNext(const char* function, unsigned nth = 1) { bench.fake.calls().failNext(function, nth); }
    void listen() {
        displays().onReconfiguration(
            [this](platform::DisplayID display, std::uint32_t flags) { heard.emplace_back(display, flags); });
    }

    MacBench bench;
    Calls heard;
};

TEST_F(MacDisplayServicesTest, ListsNobodyWhenEitherQuestionFails) {
    for (const unsigned nth : {1U, 2U}) {
        failNext("CGGetOnlineDisplayList", nth);
        EXPECT_THAT(displays().onlineDisplays(), IsEmpty());
    }
    EXPECT_THAT(displays().onlineDisplays(), ElementsAre(1, 2, 3));
}

TEST_F(MacDisplayServicesTest, ListsThoseWhoAreLeftWhenOneGoesBetweenTheQuestions) {
    bench.fake.beforeListing([this] { bench.computer.world().unplug(3); });
    EXPECT_THAT(displays().onlineDisplays(), ElementsAre(1, 2));
}

TEST_F(MacDisplayServicesTest, ListsNoMoreThanItAskedForWhenOneComesBetweenTheQuestions) {
    bench.computer.world().unplug(3);
    bench.fake.beforeListing([this] { bench.computer.world().plug(3); });
    EXPECT_THAT(displays().onlineDisplays(), ElementsAre(1, 2));
}

TEST_F(MacDisplayServicesTest, TellsWhoADisplayIs) {
    EXPECT_TRUE(displays().isBuiltIn(1));
    EXPECT_FALSE(displays().isBuiltIn(2));
    EXPECT_EQ(displays().vendorNumber(2), 1000);
    EXPECT_EQ(displays().modelNumber(2), 22);
    EXPECT_EQ(displays().serialNumber(2), 102);
    EXPECT_EQ(displays().screenName(2), "Alder");
}

TEST_F(MacDisplayServicesTest, ReadsNoMoreSamplesThanItAskedFor) {
    const auto table = displays().transferTable(2, 10);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->red.size(), 10);
    failNext("CGGetDisplayTransferByTable");
    EXPECT_EQ(displays().transferTable(2, 10), std::nullopt);
}

TEST_F(MacDisplayServicesTest, ReadsNoMoreSamplesThanThereAre) {
    const auto table = displays().transferTable(2, 1000);
    ASSERT_TRUE(table);
    EXPECT_EQ(table, bench.fake.desk().displays.transferTable(2, 1000));
    EXPECT_EQ(table->red.size(), 256);
}

TEST_F(MacDisplayServicesTest, KeepsTheChannelsApart) {
    const platform::TransferTable warm{{0, 1}, {0, 0.5F}, {0, 0.25F}};
    displays().setTransferTable(2, warm);
    EXPECT_EQ(bench.fake.desk().displays.transferTable(2, 256), warm);
    EXPECT_EQ(displays().transferTable(2, 256), warm);
}

TEST_F(MacDisplayServicesTest, IgnoresATableWhoseChannelsDifferInLength) {
    const auto before = displays().transferTable(2, 256);
    displays().setTransferTable(2, {{0, 1}, {0, 1}, {0}});
    displays().setTransferTable(2, {{0, 1}, {0}, {0, 1}});
    EXPECT_EQ(displays().transferTable(2, 256), before);
    EXPECT_EQ(bench.fake.calls().count("CGSetDisplayTransferByTable"), 0);
}

TEST_F(MacDisplayServicesTest, BeginsNoConfigurationThatTheSystemRefuses) {
    bench.computer.refuse(simulated::Refusal::begin);
    EXPECT_FALSE(displays().beginConfiguration());
}

TEST_F(MacDisplayServicesTest, ChangesNothingByACancelledConfiguration) {
    const auto configuration = displays().beginConfiguration();
    ASSERT_TRUE(configuration);
    EXPECT_EQ(bench.platform.functions.configureEnabled()(*configuration, 2, false), 0);
    displays().cancelConfiguration(*configuration);
    bench.loop.runFor(10s);
    EXPECT_TRUE(bench.computer.world().isOnline(2));
}

TEST_F(MacDisplayServicesTest, SaysThatAConfigurationWasNotTaken) {
    const auto configuration = displays().beginConfiguration();
    bench.computer.refuse(simulated::Refusal::complete);
    EXPECT_FALSE(displays().completeConfiguration(*configuration, MacDisplayServices::configureForSession));
    EXPECT_EQ(bench.computer.openConfigurations(), 0);
}

TEST_F(MacDisplayServicesTest, TellsEveryPhaseOfAReconfigurationToEveryListener) {
    listen();
    listen();
    bench.computer.world().unplug(3);
    bench.loop.runFor(1s);
    EXPECT_EQ(heard, (Calls{{3, begins}, {3, begins}, {3, removed}, {3, removed}}));
    heard.clear();
    bench.computer.world().plug(3);
    bench.loop.runFor(1s);
    EXPECT_EQ(heard, (Calls{{3, begins}, {3, begins}, {3, added}, {3, added}}));
    EXPECT_EQ(bench.fake.calls().count("CGDisplayRegisterReconfigurationCallback"), 1);
}

TEST_F(MacDisplayServicesTest, TellsAListenerThatAnotherHasRegisteredMeanwhile) {
    int calls = 0;
    // The callbacks move elsewhere meanwhile, and what this one holds with them.
    displays().onReconfiguration([this, &calls](platform::DisplayID, std::uint32_t) {
        for (int listener = 0; listener < 10; ++listener) listen();
        ++calls;
    });
    bench.fake.announce(2, added);
    bench.loop.runFor(1s);
    EXPECT_EQ(heard, Calls(10, {2, added}));
    EXPECT_EQ(calls, 1);
}

TEST_F(MacDisplayServicesTest, TellsNobodyBeforeTheMainLoopRuns) {
    listen();
    bench.fake.announce(2, added);
    EXPECT_THAT(heard, IsEmpty());
    bench.loop.runFor(1s);
    EXPECT_EQ(heard, (Calls{{2, added}}));
}

TEST_F(MacDisplayServicesTest, BringsNewsFromAnotherThreadToTheMainLoop) {
    listen();
    bench.scheduler.startThread("window server", runtime::QualityOfService::userInitiated,
                                [this] { bench.fake.announce(2, removed); });
    bench.scheduler.finishThreads();
    EXPECT_THAT(heard, IsEmpty());
    bench.loop.runFor(1s);
    EXPECT_EQ(heard, (Calls{{2, removed}}));
}

TEST_F(MacDisplayServicesTest, ForgetsNewsThatAreStillOnTheirWayWhenItGoes) {
    auto services = std::make_unique<MacDisplayServices>(bench.loop);
    services->onReconfiguration([this](platform::DisplayID id, std::uint32_t) { heard.emplace_back(id, 0); });
    bench.fake.announce(2, added);
    services.reset();
    bench.loop.runFor(1s);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(MacDisplayServicesTest, RegistersAgainAfterARefusal) {
    failNext("CGDisplayRegisterReconfigurationCallback");
    listen();
    listen();
    bench.fake.announce(2, added);
    bench.loop.runFor(1s);
    EXPECT_EQ(heard.size(), 2);
}

}  // namespace
}  // namespace vantrel::macos
