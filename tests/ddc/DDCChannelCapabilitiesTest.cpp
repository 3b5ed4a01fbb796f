#include "ChannelTest.h"

namespace vantrel::ddc {
namespace {

using namespace std::chrono_literals;

using test::Bytes;
using test::fragmentReply;
using test::sealed;
using testing::ElementsAre;

const char* const firstRequest = "write 83 F3 00 00 4F";

class DDCChannelCapabilitiesTest : public ChannelTest {
  protected:
    void SetUp() override {
        ChannelTest::SetUp();
        makeChannel();
    }

    // The end of a string of so many bytes.
    void nextReplyEnds(unsigned offset) { monitor.nextReply(fragmentReply(offset, "")); }

    // A monitor whose string never ends comes in fragments of this size.
    void endlessFragments(unsigned size) {
        monitor.everyOtherReply([this, size] {
            const Bytes request = bus.journal.last(Kind::write).bytes;
            const unsigned offset = request.at(2) * 256U + request.at(3);
            bus.journal.clear();
            ++requests;
            lastOffset = offset;
            return test::ScriptedService::Reply{0, fragmentReply(offset, std::string(size, 'x'))};
        });
    }

    // What five failed attempts of a 38-byte read say, and the fetch after them.
    static LogLines unavailable() {
        LogLines lines(5, debug("I2C read of 38 bytes failed: 0x2ed"));
        lines.push_back(error("Left capabilities unavailable"));
        return lines;
    }

    // Whether a fetch takes `reply` for its first fragment at the first attempt.
    bool takes(const Bytes& reply) {
        monitor.nextReply(reply);
        channel->capabilities();
        const Timeline timeline = takeTimeline();
        return timeline.size() == 3 || timeline.at(3) != "pause 40 ms";
    }

    int requests = 0;
    unsigned lastOffset = 0;
};

TEST_F(DDCChannelCapabilitiesTest, RequestGoesOutOnceAndTheReplyIsReadAfterThePause) {
    nextReplyEnds(0);
    channel->capabilities();
    EXPECT_THAT(takeTimeline(), ElementsAre(firstRequest, "pause 50 ms", "read 38"));
    EXPECT_EQ(elapsed(), 50ms);
}

TEST_F(DDCChannelCapabilitiesTest, TransfersAreWithTheMonitorsAddress) {
    nextReplyEnds(0);
    channel->capabilities();
    const test::BusEvent write = bus.journal.events(Kind::write).at(0);
    const test::BusEvent read = bus.journal.events(Kind::read).at(0);
    EXPECT_EQ(write.chip, 0x37U);
    EXPECT_EQ(write.address, 0x51U);
    EXPECT_EQ(read.chip, 0x37U);
    EXPECT_EQ(read.address, 0U);
}

TEST_F(DDCChannelCapabilitiesTest, FragmentsAreJoinedUntilAnEmptyOne) {
    monitor.nextReply(fragmentReply(0, "(prot(monitor)type(LCD)model(A)"));
    monitor.nextReply(fragmentReply(31, "vcp(10 12))"));
    nextReplyEnds(42);
    EXPECT_EQ(channel->capabilities(), "(prot(monitor)type(LCD)model(A)vcp(10 12))");
    EXPECT_THAT(takeTimeline(),
                ElementsAre(firstRequest, "pause 50 ms", "read 38", "write 83 F3 00 1F 50", "pause 50 ms",
                            "read 38", "write 83 F3 00 2A 65", "pause 50 ms", "read 38"));
}

TEST_F(DDCChannelCapabilitiesTest, StringIsLoggedWhole) {
    monitor.nextReply(fragmentReply(0, "(vcp(10"));
    monitor.nextReply(fragmentReply(7, " 12))"));
    nextReplyEnds(12);
    channel->capabilities();
    EXPECT_THAT(takeLog(), ElementsAre(standard("Left capabilities: (vcp(10 12))")));
}

TEST_F(DDCChannelCapabilitiesTest, OffsetIsSentHighByteFirst) {
    endlessFragments(32);
    channel->capabilities();
    EXPECT_EQ(lastOffset, 0x1FE0U);
}

TEST_F(DDCChannelCapabilitiesTest, EmptyFirstFragmentIsNoString) {
    nextReplyEnds(0);
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_THAT(takeLog(), ElementsAre(error("Left capabilities unavailable")));
}

TEST_F(DDCChannelCapabilitiesTest, FailedFirstFragmentIsNoString) {
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_EQ(takeLog(), unavailable());
}

TEST_F(DDCChannelCapabilitiesTest, FragmentIsTriedFiveTimesWithAPauseBetween) {
    channel->capabilities();
    EXPECT_THAT(takeTimeline(), ElementsAre(firstRequest, "pause 50 ms", "read 38", "pause 40 ms",  //
                                            firstRequest, "pause 50 ms", "read 38", "pause 40 ms",  //
                                            firstRequest, "pause 50 ms", "read 38", "pause 40 ms",  //
                                            firstRequest, "pause 50 ms", "read 38", "pause 40 ms",  //
                                            firstRequest, "pause 50 ms", "read 38"));
    EXPECT_EQ(elapsed(), 5 * 50ms + 4 * 40ms);
}

TEST_F(DDCChannelCapabilitiesTest, FifthAttemptCounts) {
    for (int attempt = 0; attempt < 4; ++attempt) monitor.nextReadFails();
    monitor.nextReply(fragmentReply(0, "(vcp(10))"));
    nextReplyEnds(9);
    EXPECT_EQ(channel->capabilities(), "(vcp(10))");
}

TEST_F(DDCChannelCapabilitiesTest, EveryFragmentHasFiveAttemptsOfItsOwn) {
    for (int attempt = 0; attempt < 4; ++attempt) monitor.nextReadFails();
    monitor.nextReply(fragmentReply(0, "(vcp"));
    for (int attempt = 0; attempt < 4; ++attempt) monitor.nextReadFails();
    monitor.nextReply(fragmentReply(4, "(10))"));
    nextReplyEnds(9);
    EXPECT_EQ(channel->capabilities(), "(vcp(10))");
}

TEST_F(DDCChannelCapabilitiesTest, FailedRequestEndsTheAttemptWithoutAPause) {
    monitor.nextWrites({1});
    nextReplyEnds(0);
    channel->capabilities();
    EXPECT_THAT(takeTimeline(),
                ElementsAre(firstRequest, "walk", "pause 40 ms", firstRequest, "pause 50 ms", "read 38"));
    EXPECT_THAT(takeLog(), ElementsAre(debug("I2C write of 5 bytes failed: 0x1"), noReconnect(0),
                                       error("Left capabilities unavailable")));
}

TEST_F(DDCChannelCapabilitiesTest, FailedRequestIsTriedFiveTimes) {
    monitor.everyOtherWrite(1);
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_EQ(bus.journal.events(Kind::write).size(), 5U);
    EXPECT_EQ(elapsed(), 4 * 40ms);
}

TEST_F(DDCChannelCapabilitiesTest, StringIsPartialWhenALaterFragmentFails) {
    monitor.nextReply(fragmentReply(0, "(prot(monitor)vcp(10"));
    EXPECT_EQ(channel->capabilities(), "(prot(monitor)vcp(10");
    EXPECT_EQ(bus.journal.events(Kind::write).size(), 1U + 5U);
    EXPECT_EQ(takeLog().back(), standard("Left capabilities: (prot(monitor)vcp(10"));
}

TEST_F(DDCChannelCapabilitiesTest, NothingIsAskedForAfterAFailedFragment) {
    monitor.nextReply(fragmentReply(0, "(vcp"));
    for (int attempt = 0; attempt < 5; ++attempt) monitor.nextReadFails();
    monitor.nextReply(fragmentReply(4, "(10))"));
    EXPECT_EQ(channel->capabilities(), "(vcp");
}

TEST_F(DDCChannelCapabilitiesTest, FragmentOf32BytesIsTheLongest) {
    const std::string text = "0123456789abcdef0123456789ABCDEF";
    monitor.nextReply(fragmentReply(0, text));
    nextReplyEnds(32);
    EXPECT_EQ(channel->capabilities(), text);
}

TEST_F(DDCChannelCapabilitiesTest, FragmentLongerThanTheReadIsRetried) {
    EXPECT_TRUE(takes(fragmentReply(0, std::string(32, 'x'))));
    EXPECT_FALSE(takes(fragmentReply(0, std::string(33, 'x'))));
    // Sealed where the read ends.
    Bytes cut{0x6E, 0xA4, 0xE3, 0x00, 0x00};
    cut.resize(37, 'x');
    EXPECT_FALSE(takes(sealed(cut)));
}

TEST_F(DDCChannelCapabilitiesTest, LengthBelowThreeIsRetried) {
    EXPECT_TRUE(takes(sealed({0x6E, 0x83, 0xE3, 0x00, 0x00})));
    EXPECT_FALSE(takes(sealed({0x33, 0x80})));
}

TEST_F(DDCChannelCapabilitiesTest, AnotherOpcodeIsRetried) {
    EXPECT_FALSE(takes(sealed({0x6E, 0x84, 0x02, 0x00, 0x00, 'x'})));
}

TEST_F(DDCChannelCapabilitiesTest, WrongChecksumIsRetried) {
    Bytes reply = fragmentReply(0, "(vcp");
    reply.back() ^= 0x01;
    EXPECT_FALSE(takes(reply));
}

TEST_F(DDCChannelCapabilitiesTest, AnotherOffsetIsRetried) {
    EXPECT_FALSE(takes(fragmentReply(0x0001, "(vcp")));
    EXPECT_FALSE(takes(fragmentReply(0x0100, "(vcp")));
}

TEST_F(DDCChannelCapabilitiesTest, FragmentThatRepeatsThePreviousOneIsRetried) {
    monitor.nextReply(fragmentReply(0, "(vcp"));
    monitor.nextReply(fragmentReply(0, "(vcp"));
    monitor.nextReply(fragmentReply(4, "(10))"));
    nextReplyEnds(9);
    EXPECT_EQ(channel->capabilities(), "(vcp(10))");
}

TEST_F(DDCChannelCapabilitiesTest, NULBytesAreDroppedButCounted) {
    monitor.nextReply(fragmentReply(0, std::string_view("(v\0cp\0", 6)));
    monitor.nextReply(fragmentReply(6, std::string_view("(10))\0\0", 7)));
    nextReplyEnds(13);
    EXPECT_EQ(channel->capabilities(), "(vcp(10))");
}

TEST_F(DDCChannelCapabilitiesTest, FragmentOfNULBytesIsNotTheEnd) {
    monitor.nextReply(fragmentReply(0, std::string_view("\0\0\0", 3)));
    monitor.nextReply(fragmentReply(3, "(vcp(10))"));
    nextReplyEnds(12);
    EXPECT_EQ(channel->capabilities(), "(vcp(10))");
}

TEST_F(DDCChannelCapabilitiesTest, NothingButNULBytesIsNoString) {
    monitor.nextReply(fragmentReply(0, std::string_view("\0\0\0", 3)));
    nextReplyEnds(3);
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_THAT(takeLog(), ElementsAre(error("Left capabilities unavailable")));
}

TEST_F(DDCChannelCapabilitiesTest, IllFormedUTF8IsReplaced) {
    monitor.nextReply(fragmentReply(0, "model(\xFFX\xC3)"));
    nextReplyEnds(10);
    EXPECT_EQ(channel->capabilities(), "model(\uFFFDX\uFFFD)");
    EXPECT_EQ(takeLog().back(), standard("Left capabilities: model(\uFFFDX\uFFFD)"));
}

TEST_F(DDCChannelCapabilitiesTest, CharacterCutBetweenFragmentsStaysWhole) {
    monitor.nextReply(fragmentReply(0, "model(\xC3"));
    monitor.nextReply(fragmentReply(7, "\xA9)"));
    nextReplyEnds(9);
    EXPECT_EQ(channel->capabilities(), "model(\u00E9)");
}

TEST_F(DDCChannelCapabilitiesTest, NULBytesAreDroppedBeforeTheUTF8IsLookedAt) {
    monitor.nextReply(fragmentReply(0, std::string_view("\xC3\0\xA9", 3)));
    nextReplyEnds(3);
    EXPECT_EQ(channel->capabilities(), "\u00E9");
}

TEST_F(DDCChannelCapabilitiesTest, EndlessStringStopsAt8192Bytes) {
    endlessFragments(32);
    EXPECT_EQ(channel->capabilities(), std::string(8192, 'x'));
    EXPECT_EQ(requests, 256);
}

TEST_F(DDCChannelCapabilitiesTest, LastFragmentMayCarryTheStringPastTheCap) {
    endlessFragments(31);
    EXPECT_EQ(channel->capabilities(), std::string(265U * 31U, 'x'));
    EXPECT_EQ(lastOffset, 264U * 31U);
    EXPECT_LT(lastOffset, 8192U);
}

TEST_F(DDCChannelCapabilitiesTest, DroppedBytesCountTowardsTheCap) {
    monitor.everyOtherReply([this] {
        const Bytes request = bus.journal.last(Kind::write).bytes;
        bus.journal.clear();
        ++requests;
        return test::ScriptedService::Reply{
            0, fragmentReply(request.at(2) * 256U + request.at(3), std::string(32, '\0'))};
    });
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_EQ(requests, 256);
}

TEST_F(DDCChannelCapabilitiesTest, FetchIsNotRepeatedByItself) {
    nextReplyEnds(0);
    monitor.everyOtherReply(fragmentReply(0, "(vcp(10))"));
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_EQ(bus.journal.events(Kind::read).size(), 1U);
}

TEST_F(DDCChannelCapabilitiesTest, NextFetchBeginsAnew) {
    monitor.nextReply(fragmentReply(0, "(vcp(10))"));
    nextReplyEnds(9);
    EXPECT_EQ(channel->capabilities(), "(vcp(10))");
    monitor.nextReply(fragmentReply(0, "(vcp(12))"));
    nextReplyEnds(9);
    EXPECT_EQ(channel->capabilities(), "(vcp(12))");
}

TEST_F(DDCChannelCapabilitiesTest, WithoutTheReadFunctionThereIsNoString) {
    bus.missingSymbols = {"IOAVServiceReadI2C"};
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_THAT(takeLog(), ElementsAre(error("Left capabilities unavailable")));
    EXPECT_EQ(bus.journal.events(Kind::write).size(), 5U);
}

TEST_F(DDCChannelCapabilitiesTest, WithoutTheWriteFunctionThereIsNoString) {
    bus.missingSymbols = {"IOAVServiceWriteI2C"};
    EXPECT_EQ(channel->capabilities(), std::nullopt);
    EXPECT_THAT(takeTimeline(),
                ElementsAre("walk", "pause 40 ms", "pause 40 ms", "pause 40 ms", "pause 40 ms"));
    EXPECT_THAT(takeLog(), ElementsAre(noReconnect(0), error("Left capabilities unavailable")));
}

}  // namespace
}  // namespace vantrel::ddc
