#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <utility>

#include "linux/LinuxBench.h"
#include "platform/AVService.h"
#include "platform/DisplayToggler.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using platform::DisplayToggler::Output;
using testing::ElementsAre;
using testing::IsEmpty;

class LinuxPlatformTest : public testing::Test {
  protected:
    LinuxHardware& hardware() { return bench.hardware; }
    Desktop::Output& output(platform::DisplayID display) {
        return hardware().desktop.output(hardware().place(display).output);
    }
    bool turn(platform::DisplayID display, Output wanted) {
        return platform::DisplayToggler::setEnabled(bench.platform.displays, bench.platform.functions,
                                                    *bench.id(display), wanted);
    }
    void dim(platform::DisplayID display) {
        auto table = FakeDesktop::straightTable(256);
        for (float& sample : table.red) sample /= 2;
        bench.platform.displays.setTransferTable(*bench.id(display), table);
    }
    std::optional<platform::TransferTable> table(platform::DisplayID display) {
        return hardware().desktop.table(hardware().place(display).output);
    }
    // The program ends without a word, and another one starts on the same desktop.
    void crash() {
        const bool kept = std::exchange(hardware().desktop.refusesTables, true);
        restart();
        hardware().desktop.refusesTables = kept;
    }
    void restart() {
        bench.linux.reset();
        start();
    }
    void start() {
        bench.linux.emplace(bench.parts, bench.log, bench.time, bench.loop);
        // What was handed out refers to the objects before.
        again.emplace(bench.linux->platform());
    }

    LinuxBench bench;
    std::optional<platform::Platform> again;
};

TEST_F(LinuxPlatformTest, HandsOutWhatItWasGiven) {
    EXPECT_EQ(&bench.platform.defaults, &bench.defaults);
    EXPECT_EQ(&bench.platform.loginItem, &bench.loginItem);
    EXPECT_EQ(&bench.platform.localizer, &bench.localizer);
    EXPECT_EQ(&bench.platform.mainLoop, &bench.loop);
}

TEST_F(LinuxPlatformTest, LogsIntoTheSinkThatItWasGiven) {
    hardware().desktop.refuses = true;
    turn(2, Output::off);
    ASSERT_FALSE(bench.log.lines().empty());
    EXPECT_EQ(bench.log.lines().back().category, platform::Log::display);
}

TEST_F(LinuxPlatformTest, TellsWhoWaitsForItThatTheComputerHasWoken) {
    int woken = 0;
    bench.platform.workspace.onWake([&] { ++woken; });
    hardware().session.wake();
    EXPECT_EQ(woken, 1);
}

TEST_F(LinuxPlatformTest, CountsTheHandlesThatWereTaken) {
    {
        const platform::AVService service(bench.platform.registry,
                                          bench.platform.functions.avCreate()(nullptr, *bench.id(2)));
        EXPECT_EQ(bench.linux->liveServices(), 1U);
    }
    EXPECT_EQ(bench.linux->liveServices(), 0U);
}

TEST_F(LinuxPlatformTest, GivesBackTheTransferTablesWhenItGoes) {
    dim(2);
    EXPECT_NE(table(2), FakeDesktop::straightTable(256));
    bench.linux.reset();
    EXPECT_EQ(table(2), FakeDesktop::straightTable(256));
}

TEST_F(LinuxPlatformTest, GivesBackTheTablesThatACrashedOneSet) {
    dim(2);
    crash();
    EXPECT_NE(table(2), FakeDesktop::straightTable(256));
    again->displays.restoreColorSyncSettings();
    EXPECT_EQ(table(2), FakeDesktop::straightTable(256));
}

TEST_F(LinuxPlatformTest, LeavesOutputsTurnedOffWhenItGoes) {
    ASSERT_TRUE(turn(2, Output::off));
    bench.linux.reset();
    EXPECT_FALSE(output(2).isLit);
    EXPECT_THAT(bench.memory.darkened(), ElementsAre(testing::Key(hardware().place(2).output)));
}

TEST_F(LinuxPlatformTest, TurnsOnWhatAnotherTurnedOff) {
    output(2).place = "1920x1080+7+9";
    const platform::DisplayID alder = *bench.id(2);
    ASSERT_TRUE(turn(2, Output::off));
    restart();
    EXPECT_TRUE(platform::DisplayToggler::setEnabled(again->displays, again->functions, alder, Output::on));
    EXPECT_EQ(output(2).place, "1920x1080+7+9");
    EXPECT_THAT(bench.memory.darkened(), IsEmpty());
}

TEST_F(LinuxPlatformTest, HasWhatIsTurnedOffGuardedAgainWhenItStarts) {
    const platform::DisplayID alder = *bench.id(2);
    restart();
    EXPECT_EQ(hardware().guard.posts, 0U);
    EXPECT_TRUE(platform::DisplayToggler::setEnabled(again->displays, again->functions, alder, Output::off));
    EXPECT_EQ(hardware().guard.posts, 1U);
    restart();
    EXPECT_EQ(hardware().guard.posts, 2U);
}

TEST_F(LinuxPlatformTest, LightsWhatIsTurnedOffWhenItStartsInTheDark) {
    ASSERT_TRUE(turn(2, Output::off));
    bench.linux.reset();
    hardware().unplug(3);
    hardware().session.closeLid();
    EXPECT_FALSE(output(2).isLit);
    start();
    bench.loop.run();
    EXPECT_TRUE(output(2).isLit);
}

}  // namespace
}  // namespace vantrel::linux
