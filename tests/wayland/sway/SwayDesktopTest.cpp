#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Sway.h"
#include "platform/linux/DescriptorThread.h"
#include "platform/linux/wayland/WaylandDesktop.h"
#include "runtime/Fatal.h"
#include "runtime/MainLoop.h"
#include "runtime/RealScheduler.h"

namespace vantrel::wayland {
namespace {

std::string environment(const char* name) {
    const char* const value = std::getenv(name);
    runtime::require(value != nullptr, "these tests are run by tests/wayland/sway/with_sway.py");
    return value;
}

// On a compositor that was written without this program, and compared with what it tells
// other ones. In real time; nothing depends on how long anything takes.
class SwayDesktopTest : public testing::Test {
  protected:
    // Reached by failures only.
    static constexpr std::chrono::seconds patience{30};

    std::unique_ptr<WaylandDesktop> open(const std::string& socket) {
        return WaylandDesktop::open({socket, "sway", true}, descriptors, scheduler);
    }
    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (const auto& output : desktop->outputs()) names.push_back(output.name);
        return names;
    }
    bool isLit(const std::string& name) {
        const auto outputs = desktop->outputs();
        return std::any_of(outputs.begin(), outputs.end(),
                           [&](const auto& output) { return output.name == name && output.isLit; });
    }
    // Looks only when there is said to be something new; a failure when that never comes.
    template <class Condition>
    void waitForChange(Condition isThere) {
        bool isLate = false;
        const auto end = loop.after(patience, [&] {
            isLate = true;
            loop.quit();
        });
        desktop->onChange([&] {
            if (isThere()) loop.quit();
        });
        if (!isThere()) loop.run();
        desktop->onChange({});
        loop.cancel(end);
        EXPECT_FALSE(isLate);
    }

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    linux::DescriptorThread descriptors{loop};
    std::unique_ptr<WaylandDesktop> desktop = open(environment("WAYLAND_DISPLAY"));
};

TEST_F(SwayDesktopTest, ListsTheOutputsThatOthersAreToldOf) {
    const auto outputs = desktop->outputs();
    const auto told = Sway::outputs();
    const auto enabled = Sway::enabled();
    ASSERT_EQ(outputs.size(), told.size());
    ASSERT_GE(outputs.size(), 3U);
    for (const auto& output : outputs) {
        ASSERT_TRUE(told.contains(output.name)) << output.name;
        EXPECT_TRUE(output.isConnected) << output.name;
        EXPECT_EQ(output.isLit, enabled.at(output.name)) << output.name;
        EXPECT_FALSE(output.monitor.empty()) << output.name;
    }
}

// Neither without a screen nor on an emulated device has sway one to offer.
TEST_F(SwayDesktopTest, HasNoTableWhereSwayRefusesTheControl) {
    const std::vector<float> ramp(256, 0.5F);
    for (const auto& output : desktop->outputs()) {
        EXPECT_EQ(output.tableCapacity, 0U) << output.name;
        EXPECT_EQ(desktop->table(output.name), std::nullopt) << output.name;
        EXPECT_FALSE(desktop->setTable(output.name, {ramp, ramp, ramp})) << output.name;
    }
    EXPECT_TRUE(desktop->isThere());
}

TEST_F(SwayDesktopTest, HasGoneWhenSwayHasDied) {
    desktop = open(environment("VANTREL_MORTAL_DISPLAY"));
    ASSERT_NE(desktop, nullptr);
    EXPECT_TRUE(desktop->isThere());
    const std::string number = environment("VANTREL_MORTAL_COMPOSITOR");
    pid_t process = 0;
    std::from_chars(number.data(), number.data() + number.size(), process);
    ASSERT_GT(process, 1);
    ASSERT_EQ(::kill(process, SIGKILL), 0);
    waitForChange([&] { return !desktop->isThere(); });
    EXPECT_TRUE(desktop->outputs().empty());
    EXPECT_FALSE(desktop->canSwitch());
    EXPECT_FALSE(desktop->darken("HEADLESS-1"));
    EXPECT_FALSE(desktop->light("HEADLESS-1", std::nullopt));
}

class HeadlessSwayDesktopTest : public SwayDesktopTest {};

TEST_F(HeadlessSwayDesktopTest, TellsOfAnOutputThatComes) {
    const auto before = names();
    Sway::tell("create_output");
    waitForChange([&] { return names().size() == before.size() + 1; });
    EXPECT_EQ(Sway::outputs().size(), before.size() + 1);
}

// There, no output can be turned off.
TEST_F(HeadlessSwayDesktopTest, SaysSoWhenSwayRefuses) {
    EXPECT_TRUE(desktop->canSwitch());
    const auto before = Sway::outputs();
    for (const auto& [name, output] : before) {
        ASSERT_FALSE(Sway::takes("--output " + name + " --off"));
        EXPECT_FALSE(desktop->darken(name)) << name;
        EXPECT_EQ(Sway::outputs(), before) << name;
    }
    EXPECT_FALSE(desktop->darken("HEADLESS-99"));
    EXPECT_TRUE(desktop->isThere());
}

// On a graphics device, as on a user's computer.
class SwitchableSwayDesktopTest : public SwayDesktopTest {
  protected:
    void SetUp() override {
        int x = 0;
        for (const std::string& name : names()) {
            Sway::tell("output " + name + " enable mode 1024x768 scale 1 transform normal position " +
                       std::to_string(x) + " 0");
            x += 1024;
        }
        all = names();
        waitForChange([&] { return std::all_of(all.begin(), all.end(), [&](auto& n) { return isLit(n); }); });
    }

    // An emulated computer takes longer for a turned picture than anybody waits.
    static bool comesTo(const std::string& name, bool isLit) {
        for (int look = 0; look < 20; ++look) {
            if (Sway::outputs().at(name).isActive == isLit) return true;
        }
        return false;
    }

    std::vector<std::string> all;
};

TEST_F(SwitchableSwayDesktopTest, BringsAnOutputBackAsItWas) {
    ASSERT_TRUE(desktop->canSwitch());
    Sway::tell("output " + all.at(1) + " mode 800x600 scale 1.5 transform 90 position 1100 -50");
    const auto before = Sway::outputs();
    for (const std::string& name : all) {
        desktop = open(environment("WAYLAND_DISPLAY"));
        const auto arrangement = desktop->arrangement(name);
        ASSERT_TRUE(arrangement);
        ASSERT_TRUE(desktop->darken(name) || comesTo(name, false));
        EXPECT_FALSE(isLit(name));
        auto expected = before;
        expected[name].isActive = false;
        expected[name].picture.clear();
        EXPECT_EQ(Sway::outputs(), expected) << name;
        // It is another run of the program that brings it back.
        desktop = open(environment("WAYLAND_DISPLAY"));
        ASSERT_TRUE(desktop->light(name, arrangement) || comesTo(name, true));
        EXPECT_TRUE(isLit(name));
        EXPECT_EQ(Sway::outputs(), before) << name;
    }
}

TEST_F(SwitchableSwayDesktopTest, LightsANewcomerBesideTheOthers) {
    ASSERT_TRUE(desktop->darken(all.front()));
    ASSERT_TRUE(desktop->light(all.front(), std::nullopt));
    EXPECT_TRUE(isLit(all.front()));
    EXPECT_TRUE(Sway::outputs().at(all.front()).isActive);
}

TEST_F(SwitchableSwayDesktopTest, TellsWhatAnotherProgramTurnsOffAndOn) {
    const std::string& name = all.back();
    ASSERT_TRUE(Sway::takes("--output " + name + " --off"));
    waitForChange([&] { return !isLit(name); });
    EXPECT_FALSE(Sway::enabled().at(name));
    ASSERT_TRUE(Sway::takes("--output " + name + " --on"));
    waitForChange([&] { return isLit(name); });
}

}  // namespace
}  // namespace vantrel::wayland
