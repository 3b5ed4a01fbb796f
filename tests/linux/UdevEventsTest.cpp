#include <optional>

#include "linux/kernel/KernelBench.h"
#include "linux/kernel/PolledDescriptors.h"
#include "platform/linux/DescriptorThread.h"
#include "platform/linux/UdevEvents.h"
#include "runtime/RealScheduler.h"

namespace vantrel::linux {
namespace {

class UdevEventsTest : public test::KernelBench {
  protected:
    UdevEventsTest() { listen(); }

    void listen() {
        events->onChange([this] { ++changes; });
    }
    // How often it told of something since the last time.
    int told() {
        descriptors.deliver();
        return std::exchange(changes, 0);
    }

    test::PolledDescriptors descriptors;
    std::optional<UdevEvents> events{std::in_place, descriptors};
    int changes = 0;
};

TEST_F(UdevEventsTest, TellOfADisplayThatIsPluggedOutAndIn) {
    kernel.unplug(2);
    EXPECT_EQ(told(), 1);
    kernel.plug(2);
    EXPECT_EQ(told(), 1);
}

TEST_F(UdevEventsTest, TellOfABusThatGoesAndComes) {
    kernel.removeBus(3);
    EXPECT_EQ(told(), 1);
    kernel.restoreBus(3, 12);
    EXPECT_EQ(told(), 1);
}

TEST_F(UdevEventsTest, TellOnceOfWhatHappenedTogether) {
    kernel.removeBus(3);
    kernel.unplug(2);
    kernel.unplug(4);
    EXPECT_EQ(told(), 1);
    EXPECT_EQ(told(), 0);
}

TEST_F(UdevEventsTest, TellNothingOfOtherDevices) {
    kernel.setBacklight(24000);
    EXPECT_EQ(told(), 0);
    kernel.unplug(2);
    EXPECT_EQ(told(), 1);
}

TEST_F(UdevEventsTest, ForgetWhatHappenedWhileNobodyListened) {
    events->onChange({});
    kernel.unplug(2);
    EXPECT_EQ(told(), 0);
    listen();
    EXPECT_EQ(told(), 0);
    kernel.plug(2);
    EXPECT_EQ(told(), 1);
}

TEST_F(UdevEventsTest, TellNothingAfterTheirEnd) {
    kernel.unplug(2);
    ASSERT_EQ(descriptors.watched(), 1U);
    events.reset();
    EXPECT_EQ(descriptors.watched(), 0U);
    EXPECT_EQ(told(), 0);
    kernel.plug(2);
    EXPECT_EQ(told(), 0);
}

// As in the program, where a thread waits for them.
TEST_F(UdevEventsTest, WakeTheMainLoop) {
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop(scheduler);
    DescriptorThread thread(loop);
    UdevEvents waiting(thread);
    int heard = 0;
    waiting.onChange([&] {
        ++heard;
        loop.quit();
    });
    kernel.unplug(2);
    loop.run();
    EXPECT_EQ(heard, 1);
}

}  // namespace
}  // namespace vantrel::linux
