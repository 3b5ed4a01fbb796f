// Buses come and go under the program's hands.
#include <array>
#include <gtest/gtest.h>

#include "linux/LinuxScenario.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;

constexpr std::uint8_t brightness = 0x10;

// Alder, Birch and Cedar name their buses in each of the three ways.
class LinuxReconnectScenario : public LinuxScenario {
  protected:
    static constexpr std::array<platform::DisplayID, 3> monitors{2, 3, 4};

    LinuxReconnectScenario()
        : LinuxScenario(test::deskOf({test::panelPlan(), test::monitorPlan(2, "Alder"),
                                      test::monitorPlan(3, "Birch"), test::monitorPlan(4, "Cedar")})) {}

    // Sets every monitor's brightness to a number of its own, and looks whether it got there.
    void expectAllHear(std::uint16_t number) {
        for (const platform::DisplayID display : monitors) {
            story.drags(display, brightness, {static_cast<std::uint16_t>(number + display)});
        }
        story.waits(5s);
        for (const platform::DisplayID display : monitors) {
            EXPECT_EQ(story.monitor(display).value(brightness), number + display) << display;
        }
    }
};

TEST_F(LinuxReconnectScenario, AMonitorIsPluggedInAgainAndItsBusHasAnotherNumber) {
    for (const platform::DisplayID display : monitors) {
        const auto model = story.model(display);
        hardware().unplug(display);
        story.waits(5s);
        EXPECT_EQ(story.card(display), "none");
        hardware().renumber(display, 20 + display);
        hardware().plug(display);
        story.waits(5s);
        EXPECT_EQ(story.card(display), "on");
        EXPECT_EQ(story.model(display), model);
    }
    expectAllHear(10);
    EXPECT_EQ(computer.liveServices(), 3U);
}

TEST_F(LinuxReconnectScenario, ADriverIsLoadedAgainAndAllNumbersMove) {
    for (const platform::DisplayID display : monitors) hardware().renumber(display, 20 + display);
    hardware().events.announce();
    story.waits(5s);
    expectAllHear(10);
    EXPECT_EQ(computer.liveServices(), 3U);
}

// Each gets the number that another one had: a stale handle must not reach a neighbour.
TEST_F(LinuxReconnectScenario, NumbersAreSwapped) {
    const std::array old{bus(2), bus(3), bus(4)};
    for (const platform::DisplayID display : monitors) hardware().renumber(display, 20 + display);
    for (std::size_t index = 0; index < monitors.size(); ++index) {
        hardware().renumber(monitors.at(index), old.at((index + 1) % old.size()));
    }
    hardware().events.announce();
    story.waits(5s);
    expectAllHear(10);
}

TEST_F(LinuxReconnectScenario, NumbersMoveWhileTheComputerSleeps) {
    computer.sleep();
    story.waits(8h);
    for (const platform::DisplayID display : monitors) hardware().renumber(display, 20 + display);
    computer.wake();
    story.waits(5s);
    expectAllHear(10);
}

TEST_F(LinuxReconnectScenario, CablesAreSwapped) {
    const auto birch = hardware().place(3);
    for (const platform::DisplayID display : {2U, 3U}) hardware().unplug(display);
    story.waits(5s);
    hardware().swap(2, 3);
    for (const platform::DisplayID display : {2U, 3U}) hardware().plug(display);
    story.waits(10s);
    EXPECT_EQ(hardware().place(2).connector, birch.connector);
    // Monitors in other places are other displays to the program, which knows them by their keys.
    for (const auto& external : story.manager().externals()) {
        const platform::DisplayID display =
            external->name() == "Alder" ? 2 : (external->name() == "Birch" ? 3 : 4);
        external->set(*external->feature(brightness), static_cast<std::uint16_t>(30 + display));
    }
    story.waits(5s);
    for (const platform::DisplayID display : monitors) {
        EXPECT_EQ(story.monitor(display).value(brightness), 30 + display) << display;
    }
}

TEST_F(LinuxReconnectScenario, AMonitorThatWasUnpluggedInSleepIsMissedOnWaking) {
    computer.sleep();
    story.waits(8h);
    // Nobody announces anything to a program that sleeps.
    hardware().tree.unplug(hardware().place(2).connector);
    computer.output(2).isConnected = computer.output(2).isLit = false;
    computer.wake();
    story.waits(500ms);
    EXPECT_EQ(story.card(2), "on");
    story.waits(1s);
    EXPECT_EQ(story.card(2), "none");
    EXPECT_EQ(story.card(3), "on");
}

}  // namespace
}  // namespace vantrel::linux
