#include <cerrno>
#include <unistd.h>

#include "linux/kernel/KernelBench.h"
#include "linux/kernel/OpenedNode.h"
#include "platform/linux/KernelI2C.h"
#include "runtime/RealScheduler.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using test::EmulatedKernel;
using Bytes = test::OpenedNode::Bytes;

constexpr std::uint8_t displayChip = 0x37;
constexpr std::uint8_t edidChip = 0x50;
constexpr std::uint8_t nobody = 0x36;
// More than one message holds.
constexpr std::size_t tooMuch = 9000;

class KernelI2CTest : public test::KernelBench {
  protected:
    I2CDevices::Bus bus() const { return static_cast<I2CDevices::Bus>(kernel.busNumber(2).value()); }
    int ask() { return devices.write(bus(), displayChip, question); }
    int listen() { return devices.read(bus(), displayChip, reply); }
    // What a descriptor would be that is opened now.
    static int nextDescriptor() {
        const int next = ::dup(STDERR_FILENO);
        ::close(next);
        return next;
    }

    const Bytes question = test::OpenedNode::message({0x01, 0x10});
    const Bytes brightness{0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x00, 100, 0x00, 50, 0xF2};
    Bytes reply = Bytes(11);
    KernelI2C devices;
};

TEST_F(KernelI2CTest, AsksAMonitorAndReadsItsReply) {
    EXPECT_EQ(ask(), 0);
    virtualLoop.time.sleepFor(40ms);
    EXPECT_EQ(listen(), 0);
    EXPECT_EQ(reply, brightness);
}

TEST_F(KernelI2CTest, SetsTheMonitorThatIsOnTheBusAndNoOther) {
    EXPECT_EQ(devices.write(bus(), displayChip, test::OpenedNode::message({0x03, 0x10, 0, 33})), 0);
    EXPECT_EQ(kernel.monitor(2).value(0x10), 33);
    EXPECT_EQ(kernel.monitor(3).value(0x10), 50);
}

TEST_F(KernelI2CTest, ReadsWhatIsAtAnotherAddress) {
    Bytes edid(128);
    EXPECT_EQ(devices.write(bus(), edidChip, Bytes{0}), 0);
    EXPECT_EQ(devices.read(bus(), edidChip, edid), 0);
    const auto expected = test::emulatedEDID(test::monitorPlan(2, "Alder"));
    EXPECT_EQ(edid, Bytes(expected.begin(), expected.end()));
}

TEST_F(KernelI2CTest, KeepsTheBusOpenForOneTransferOnly) {
    const int before = nextDescriptor();
    EXPECT_EQ(ask(), 0);
    virtualLoop.time.sleepFor(40ms);
    EXPECT_EQ(listen(), 0);
    EXPECT_EQ(nextDescriptor(), before);
    EXPECT_EQ(kernel.nodeCounters(2), (test::EmulatedNode::Counters{2, 2, 1, 1}));
}

TEST_F(KernelI2CTest, LeavesNoBusOpenAfterAFailure) {
    const int before = nextDescriptor();
    kernel.bus(2).failNext(2, EIO);
    EXPECT_EQ(ask(), EIO);
    EXPECT_EQ(listen(), EIO);
    kernel.bus(2).claim(displayChip);
    EXPECT_EQ(ask(), EBUSY);
    EXPECT_EQ(nextDescriptor(), before);
}

TEST_F(KernelI2CTest, TellsThatNobodyIsAtAnAddress) {
    EXPECT_EQ(devices.write(bus(), nobody, question), ENXIO);
    EXPECT_EQ(devices.read(bus(), nobody, reply), ENXIO);
}

TEST_F(KernelI2CTest, TellsThatNobodyIsThereOnceTheMonitorIsUnplugged) {
    kernel.unplug(2);
    EXPECT_EQ(ask(), ENXIO);
    EXPECT_EQ(listen(), ENXIO);
}

TEST_F(KernelI2CTest, LeavesAnAddressAloneThatADriverHolds) {
    kernel.bus(2).claim(displayChip);
    EXPECT_EQ(ask(), EBUSY);
    EXPECT_EQ(listen(), EBUSY);
    EXPECT_EQ(kernel.bus(2).counters().transfers, 0U);
    kernel.bus(2).release(displayChip);
    EXPECT_EQ(ask(), 0);
}

TEST_F(KernelI2CTest, PassesOnAnErrorOfTheBus) {
    kernel.bus(2).failNext(2, EIO);
    EXPECT_EQ(ask(), EIO);
    EXPECT_EQ(listen(), EIO);
    EXPECT_EQ(ask(), 0);
}

TEST_F(KernelI2CTest, TakesAMessageThatPassedInPartForAnError) {
    Bytes much(tooMuch);
    EXPECT_EQ(devices.write(bus(), edidChip, much), EIO);
    EXPECT_EQ(devices.read(bus(), edidChip, much), EIO);
}

TEST_F(KernelI2CTest, PassesOnThatAControllerIsNotMadeForMessages) {
    ASSERT_TRUE(kernel.otherBuses().contains(0));
    EXPECT_EQ(devices.write(0, displayChip, question), EOPNOTSUPP);
}

TEST_F(KernelI2CTest, TellsThatABusIsNotThere) {
    const I2CDevices::Bus gone = bus();
    kernel.removeBus(2);
    EXPECT_EQ(devices.write(gone, displayChip, question), ENOENT);
    EXPECT_EQ(devices.read(gone, displayChip, reply), ENOENT);
    kernel.restoreBus(2);
    EXPECT_EQ(ask(), 0);
}

TEST_F(KernelI2CTest, TellsThatABusMayNotBeUsed) {
    kernel.denyNode(2);
    EXPECT_EQ(ask(), EACCES);
    EXPECT_EQ(listen(), EACCES);
    EXPECT_EQ(kernel.bus(2).counters().transfers, 0U);
}

// In real time, since a transfer has to be under way while something else happens.
TEST_F(KernelI2CTest, TellsThatABusWentAwayUnderATransfer) {
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop(scheduler);
    EmulatedKernel other(desk(), loop, scheduler, EmulatedKernel::BusTime::isOwed);
    const auto number = static_cast<I2CDevices::Bus>(other.busNumber(2).value());
    int result = -1;
    other.hang(2, [&] {
        EXPECT_EQ(result, -1);
        other.removeBus(2);
        other.restoreBus(2);
        other.resume(2);
    });
    scheduler.startThread("user", runtime::QualityOfService::userInitiated, [&, poster = loop.poster()] {
        result = devices.write(number, displayChip, question);
        poster.post([&] { loop.quit(); });
    });
    loop.run();
    scheduler.finishThreads();
    EXPECT_EQ(result, ENODEV);
    EXPECT_EQ(other.monitor(2).counters().writes, 0U);
    EXPECT_EQ(devices.write(number, displayChip, question), 0);
}

}  // namespace
}  // namespace vantrel::linux
