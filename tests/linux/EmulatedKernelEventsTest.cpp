#include <libudev.h>
#include <poll.h>

#include "linux/kernel/KernelBench.h"

namespace vantrel::test {
namespace {

// What a listener of udev hears.
class EmulatedKernelEventsTest : public KernelBench {
  protected:
    EmulatedKernelEventsTest() { udev_monitor_enable_receiving(monitor.get()); }

    struct Unref {
        void operator()(udev* object) const { udev_unref(object); }
        void operator()(udev_monitor* object) const { udev_monitor_unref(object); }
        void operator()(udev_device* object) const { udev_device_unref(object); }
    };

    static std::string text(const char* text) { return text == nullptr ? "" : text; }

    // All so far: "action subsystem name", with HOTPLUG and SOURCE behind it if they are there.
    std::vector<std::string> events() const {
        std::vector<std::string> found;
        pollfd descriptor{udev_monitor_get_fd(monitor.get()), POLLIN, 0};
        while (::poll(&descriptor, 1, 0) == 1) {
            const std::unique_ptr<udev_device, Unref> device(udev_monitor_receive_device(monitor.get()));
            if (!device) break;
            std::string event = text(udev_device_get_action(device.get())) + ' ' +
                                text(udev_device_get_subsystem(device.get())) + ' ' +
                                text(udev_device_get_sysname(device.get()));
            for (const char* property : {"HOTPLUG", "SOURCE"}) {
                const std::string value = text(udev_device_get_property_value(device.get(), property));
                if (!value.empty()) event += ' ' + std::string(property) + '=' + value;
            }
            found.push_back(event);
        }
        return found;
    }

    std::unique_ptr<udev, Unref> system{udev_new()};
    std::unique_ptr<udev_monitor, Unref> monitor{udev_monitor_new_from_netlink(system.get(), "udev")};
};

using Events = std::vector<std::string>;

TEST_F(EmulatedKernelEventsTest, TellsThatADisplayWasPluggedInOrOut) {
    kernel.unplug(2);
    EXPECT_EQ(events(), (Events{"change drm card0 HOTPLUG=1"}));
    kernel.unplug(2);
    EXPECT_EQ(events(), Events());
    kernel.plug(2);
    EXPECT_EQ(events(), (Events{"change drm card0 HOTPLUG=1"}));
}

TEST_F(EmulatedKernelEventsTest, TellsNothingOfAnOutput) {
    kernel.setOutput(2, EmulatedKernel::Output::off);
    EXPECT_EQ(events(), Events());
}

TEST_F(EmulatedKernelEventsTest, TellsThatABusHasGoneAndComeBack) {
    kernel.removeBus(3);
    EXPECT_EQ(events(), (Events{"remove i2c-dev i2c-6", "remove i2c i2c-6"}));
    kernel.restoreBus(3, 12);
    EXPECT_EQ(events(), (Events{"add i2c i2c-12", "add i2c-dev i2c-12"}));
}

TEST_F(EmulatedKernelEventsTest, TellsThatSomebodyElseChangedTheBacklight) {
    kernel.setBacklight(24000);
    EXPECT_EQ(events(), (Events{"change backlight intel_backlight SOURCE=hotkey"}));
    EXPECT_EQ(contents("/sys/class/backlight/intel_backlight/actual_brightness"), "24000\n");
}

TEST_F(EmulatedKernelEventsTest, ForgetsWhatWasTheEventsOwn) {
    kernel.unplug(2);
    events();
    EXPECT_EQ(contents("/sys/class/drm/card0/uevent").find("HOTPLUG"), std::string::npos);
}

}  // namespace
}  // namespace vantrel::test
