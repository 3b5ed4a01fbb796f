#include "ChannelTest.h"

namespace vantrel::ddc {
namespace {

using namespace std::chrono_literals;

using test::Bytes;
using test::readingReply;
using test::sealed;
using test::unsupportedReply;
using testing::ElementsAre;
using testing::IsEmpty;
using Result = DDCChannel::ReadResult;

constexpr std::uint8_t brightness = 0x10;
const char* const request = "write 82 01 10 AC";

class DDCChannelReadTest : public ChannelTest {
  protected:
    void SetUp() override {
        ChannelTest::SetUp();
        makeChannel();
    }

    // So that a failing write logs nothing of its own but the reconnect's error.
    static test::LogLine writeFailed() { return debug("I2C write of 4 bytes failed: 0x1"); }
    static test::LogLine readFailed() { return debug("I2C read of 11 bytes failed: 0x2ed"); }
};

using DDCChannelReadDeathTest = DDCChannelReadTest;

TEST_F(DDCChannelReadTest, RequestGoesOutTwiceAndTheReplyIsReadAfterThePause) {
    monitor.nextReply(readingReply(brightness, 50, 100));
    channel->read(brightness, 1);
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "pause 50 ms", "read 11"));
    EXPECT_EQ(elapsed(), 60ms);
}

TEST_F(DDCChannelReadTest, EveryTransferIsWithTheMonitorsChipAddress) {
    channel->read(brightness, 3);
    for (const test::BusEvent& event : bus.journal.events()) {
        const bool isTransfer = event.kind == Kind::write || event.kind == Kind::read;
        EXPECT_TRUE(!isTransfer || event.chip == 0x37U);
    }
}

TEST_F(DDCChannelReadTest, RequestsAreWrittenFromTheHostsAddress) {
    channel->read(brightness, 1);
    for (const test::BusEvent& event : bus.journal.events(Kind::write)) EXPECT_EQ(event.address, 0x51U);
}

TEST_F(DDCChannelReadTest, ReplyIsReadFromDataAddressZero) {
    channel->read(brightness, 1);
    ASSERT_EQ(bus.journal.events(Kind::read).size(), 1U);
    EXPECT_EQ(bus.journal.events(Kind::read)[0].address, 0U);
}

TEST_F(DDCChannelReadTest, ReplyGivesCurrentAndMaximum) {
    monitor.nextReply(readingReply(brightness, 0x1234, 0xFEDC));
    EXPECT_EQ(channel->read(brightness, 1), Result::value({.current = 0x1234, .maximum = 0xFEDC}));
}

TEST_F(DDCChannelReadTest, ValueIsLoggedWithItsAttempt) {
    monitor.nextReply(readingReply(brightness, 50, 100));
    channel->read(brightness, 1);
    EXPECT_THAT(takeLog(), ElementsAre(debug("Left read 0x10 = 50 (max 100), attempt 1")));
}

TEST_F(DDCChannelReadTest, LaterAttemptIsLoggedWithItsNumber) {
    monitor.nextReply(readingReply(0x12, 50, 100));
    monitor.nextReply(Bytes{});
    monitor.nextReply(readingReply(brightness, 65535, 65535));
    EXPECT_EQ(channel->read(brightness, 4), Result::value({65535, 65535}));
    EXPECT_THAT(takeLog(), ElementsAre(debug("Left read 0x10 = 65535 (max 65535), attempt 3")));
}

TEST_F(DDCChannelReadTest, CodeIsLoggedWithTwoUppercaseDigits) {
    monitor.nextReply(readingReply(0x02, 1, 2));
    monitor.nextReply(readingReply(0xFA, 1, 2));
    channel->read(0x02, 1);
    channel->read(0xFA, 1);
    EXPECT_THAT(takeLog(), ElementsAre(debug("Left read 0x02 = 1 (max 2), attempt 1"),
                                       debug("Left read 0xFA = 1 (max 2), attempt 1")));
}

TEST_F(DDCChannelReadTest, EveryCodeIsAskedForByItsOwnRequest) {
    channel->read(0xE2, 1);
    EXPECT_EQ(takeTimeline().at(0), "write 82 01 E2 5E");
}

TEST_F(DDCChannelReadTest, ValidReplyEndsTheAttempts) {
    monitor.everyOtherReply(readingReply(brightness, 50, 100));
    channel->read(brightness, 4);
    EXPECT_EQ(bus.journal.events(Kind::read).size(), 1U);
    EXPECT_EQ(elapsed(), 60ms);
}

TEST_F(DDCChannelReadTest, NextAttemptBeginsAfterAPauseOfItsOwn) {
    monitor.nextReadFails();
    monitor.nextReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 2), Result::value({50, 100}));
    EXPECT_THAT(takeTimeline(),
                ElementsAre(request, "pause 10 ms", request, "pause 50 ms", "read 11", "pause 30 ms", request,
                            "pause 10 ms", request, "pause 50 ms", "read 11"));
    EXPECT_EQ(elapsed(), 150ms);
}

TEST_F(DDCChannelReadTest, NoPauseFollowsTheLastAttempt) {
    EXPECT_EQ(channel->read(brightness, 4), Result::failed());
    EXPECT_EQ(bus.journal.events(Kind::read).size(), 4U);
    EXPECT_EQ(elapsed(), 4 * 60ms + 3 * 30ms);
    EXPECT_EQ(takeTimeline().back(), "read 11");
}

TEST_F(DDCChannelReadTest, ReadFailureIsTheReason) {
    EXPECT_EQ(channel->read(brightness, 2), Result::failed());
    EXPECT_THAT(takeLog(), ElementsAre(readFailed(), readFailed(),
                                       error("Left read 0x10 failed after 2 attempts: reply read failed")));
}

TEST_F(DDCChannelReadTest, OneAttemptIsLoggedAsAttemptsToo) {
    channel->read(brightness, 1);
    EXPECT_EQ(takeLog().back(), error("Left read 0x10 failed after 1 attempts: reply read failed"));
}

TEST_F(DDCChannelReadTest, StatusOfAFailedReadIsLoggedInLowercaseHexadecimal) {
    monitor.nextReadFails(static_cast<std::int32_t>(0xE00002BC));
    channel->read(brightness, 1);
    EXPECT_EQ(takeLog().front(), debug("I2C read of 11 bytes failed: 0xe00002bc"));
}

TEST_F(DDCChannelReadTest, WrongChecksumIsTheReasonWithEveryByte) {
    monitor.nextReply({0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x00, 0x64, 0x00, 0x32, 0x5B});
    EXPECT_EQ(channel->read(brightness, 1), Result::failed());
    EXPECT_THAT(takeLog(), ElementsAre(error("Left read 0x10 failed after 1 attempts: "
                                             "invalid reply 6E 88 02 00 10 00 00 64 00 32 5B")));
}

TEST_F(DDCChannelReadTest, ReplyForAnotherCodeIsRetried) {
    monitor.nextReply(readingReply(0x12, 70, 100));
    monitor.nextReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 2), Result::value({50, 100}));
    EXPECT_EQ(bus.journal.events(Kind::read).size(), 2U);
}

TEST_F(DDCChannelReadTest, ReplyForAnotherCodeIsInvalidThoughUnsupported) {
    monitor.nextReply(unsupportedReply(0x12));
    monitor.nextReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 2), Result::value({50, 100}));
}

TEST_F(DDCChannelReadTest, ReplyWithAnotherOpcodeIsRetried) {
    monitor.nextReply(sealed({0x6E, 0x88, 0x03, 0x00, 0x10, 0x00, 0x00, 0x64, 0x00, 0x46}));
    monitor.nextReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 2), Result::value({50, 100}));
}

TEST_F(DDCChannelReadTest, UnusualSourceLengthAndTypeAreTaken) {
    monitor.nextReply(sealed({0x6F, 0x08, 0x02, 0x00, 0x10, 0x01, 0x00, 0x64, 0x00, 0x32}));
    EXPECT_EQ(channel->read(brightness, 1), Result::value({50, 100}));
}

TEST_F(DDCChannelReadTest, ReasonIsThatOfTheLastAttempt) {
    monitor.nextReply(Bytes(11, 0xFF));
    monitor.nextReadFails();
    channel->read(brightness, 2);
    EXPECT_EQ(takeLog().back(), error("Left read 0x10 failed after 2 attempts: reply read failed"));

    monitor.nextReadFails();
    monitor.nextReply(Bytes(11, 0xFF));
    channel->read(brightness, 2);
    EXPECT_EQ(takeLog().back(), error("Left read 0x10 failed after 2 attempts: invalid reply "
                                      "FF FF FF FF FF FF FF FF FF FF FF"));

    monitor.nextReply(Bytes(11, 0xFF));
    monitor.nextWrites({0, 0, 1, 1});
    channel->read(brightness, 2);
    EXPECT_EQ(takeLog().back(), error("Left read 0x10 failed after 2 attempts: request write failed"));
}

TEST_F(DDCChannelReadTest, UnsupportedIsReturnedAtOnce) {
    monitor.nextReply(unsupportedReply(brightness));
    monitor.nextReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 4), Result::unsupported());
    EXPECT_EQ(bus.journal.events(Kind::read).size(), 1U);
    EXPECT_EQ(elapsed(), 60ms);
}

TEST_F(DDCChannelReadTest, UnsupportedIsLogged) {
    monitor.nextReply(unsupportedReply(brightness));
    channel->read(brightness, 4);
    EXPECT_THAT(takeLog(), ElementsAre(debug("Left read 0x10: unsupported")));
}

TEST_F(DDCChannelReadTest, AnyResultCodeIsUnsupported) {
    monitor.nextReply(sealed({0x6E, 0x88, 0x02, 0xFF, 0x10, 0x00, 0x00, 0x64, 0x00, 0x32}));
    EXPECT_EQ(channel->read(brightness, 1), Result::unsupported());
}

TEST_F(DDCChannelReadTest, UnsupportedAfterAFailedAttemptEndsTheAttempts) {
    monitor.nextReadFails();
    monitor.nextReply(unsupportedReply(brightness));
    EXPECT_EQ(channel->read(brightness, 4), Result::unsupported());
    EXPECT_EQ(bus.journal.events(Kind::read).size(), 2U);
}

TEST_F(DDCChannelReadTest, ReplyIsReadWhenOnlyTheFirstWriteSucceeded) {
    monitor.nextWrites({0, 1});
    monitor.nextReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 1), Result::value({50, 100}));
    EXPECT_THAT(takeLog(), ElementsAre(writeFailed(), debug("Left read 0x10 = 50 (max 100), attempt 1")));
}

TEST_F(DDCChannelReadTest, ReplyIsReadWhenOnlyTheSecondWriteSucceeded) {
    monitor.nextWrites({1, 0});
    monitor.nextReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 1), Result::value({50, 100}));
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "pause 50 ms", "read 11"));
}

TEST_F(DDCChannelReadTest, FailedRequestEndsTheAttemptWithoutAPause) {
    monitor.everyOtherWrite(1);
    EXPECT_EQ(channel->read(brightness, 2), Result::failed());
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "walk", "pause 30 ms", request,
                                            "pause 10 ms", request));
    EXPECT_EQ(elapsed(), 50ms);
}

TEST_F(DDCChannelReadTest, FailedRequestIsTheReason) {
    monitor.everyOtherWrite(1);
    channel->read(brightness, 2);
    EXPECT_THAT(takeLog(),
                ElementsAre(writeFailed(), writeFailed(), noReconnect(0), writeFailed(), writeFailed(),
                            error("Left read 0x10 failed after 2 attempts: request write failed")));
}

TEST_F(DDCChannelReadTest, NoAttemptsDoNothingAndFail) {
    monitor.everyOtherReply(readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 0), Result::failed());
    EXPECT_THAT(takeTimeline(), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(error("Left read 0x10 failed after 0 attempts: no attempt")));
}

TEST_F(DDCChannelReadDeathTest, NegativeAttemptsStopTheProgram) {
    EXPECT_DEATH(channel->read(brightness, -1), "broken invariant");
}

TEST_F(DDCChannelReadTest, WithoutTheReadFunctionTheReplyReadFailsSilently) {
    bus.missingSymbols = {"IOAVServiceReadI2C"};
    EXPECT_EQ(channel->read(brightness, 1), Result::failed());
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "pause 50 ms"));
    EXPECT_THAT(takeLog(), ElementsAre(error("Left read 0x10 failed after 1 attempts: reply read failed")));
}

TEST_F(DDCChannelReadTest, WithoutTheWriteFunctionTheRequestFailsSilently) {
    bus.missingSymbols = {"IOAVServiceWriteI2C"};
    EXPECT_EQ(channel->read(brightness, 1), Result::failed());
    EXPECT_THAT(takeTimeline(), ElementsAre("pause 10 ms", "walk"));
    EXPECT_THAT(takeLog(), ElementsAre(noReconnect(0), error("Left read 0x10 failed after 1 attempts: "
                                                             "request write failed")));
}

TEST(DDCChannelReadResult, IsDescribedInWords) {
    EXPECT_EQ(describe(Result::value({.current = 50, .maximum = 100})), "value(current: 50, maximum: 100)");
    EXPECT_EQ(describe(Result::unsupported()), "unsupported");
    EXPECT_EQ(describe(Result::failed()), "failed");
}

}  // namespace
}  // namespace vantrel::ddc
