#include <filesystem>
#include <linux/i2c.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include "linux/kernel/KernelBench.h"
#include "linux/kernel/OpenedNode.h"
#include "runtime/RealScheduler.h"

namespace vantrel::test {
namespace {

using namespace std::chrono_literals;
using std::filesystem::exists;

constexpr const char* drm = "/sys/class/drm/";
constexpr const char* backlight = "/sys/class/backlight/intel_backlight/";

class EmulatedKernelTest : public KernelBench {};

std::string textOf(const EDIDBlock& block) { return {block.begin(), block.end()}; }

TEST_F(EmulatedKernelTest, ShowsEachDisplayAsAConnector) {
    for (const char* connector : {"card0-eDP-1/", "card0-HDMI-A-1/", "card0-DP-1/", "card0-DP-2/"}) {
        EXPECT_EQ(contents(std::string(drm) + connector + "status"), "connected\n") << connector;
        EXPECT_EQ(contents(std::string(drm) + connector + "enabled"), "enabled\n") << connector;
        EXPECT_EQ(contents(std::string(drm) + connector + "dpms"), "On\n") << connector;
    }
    EXPECT_EQ(contents(drm + kernel.connector(3) + "/edid"), textOf(emulatedEDID(monitorPlan(3, "Birch"))));
}

TEST_F(EmulatedKernelTest, LeadsFromAConnectorToItsBusAsItsWiringSays) {
    EXPECT_EQ(std::filesystem::read_symlink("/sys/class/drm/card0-HDMI-A-1/ddc").filename(), "i2c-5");
    EXPECT_TRUE(exists("/sys/class/drm/card0-HDMI-A-1/ddc/i2c-dev/i2c-5"));
    EXPECT_TRUE(exists("/sys/class/drm/card0-DP-1/i2c-6/i2c-dev/i2c-6"));
    EXPECT_FALSE(exists("/sys/class/drm/card0-DP-1/ddc"));
    EXPECT_FALSE(exists("/sys/class/drm/card0-DP-2/i2c-7"));
    EXPECT_FALSE(exists("/sys/class/drm/card0-DP-2/ddc"));
    EXPECT_TRUE(exists("/sys/class/i2c-dev/i2c-7"));
}

TEST_F(EmulatedKernelTest, WiresADisplayAsItIsTold) {
    const EmulatedKernel other(deskOf({monitorPlan(2, "Alder")}), virtualLoop.loop, virtualLoop.time,
                               EmulatedKernel::BusTime::addsUp, {{2, EmulatedKernel::Wiring::none}});
    EXPECT_EQ(other.connector(2), "card0-DP-1");
    EXPECT_FALSE(exists("/sys/class/drm/card0-DP-1/ddc"));
}

TEST_F(EmulatedKernelTest, ShowsItsNodesAsDevicesOfI2C) {
    struct stat status {};
    ASSERT_EQ(::stat("/dev/i2c-5", &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
    EXPECT_EQ(major(status.st_rdev), 89U);
    EXPECT_EQ(minor(status.st_rdev), 5U);
}

TEST_F(EmulatedKernelTest, ShowsADisplayThatIsUnpluggedWithoutAnEDID) {
    kernel.unplug(2);
    const std::string connector = drm + kernel.connector(2);
    EXPECT_EQ(contents(connector + "/status"), "disconnected\n");
    EXPECT_EQ(contents(connector + "/enabled"), "disabled\n");
    EXPECT_EQ(contents(connector + "/edid"), "");
    kernel.plug(2);
    EXPECT_EQ(contents(connector + "/status"), "connected\n");
    EXPECT_EQ(contents(connector + "/enabled"), "enabled\n");
    EXPECT_EQ(contents(connector + "/edid"), textOf(emulatedEDID(monitorPlan(2, "Alder"))));
}

TEST_F(EmulatedKernelTest, ShowsAnOutputThatIsOffAsConnected) {
    kernel.setOutput(2, EmulatedKernel::Output::off);
    const std::string connector = drm + kernel.connector(2);
    EXPECT_EQ(contents(connector + "/status"), "connected\n");
    EXPECT_EQ(contents(connector + "/enabled"), "disabled\n");
    EXPECT_EQ(contents(connector + "/dpms"), "Off\n");
    EXPECT_EQ(contents(connector + "/edid").size(), 128U);
    kernel.setOutput(2, EmulatedKernel::Output::on);
    EXPECT_EQ(contents(connector + "/enabled"), "enabled\n");
}

TEST_F(EmulatedKernelTest, TakesADisplayFromItsConnectorWhileItsMonitorIsOffTheBus) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    simulated::InputSwitch& manner = plan.monitor->personality.inputSwitch;
    manner.time = 2s;
    manner.pulse = 500ms;
    manner.pulseAfter = 300ms;
    EmulatedKernel other(deskOf({plan}), virtualLoop.loop, virtualLoop.time, EmulatedKernel::BusTime::addsUp);
    const std::string status = other.connectorPath(2) + "/status";
    const OpenedNode node(other.node(2), 0x37);
    EXPECT_EQ(node.set(0x60, otherInput), 0);
    virtualLoop.loop.runFor(299ms);
    EXPECT_EQ(contents(status), "connected\n");
    virtualLoop.loop.runFor(2ms);
    EXPECT_EQ(contents(status), "disconnected\n");
    EXPECT_EQ(node.ask(0x10), ENXIO);
    virtualLoop.loop.runFor(500ms);
    EXPECT_EQ(contents(status), "connected\n");
    EXPECT_EQ(node.ask(0x10), 0);
}

TEST_F(EmulatedKernelTest, HasABacklightThatIsWhatIsWrittenToIt) {
    EXPECT_EQ(contents(std::string(backlight) + "type"), "raw\n");
    EXPECT_EQ(contents(std::string(backlight) + "max_brightness"), "96000\n");
    EXPECT_EQ(contents(std::string(backlight) + "brightness"), "48000\n");
    std::ofstream(std::string(backlight) + "brightness") << "12000";
    EXPECT_EQ(kernel.backlight(), 12000);
    EXPECT_EQ(contents(std::string(backlight) + "actual_brightness"), "12000");
}

TEST_F(EmulatedKernelTest, KeepsABacklightFromWhoMayNotWriteToIt) {
    kernel.denyBacklight();
    EXPECT_FALSE(std::ofstream(std::string(backlight) + "brightness"));
    kernel.allowBacklight();
    EXPECT_TRUE(std::ofstream(std::string(backlight) + "brightness"));
}

TEST_F(EmulatedKernelTest, HasNoBacklightWithoutAPanel) {
    const EmulatedKernel other(deskOf({monitorPlan(2, "Alder")}), virtualLoop.loop, virtualLoop.time,
                               EmulatedKernel::BusTime::addsUp);
    EXPECT_FALSE(exists("/sys/class/backlight"));
    EXPECT_EQ(other.backlightPath(), std::nullopt);
}

TEST_F(EmulatedKernelTest, HasBusesThatLeadToNoDisplayAndCountsWhatIsWrittenThere) {
    EXPECT_EQ(contents("/sys/class/i2c-dev/i2c-0/name"), "SMBus adapter at efa0\n");
    unsigned long functions = 0;
    const OpenedNode management("/dev/i2c-0", 0x37);
    EXPECT_EQ(::ioctl(management.descriptor(), I2C_FUNCS, &functions), 0);
    EXPECT_EQ(functions & I2C_FUNC_I2C, 0U);
    EXPECT_EQ(kernel.strayWrites(), 0U);
    EXPECT_EQ(management.ask(0x10), EOPNOTSUPP);
    EXPECT_EQ(kernel.strayWrites(), 1U);
    const OpenedNode controller("/dev/i2c-1", 0x37);
    EXPECT_EQ(controller.ask(0x10), ENXIO);
    EXPECT_EQ(kernel.strayWrites(), 2U);
}

TEST_F(EmulatedKernelTest, TakesABusAwayWithItsNodeAndItsFolders) {
    for (const platform::DisplayID display : {2U, 3U, 4U}) {
        const std::string node = kernel.node(display);
        const std::string folder = "/sys/class/i2c-dev" + node.substr(node.rfind('/'));
        kernel.removeBus(display);
        EXPECT_EQ(kernel.busNumber(display), std::nullopt);
        EXPECT_EQ(OpenedNode(node).error(), ENOENT);
        EXPECT_FALSE(exists(folder));
        EXPECT_FALSE(std::filesystem::is_symlink(folder));
        kernel.restoreBus(display);
        EXPECT_TRUE(exists(folder));
        EXPECT_EQ(OpenedNode(node, 0x37).ask(0x10), 0);
    }
    EXPECT_TRUE(exists("/sys/class/drm/card0-HDMI-A-1/ddc/i2c-dev/i2c-5"));
}

TEST_F(EmulatedKernelTest, SaysNoDeviceToWhoHasABusOpenThatHasGone) {
    const OpenedNode node(kernel.node(2), 0x37);
    kernel.removeBus(2);
    EXPECT_EQ(node.ask(0x10), ENODEV);
    EXPECT_EQ(node.select(0x37), ENODEV);
    kernel.restoreBus(2);
    EXPECT_EQ(node.ask(0x10), ENODEV);
    EXPECT_EQ(OpenedNode(kernel.node(2), 0x37).ask(0x10), 0);
}

TEST_F(EmulatedKernelTest, BringsABusBackUnderAnotherNumber) {
    kernel.removeBus(2);
    kernel.restoreBus(2, 11);
    EXPECT_EQ(kernel.busNumber(2), 11);
    EXPECT_EQ(OpenedNode("/dev/i2c-5").error(), ENOENT);
    EXPECT_EQ(std::filesystem::read_symlink("/sys/class/drm/card0-HDMI-A-1/ddc").filename(), "i2c-11");
    const OpenedNode node("/dev/i2c-11", 0x37);
    EXPECT_EQ(node.set(0x10, 33), 0);
    EXPECT_EQ(kernel.monitor(2).value(0x10), 33);
}

TEST_F(EmulatedKernelTest, KeepsANodeFromWhoMayNotOpenIt) {
    kernel.denyNode(2);
    EXPECT_EQ(OpenedNode(kernel.node(2)).error(), EACCES);
    EXPECT_EQ(OpenedNode(kernel.node(3)).error(), 0);
    kernel.allowNode(2);
    EXPECT_EQ(OpenedNode(kernel.node(2)).error(), 0);
}

TEST_F(EmulatedKernelTest, HangsOneBusWhileTheOthersAnswer) {
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop(scheduler);
    EmulatedKernel other(desk(), loop, scheduler, EmulatedKernel::BusTime::isOwed);
    int result = -1;
    other.hang(2, [&] {
        EXPECT_EQ(OpenedNode(other.node(3), 0x37).ask(0x10), 0);
        EXPECT_EQ(other.monitor(2).counters().writes, 0U);
        EXPECT_EQ(result, -1);
        other.resume(2);
    });
    scheduler.startThread("user", runtime::QualityOfService::userInitiated, [&, poster = loop.poster()] {
        result = OpenedNode(other.node(2), 0x37).ask(0x10);
        poster.post([&] { loop.quit(); });
    });
    loop.run();
    scheduler.finishThreads();
    EXPECT_EQ(result, 0);
    EXPECT_EQ(other.monitor(2).counters().writes, 1U);
    EXPECT_EQ(OpenedNode(other.node(2), 0x37).ask(0x10), 0);
}

TEST_F(EmulatedKernelTest, LetsATransferTakeItsTimeWhereTimePasses) {
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop(scheduler);
    EmulatedKernel other(desk(), loop, scheduler, EmulatedKernel::BusTime::isOwed);
    other.bus(2).setLatency(50ms);
    const OpenedNode node(other.node(2), 0x37);
    const auto start = scheduler.now();
    EXPECT_EQ(node.ask(0x10), 0);
    EXPECT_EQ(node.answer().at(9), 50);
    EXPECT_GE(scheduler.now() - start, 100ms);
}

TEST_F(EmulatedKernelTest, AddsTheTimeOfTransfersUpForItsMonitorWhereTimeStandsStill) {
    kernel.bus(2).setLatency(40ms);
    const OpenedNode slow(kernel.node(2), 0x37);
    EXPECT_EQ(slow.ask(0x10), 0);
    EXPECT_EQ(slow.answer(), (OpenedNode::Bytes{0x6E, 0x88, 0x02, 0x00, 0x10, 0, 0, 100, 0, 50, 0xF2}));
    const OpenedNode fast(kernel.node(3), 0x37);
    EXPECT_EQ(fast.ask(0x10), 0);
    EXPECT_EQ(fast.answer(3), (OpenedNode::Bytes{0x6E, 0x80, 0xBE}));
    EXPECT_EQ(virtualLoop.elapsed(), 0ms);
}

}  // namespace
}  // namespace vantrel::test
