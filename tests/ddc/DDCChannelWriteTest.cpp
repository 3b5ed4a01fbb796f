#include "ChannelTest.h"

namespace vantrel::ddc {
namespace {

using namespace std::chrono_literals;

using testing::ElementsAre;

constexpr std::uint8_t brightness = 0x10;
const char* const request = "write 84 03 10 00 32 9A";

class DDCChannelWriteTest : public ChannelTest {
  protected:
    void SetUp() override {
        ChannelTest::SetUp();
        makeChannel();
    }

    static test::LogLine writeFailed() { return debug("I2C write of 6 bytes failed: 0x1"); }
};

TEST_F(DDCChannelWriteTest, RequestGoesOutTwiceAndTheMonitorGetsTimeToTakeIt) {
    EXPECT_TRUE(channel->write(brightness, 50));
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "pause 50 ms"));
    EXPECT_EQ(elapsed(), 60ms);
}

TEST_F(DDCChannelWriteTest, RequestsAreWrittenFromTheHostsAddressToTheMonitors) {
    channel->write(brightness, 50);
    for (const test::BusEvent& event : bus.journal.events(Kind::write)) {
        EXPECT_EQ(event.chip, 0x37U);
        EXPECT_EQ(event.address, 0x51U);
    }
}

TEST_F(DDCChannelWriteTest, ValueIsSentHighByteFirst) {
    channel->write(0x60, 0xABCD);
    EXPECT_EQ(takeTimeline().at(0), "write 84 03 60 AB CD BE");
}

TEST_F(DDCChannelWriteTest, ValueIsLoggedInBothNotations) {
    channel->write(brightness, 50);
    EXPECT_THAT(takeLog(), ElementsAre(standard("Left write 0x10 = 50 (0x32)")));
}

TEST_F(DDCChannelWriteTest, SmallValueIsLoggedWithTwoDigits) {
    channel->write(0x04, 1);
    EXPECT_THAT(takeLog(), ElementsAre(standard("Left write 0x04 = 1 (0x01)")));
}

TEST_F(DDCChannelWriteTest, ValueAbove255IsLoggedWithMoreDigits) {
    channel->write(0xE2, 300);
    channel->write(0xE2, 65535);
    EXPECT_THAT(takeLog(), ElementsAre(standard("Left write 0xE2 = 300 (0x12C)"),
                                       standard("Left write 0xE2 = 65535 (0xFFFF)")));
}

TEST_F(DDCChannelWriteTest, FirstFailureIsMadeUpForByTheSecondWrite) {
    monitor.nextWrites({1, 0});
    EXPECT_TRUE(channel->write(brightness, 50));
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "pause 50 ms"));
    EXPECT_THAT(takeLog(), ElementsAre(writeFailed(), standard("Left write 0x10 = 50 (0x32)")));
}

TEST_F(DDCChannelWriteTest, SecondFailureDoesNotUndoTheFirstWrite) {
    monitor.nextWrites({0, 1});
    EXPECT_TRUE(channel->write(brightness, 50));
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "pause 50 ms"));
    EXPECT_THAT(takeLog(), ElementsAre(writeFailed(), standard("Left write 0x10 = 50 (0x32)")));
}

TEST_F(DDCChannelWriteTest, BothFailuresFailTheWriteButThePauseFollowsAllTheSame) {
    monitor.everyOtherWrite(1);
    EXPECT_FALSE(channel->write(brightness, 50));
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "walk", "pause 50 ms"));
    EXPECT_EQ(elapsed(), 60ms);
}

TEST_F(DDCChannelWriteTest, FailureIsLogged) {
    monitor.everyOtherWrite(1);
    channel->write(brightness, 50);
    EXPECT_THAT(takeLog(), ElementsAre(writeFailed(), writeFailed(), noReconnect(0),
                                       error("Left write 0x10 = 50 failed")));
}

TEST_F(DDCChannelWriteTest, StatusOfAFailedWriteIsLoggedInLowercaseHexadecimal) {
    monitor.nextWrites({static_cast<std::int32_t>(0xE00002ED), 0xABC});
    channel->write(brightness, 50);
    const LogLines lines = takeLog();
    EXPECT_EQ(lines.at(0), debug("I2C write of 6 bytes failed: 0xe00002ed"));
    EXPECT_EQ(lines.at(1), debug("I2C write of 6 bytes failed: 0xabc"));
}

TEST_F(DDCChannelWriteTest, NothingIsReadBack) {
    channel->write(brightness, 50);
    EXPECT_TRUE(bus.journal.events(Kind::read).empty());
}

TEST_F(DDCChannelWriteTest, WithoutTheWriteFunctionItFailsWithoutALineOfTheBus) {
    bus.missingSymbols = {"IOAVServiceWriteI2C"};
    EXPECT_FALSE(channel->write(brightness, 50));
    EXPECT_THAT(takeTimeline(), ElementsAre("pause 10 ms", "walk", "pause 50 ms"));
    EXPECT_THAT(takeLog(), ElementsAre(noReconnect(0), error("Left write 0x10 = 50 failed")));
}

}  // namespace
}  // namespace vantrel::ddc
