#include <array>
#include <linux/i2c.h>

#include "linux/kernel/KernelBench.h"
#include "linux/kernel/OpenedNode.h"

namespace vantrel::test {
namespace {

using namespace std::chrono_literals;
using Bytes = OpenedNode::Bytes;

class EmulatedKernelBusTest : public KernelBench {
  protected:
    EmulatedBus& bus = kernel.bus(2);
    OpenedNode node{kernel.node(2), 0x37};
    const Bytes brightness{0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x00, 100, 0x00, 50, 0xF2};
};

// One ioctl for both, as no pause is needed to see it work: a null message comes.
int carryOut(const OpenedNode& node, std::vector<i2c_msg>& messages) {
    i2c_rdwr_ioctl_data data{messages.data(), static_cast<__u32>(messages.size())};
    const int result = ::ioctl(node.descriptor(), I2C_RDWR, &data);
    return result < 0 ? -errno : result;
}

i2c_msg message(std::uint16_t address, std::uint16_t flags, Bytes& bytes) {
    return {address, flags, static_cast<__u16>(bytes.size()), bytes.data()};
}

TEST_F(EmulatedKernelBusTest, AnswersAReadingAfterTheMonitorsTime) {
    EXPECT_EQ(node.ask(0x10), 0);
    EXPECT_EQ(node.answer(3), (Bytes{0x6E, 0x80, 0xBE}));
    EXPECT_EQ(node.ask(0x10), 0);
    virtualLoop.time.sleepFor(40ms);
    EXPECT_EQ(node.answer(), brightness);
}

TEST_F(EmulatedKernelBusTest, ObeysASetting) {
    EXPECT_EQ(node.set(0x12, 33), 0);
    EXPECT_EQ(kernel.monitor(2).value(0x12), 33);
    EXPECT_EQ(kernel.monitor(3).value(0x12), 70);
}

TEST_F(EmulatedKernelBusTest, TakesMessagesOfAnExchangeLikeWritesAndReads) {
    Bytes question = OpenedNode::message({0x01, 0x10});
    std::vector<i2c_msg> ask{message(0x37, 0, question)};
    EXPECT_EQ(carryOut(node, ask), 1);
    virtualLoop.time.sleepFor(40ms);
    Bytes reply(11);
    std::vector<i2c_msg> take{message(0x37, I2C_M_RD, reply)};
    EXPECT_EQ(carryOut(node, take), 1);
    EXPECT_EQ(reply, brightness);
}

TEST_F(EmulatedKernelBusTest, WritesAndReadsInOneExchange) {
    Bytes offset{0x08};
    Bytes identity(4);
    std::vector<i2c_msg> messages{message(0x50, 0, offset), message(0x50, I2C_M_RD, identity)};
    EXPECT_EQ(carryOut(node, messages), 2);
    const EDIDBlock edid = emulatedEDID(monitorPlan(2, "Alder"));
    EXPECT_EQ(identity, Bytes(edid.begin() + 8, edid.begin() + 12));
}

TEST_F(EmulatedKernelBusTest, EndsAnExchangeAtTheFirstMessageThatFails) {
    Bytes offset{0x08};
    Bytes nothing(1);
    Bytes brightnessZero = OpenedNode::message({0x03, 0x10, 0, 0});
    std::vector<i2c_msg> messages{message(0x50, 0, offset), message(0x20, I2C_M_RD, nothing),
                                  message(0x37, 0, brightnessZero)};
    EXPECT_EQ(carryOut(node, messages), -ENXIO);
    EXPECT_EQ(kernel.monitor(2).value(0x10), 50);
}

TEST_F(EmulatedKernelBusTest, RefusesAnExchangeWithoutMessages) {
    std::vector<i2c_msg> none;
    EXPECT_EQ(carryOut(node, none), -EINVAL);
}

TEST_F(EmulatedKernelBusTest, HasTheEDIDInAMemoryThatIsReadFromAnOffset) {
    const EDIDBlock edid = emulatedEDID(monitorPlan(2, "Alder"));
    EXPECT_EQ(node.select(0x50), 0);
    EXPECT_EQ(node.write({0}), 0);
    EXPECT_EQ(node.answer(128), Bytes(edid.begin(), edid.end()));
    EXPECT_EQ(node.answer(2), (Bytes{0xFF, 0xFF}));
    EXPECT_EQ(node.write({126}), 0);
    EXPECT_EQ(node.answer(2), Bytes(edid.begin() + 126, edid.end()));
}

TEST_F(EmulatedKernelBusTest, HasNobodyAtOtherAddresses) {
    EXPECT_EQ(node.select(0x36), 0);
    EXPECT_EQ(node.write({0}), ENXIO);
    EXPECT_TRUE(node.answer(1).empty());
    EXPECT_EQ(errno, ENXIO);
}

TEST_F(EmulatedKernelBusTest, RefusesAnAddressOfMoreThanSevenBits) {
    EXPECT_EQ(node.select(0x80), EINVAL);
    EXPECT_EQ(node.ask(0x10), 0);
}

TEST_F(EmulatedKernelBusTest, TellsThatItTakesWholeMessages) {
    unsigned long functions = 0;
    EXPECT_EQ(::ioctl(node.descriptor(), I2C_FUNCS, &functions), 0);
    EXPECT_NE(functions & I2C_FUNC_I2C, 0U);
    EXPECT_EQ(::ioctl(node.descriptor(), I2C_TIMEOUT, 20UL), 0);
    EXPECT_EQ(::ioctl(node.descriptor(), I2C_RETRIES, 2UL), 0);
    EXPECT_EQ(::ioctl(node.descriptor(), I2C_PEC, 1UL), -1);
    EXPECT_EQ(errno, ENOTTY);
}

TEST_F(EmulatedKernelBusTest, IsBusyWhereAnotherDriverHasTheAddress) {
    bus.claim(0x37);
    EXPECT_EQ(node.select(0x37), EBUSY);
    EXPECT_EQ(node.select(0x50), 0);
    EXPECT_EQ(::ioctl(node.descriptor(), I2C_SLAVE_FORCE, 0x37UL), 0);
    bus.release(0x37);
    EXPECT_EQ(node.select(0x37), 0);
}

TEST_F(EmulatedKernelBusTest, FailsAsManyTransfersAsItIsTold) {
    bus.failNext(2, ETIMEDOUT);
    EXPECT_EQ(node.set(0x10, 10), ETIMEDOUT);
    EXPECT_EQ(node.set(0x10, 20), ETIMEDOUT);
    EXPECT_EQ(kernel.monitor(2).value(0x10), 50);
    EXPECT_EQ(node.set(0x10, 30), 0);
    EXPECT_EQ(kernel.monitor(2).value(0x10), 30);
}

TEST_F(EmulatedKernelBusTest, HasNobodyOnItWhileTheDisplayIsUnplugged) {
    kernel.unplug(2);
    EXPECT_EQ(node.ask(0x10), ENXIO);
    EXPECT_EQ(node.select(0x50), 0);
    EXPECT_EQ(node.write({0}), ENXIO);
}

TEST_F(EmulatedKernelBusTest, KeepsTheEDIDOfAMonitorThatIsSwitchedOff) {
    kernel.monitor(2).setPower(simulated::SimulatedMonitor::Power::off);
    EXPECT_EQ(node.ask(0x10), ENXIO);
    EXPECT_EQ(node.select(0x50), 0);
    EXPECT_EQ(node.write({0}), 0);
}

TEST_F(EmulatedKernelBusTest, HasAnEDIDAndNobodyElseForADisplayWithoutAMonitor) {
    const OpenedNode panel(kernel.node(1), 0x37);
    EXPECT_EQ(panel.ask(0x10), ENXIO);
    EXPECT_EQ(panel.select(0x50), 0);
    EXPECT_EQ(panel.write({0}), 0);
}

TEST_F(EmulatedKernelBusTest, CountsWhatItsUsersDo) {
    node.ask(0x10);
    node.answer();
    node.select(0x36);
    node.write({0});
    const auto counters = bus.counters();
    EXPECT_EQ(counters.transfers, 3U);
    EXPECT_EQ(counters.failures, 1U);
    EXPECT_EQ(counters.writes, (std::map<std::uint16_t, std::uint64_t>{{0x36, 1}, {0x37, 1}}));
    EXPECT_EQ(counters.reads, (std::map<std::uint16_t, std::uint64_t>{{0x37, 1}}));
    EXPECT_EQ(kernel.nodeCounters(2), (EmulatedNode::Counters{1, 2, 1, 2}));
    EXPECT_EQ(kernel.monitor(2).counters().getRequests, 1U);
}

}  // namespace
}  // namespace vantrel::test
