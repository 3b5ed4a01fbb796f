#include <cerrno>
#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "linux/LinuxBench.h"
#include "platform/DisplayToggler.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Access = DeviceNodes::Access;

class LinuxObstaclesTest : public testing::Test {
  protected:
    LinuxHardware& hardware() { return bench.hardware; }
    unsigned bus(platform::DisplayID display) { return hardware().place(display).bus.value(); }
    // After a look at the desk.
    std::vector<std::string> found() {
        bench.platform.displays.onlineDisplays();
        std::vector<std::string> texts;
        for (const text::Text& text : bench.platform.obstacles.find()) texts.push_back(text.english());
        return texts;
    }
    void takeTables(const std::vector<platform::DisplayID>& displays) {
        for (const platform::DisplayID display : displays) {
            hardware().desktop.output(hardware().place(display).output).tableCapacity = 0;
        }
    }
    // So many messages to the monitor.
    void write(platform::DisplayID display, unsigned times) {
        const void* service = bench.platform.functions.avCreate()(nullptr, *bench.id(display));
        const std::vector<std::uint8_t> request{0x82, 0x01, 0x10, 0xAC};
        while (times-- > 0) bench.platform.functions.avWrite()(service, 0x37, 0x51, request.data(), 4);
        bench.platform.registry.releaseService(service);
    }

    LinuxBench bench;
};

TEST_F(LinuxObstaclesTest, FindsNoneAsARule) {
    EXPECT_THAT(found(), IsEmpty());
    write(2, 1);
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(LinuxObstaclesTest, NamesAMonitorWithoutAControlChannel) {
    hardware().tree.removeAdapter(bus(2));
    EXPECT_THAT(found(), ElementsAre(HasSubstr("Alder has no control channel on this connection.")));
}

TEST_F(LinuxObstaclesTest, NamesTheConnectorOfAMonitorThatTellsNoName) {
    hardware().tree.removeAdapter(bus(2));
    const EDIDBytes nameless = edidOf(1000, 22, 102, "");
    hardware().tree.plug(hardware().place(2).connector, nameless);
    hardware().desktop.plug(hardware().place(2).output, nameless);
    EXPECT_THAT(found(), ElementsAre(HasSubstr("DP-1 has no control channel")));
}

TEST_F(LinuxObstaclesTest, SaysOnceThatAModuleIsMissing) {
    for (const platform::DisplayID display : {2U, 3U})
        hardware().nodes.exceptions[bus(display)] = Access::missing;
    EXPECT_THAT(found(), ElementsAre(HasSubstr("sudo modprobe i2c-dev")));
}

TEST_F(LinuxObstaclesTest, NamesTheGroupThatMayUseTheBus) {
    hardware().nodes.exceptions[bus(2)] = Access::forbidden;
    hardware().nodes.groups[bus(2)] = "wires";
    const std::string node = "/dev/i2c-" + std::to_string(bus(2));
    EXPECT_THAT(found(),
                ElementsAre(testing::AllOf(HasSubstr("(" + node + ")"),
                                           HasSubstr("sudo usermod --append --groups wires $USER"))));
}

TEST_F(LinuxObstaclesTest, SaysHowToGetAGroupWhereOnlyRootMayUseTheBus) {
    hardware().nodes.exceptions[bus(2)] = Access::forbidden;
    EXPECT_THAT(found(), ElementsAre(HasSubstr("sudo apt install i2c-tools && sudo usermod")));
}

// Without the module nobody can be asked where the monitor is, so it seems to be nowhere.
TEST_F(LinuxObstaclesTest, SaysWhyABusThatNothingNamesWasAskedInVain) {
    const unsigned unnamed = bus(2);
    hardware().tree.removeAdapter(unnamed);
    hardware().tree.addAdapter(unnamed, hardware().place(2).connector, SysfsTree::Wiring::none);
    hardware().devices.fail(unnamed, ENOENT);
    hardware().nodes.exceptions[unnamed] = Access::missing;
    EXPECT_THAT(found(), ElementsAre(HasSubstr("sudo modprobe i2c-dev")));
    hardware().devices.fail(unnamed, EACCES);
    hardware().nodes.exceptions[unnamed] = Access::forbidden;
    EXPECT_THAT(found(), ElementsAre(HasSubstr("sudo usermod")));
    hardware().devices.fail(unnamed, ENXIO);
    hardware().nodes.exceptions.clear();
    EXPECT_THAT(found(), ElementsAre(HasSubstr("Alder has no control channel")));
    hardware().devices.fail(unnamed, 0);
    hardware().events.announce();
    bench.loop.runFor(5s);
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(LinuxObstaclesTest, TellsWhoDoesNotAnswer) {
    hardware().devices.fail(bus(2), ENXIO);
    write(2, 7);
    EXPECT_THAT(found(), IsEmpty());
    write(2, 1);
    EXPECT_THAT(found(), ElementsAre(HasSubstr("Alder doesn't answer. Look for DDC/CI")));
    hardware().devices.fail(bus(2), 0);
    write(2, 1);
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(LinuxObstaclesTest, TellsThatADriverHoldsTheChannel) {
    hardware().devices.fail(bus(2), EBUSY);
    write(2, 8);
    EXPECT_THAT(found(),
                ElementsAre(HasSubstr("A driver of the kernel holds the control channel of Alder. To see "
                                      "which, run: readlink /sys/bus/i2c/devices/" +
                                      std::to_string(bus(2)) + "-0037/driver")));
}

TEST_F(LinuxObstaclesTest, TellsOnceThatNoPictureCanBeDimmedInstead) {
    takeTables({1, 2, 3});
    EXPECT_THAT(found(), IsEmpty());
    for (const platform::DisplayID display : {2U, 3U})
        hardware().nodes.exceptions[bus(display)] = Access::missing;
    EXPECT_THAT(found(), ElementsAre(HasSubstr("modprobe"),
                                     HasSubstr("The picture can't be dimmed instead: Fake gives programs")));
}

// The output's own driver lacks it, or the desktop doesn't know the output: another
// session would be no help.
TEST_F(LinuxObstaclesTest, BlamesNoDesktopThatDimsOtherPictures) {
    takeTables({2});
    hardware().nodes.exceptions[bus(2)] = Access::missing;
    EXPECT_THAT(found(), ElementsAre(HasSubstr("modprobe")));
}

TEST_F(LinuxObstaclesTest, LeavesOutWhoIsNotOnline) {
    hardware().nodes.exceptions[bus(2)] = Access::missing;
    platform::DisplayToggler::setEnabled(bench.platform.displays, bench.platform.functions, *bench.id(2),
                                         platform::DisplayToggler::Output::off);
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(LinuxObstaclesTest, ExpectsNoControlChannelOfTheComputersOwnPanel) {
    LinuxHardware& computer = hardware();
    EXPECT_FALSE(computer.place(1).bus);
    EXPECT_TRUE(bench.platform.displays.isBuiltIn(*bench.id(1)));
    EXPECT_THAT(found(), IsEmpty());
}

}  // namespace
}  // namespace vantrel::linux
