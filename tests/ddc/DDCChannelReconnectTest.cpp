#include "ChannelTest.h"

namespace vantrel::ddc {
namespace {

using namespace std::chrono_literals;

using testing::Contains;
using testing::ElementsAre;

constexpr std::uint8_t brightness = 0x10;
const char* const request = "write 84 03 10 00 32 9A";
const char* const otherUUID = "1E6D0777-0000-0000-0B1D-0104B53C2278";

// The channel's own link is dead; what it reconnects to is connected by the test.
class DDCChannelReconnectTest : public ChannelTest {
  protected:
    void SetUp() override {
        ChannelTest::SetUp();
        monitor.everyOtherWrite(1);
    }

    bool write() { return channel->write(brightness, 50); }

    // Which handles were written to, transfer by transfer.
    std::vector<int> writtenHandles() const {
        std::vector<int> handles;
        for (const test::BusEvent& event : bus.journal.events(Kind::write)) handles.push_back(event.handle);
        return handles;
    }
    bool hasWalked() { return testing::Value(takeTimeline(), Contains("walk")); }

    // Whether the channel takes `fresh` rather than the link of a stranger.
    bool reconnects() {
        bus.connect(stranger, "FFFF0000-0000-0000-0000-000000000000", 99);
        const bool succeeded = write();
        EXPECT_EQ(succeeded, takeLog().back() == standard("Left write 0x10 = 50 (0x32)"));
        EXPECT_EQ(succeeded, bus.liveHandles() == 1 && bus.isReleased(1));
        return succeeded;
    }

    test::ScriptedService fresh;
    test::ScriptedService stranger;
};

TEST_F(DDCChannelReconnectTest, RequestGoesOutTwiceMoreOverTheFreshHandle) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    EXPECT_TRUE(write());
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "walk", request, "pause 10 ms",
                                            request, "pause 50 ms"));
    EXPECT_EQ(elapsed(), 70ms);
}

TEST_F(DDCChannelReconnectTest, IsLogged) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    write();
    EXPECT_THAT(takeLog(), ElementsAre(debug("I2C write of 6 bytes failed: 0x1"),
                                       debug("I2C write of 6 bytes failed: 0x1"), reconnected(),
                                       standard("Left write 0x10 = 50 (0x32)")));
}

TEST_F(DDCChannelReconnectTest, OldHandleIsReleasedAndTheFreshOneIsUsedFromThenOn) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    write();
    EXPECT_TRUE(bus.isReleased(1));
    EXPECT_EQ(bus.liveHandles(), 1);
    write();
    EXPECT_THAT(writtenHandles(), ElementsAre(1, 1, 2, 2, 2, 2));
}

TEST_F(DDCChannelReconnectTest, HandlesOfTheOtherLinksAreReleased) {
    makeChannel();
    bus.connect(stranger, otherUUID, 1);
    bus.connect(fresh, edidUUID, serial);
    bus.connect(stranger, otherUUID, 2);
    EXPECT_TRUE(write());
    EXPECT_EQ(bus.liveHandles(), 1);
    EXPECT_THAT(writtenHandles(), ElementsAre(1, 1, 3, 3));
}

TEST_F(DDCChannelReconnectTest, HandleIsReleasedWithTheChannel) {
    makeChannel();
    EXPECT_EQ(bus.liveHandles(), 1);
    channel.reset();
    EXPECT_EQ(bus.liveHandles(), 0);
}

TEST_F(DDCChannelReconnectTest, ReadOverTheFreshHandleGetsItsReply) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    fresh.nextReply(test::readingReply(brightness, 50, 100));
    EXPECT_EQ(channel->read(brightness, 1), DDCChannel::ReadResult::value({50, 100}));
    EXPECT_EQ(bus.journal.events(Kind::read).at(0).handle, 2);
}

TEST_F(DDCChannelReconnectTest, FreshHandleThatFailsTooFailsTheWrite) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    fresh.everyOtherWrite(2);
    EXPECT_FALSE(write());
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "walk", request, "pause 10 ms",
                                            request, "pause 50 ms"));
    EXPECT_EQ(takeLog().back(), error("Left write 0x10 = 50 failed"));
}

TEST_F(DDCChannelReconnectTest, OneWriteOfTwoOverTheFreshHandleIsEnough) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    fresh.nextWrites({2, 0});
    EXPECT_TRUE(write());
}

TEST_F(DDCChannelReconnectTest, WriteThatSucceededOnceDoesNotReconnect) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    monitor.nextWrites({0, 1, 1, 0});
    write();
    write();
    EXPECT_FALSE(hasWalked());
}

TEST_F(DDCChannelReconnectTest, FailedReadOfAReplyDoesNotReconnect) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    monitor.everyOtherWrite(0);
    channel->read(brightness, 4);
    EXPECT_FALSE(hasWalked());
}

TEST_F(DDCChannelReconnectTest, FirstOneIsNeverThrottled) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    EXPECT_EQ(elapsed(), 0ms);
    EXPECT_TRUE(write());
}

TEST_F(DDCChannelReconnectTest, SecondFailureWithinTwoSecondsDoesNotReconnectAndSaysNothing) {
    makeChannel();
    write();
    takeTimeline();
    takeLog();
    bus.connect(fresh, edidUUID, serial);
    EXPECT_FALSE(write());
    EXPECT_THAT(takeTimeline(), ElementsAre(request, "pause 10 ms", request, "pause 50 ms"));
    EXPECT_THAT(takeLog(),
                ElementsAre(debug("I2C write of 6 bytes failed: 0x1"),
                            debug("I2C write of 6 bytes failed: 0x1"), error("Left write 0x10 = 50 failed")));
}

TEST_F(DDCChannelReconnectTest, IsThrottledAtExactlyTwoSeconds) {
    makeChannel();
    write();  // reconnects 10 ms after its beginning, ends after 60 ms
    bus.connect(fresh, edidUUID, serial);
    time.sleepFor(2000ms - 60ms);
    EXPECT_FALSE(write());
}

TEST_F(DDCChannelReconnectTest, IsTriedAgainJustAfterTwoSeconds) {
    makeChannel();
    write();
    bus.connect(fresh, edidUUID, serial);
    time.sleepFor(2000ms - 60ms + 1ns);
    EXPECT_TRUE(write());
}

TEST_F(DDCChannelReconnectTest, SuccessIsThrottledLikeAFailure) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    EXPECT_TRUE(write());
    fresh.everyOtherWrite(1);
    takeTimeline();
    EXPECT_FALSE(write());
    EXPECT_FALSE(hasWalked());
}

TEST_F(DDCChannelReconnectTest, ThrottledTryDoesNotProlongTheThrottle) {
    makeChannel();
    write();
    time.sleepFor(1s);
    write();
    bus.connect(fresh, edidUUID, serial);
    time.sleepFor(1000ms - 120ms + 1ns);
    EXPECT_TRUE(write());
}

TEST_F(DDCChannelReconnectTest, ChannelsThrottleIndependently) {
    makeChannel();
    write();
    bus.connect(fresh, edidUUID, serial);
    makeChannel();
    EXPECT_TRUE(write());
}

TEST_F(DDCChannelReconnectTest, WithoutAnyLinkItFails) {
    makeChannel();
    EXPECT_FALSE(write());
    EXPECT_THAT(takeLog(), Contains(noReconnect(0)));
    EXPECT_FALSE(bus.isReleased(1));
}

TEST_F(DDCChannelReconnectTest, NeverGuessesBetweenSeveralLinks) {
    makeChannel();
    bus.connect(stranger, otherUUID, 1);
    bus.connect(stranger, otherUUID, 2);
    EXPECT_FALSE(write());
    EXPECT_THAT(takeLog(), Contains(noReconnect(2)));
    EXPECT_THAT(writtenHandles(), ElementsAre(1, 1));
    EXPECT_FALSE(bus.isReleased(1));
    EXPECT_EQ(bus.liveHandles(), 1);
}

TEST_F(DDCChannelReconnectTest, SingleLinkIsTakenWhateverItsIdentity) {
    makeChannel();
    bus.connect(fresh, otherUUID, 1);
    EXPECT_TRUE(write());
    EXPECT_THAT(takeLog(), Contains(reconnected()));
}

TEST_F(DDCChannelReconnectTest, SingleLinkWithoutIdentityIsTaken) {
    makeChannel();
    bus.connect(fresh);
    EXPECT_TRUE(write());
}

TEST_F(DDCChannelReconnectTest, InternalLinksAreNotCounted) {
    makeChannel();
    bus.entries.push_back({"DCPAVServiceProxy", {{"Location", std::string("Embedded")}}, &stranger});
    bus.connect(fresh, otherUUID, 1);
    EXPECT_TRUE(write());
    EXPECT_THAT(writtenHandles(), ElementsAre(1, 1, 2, 2));
}

TEST_F(DDCChannelReconnectTest, IdentityMatchesWhenBothMatch) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    EXPECT_TRUE(reconnects());
}

TEST_F(DDCChannelReconnectTest, AnotherSerialDoesNotMatch) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial + 1);
    EXPECT_FALSE(reconnects());
}

TEST_F(DDCChannelReconnectTest, AnotherEDIDUUIDDoesNotMatch) {
    makeChannel();
    bus.connect(fresh, otherUUID, serial);
    EXPECT_FALSE(reconnects());
}

TEST_F(DDCChannelReconnectTest, AbsentEDIDUUIDDoesNotMatchAPresentOne) {
    makeChannel();
    bus.connect(fresh, std::nullopt, serial);
    EXPECT_FALSE(reconnects());
}

TEST_F(DDCChannelReconnectTest, PresentEDIDUUIDDoesNotMatchAnAbsentOne) {
    makeChannel(std::nullopt);
    bus.connect(fresh, edidUUID, serial);
    EXPECT_FALSE(reconnects());
}

TEST_F(DDCChannelReconnectTest, EmptyEDIDUUIDIsNotAnAbsentOne) {
    makeChannel(std::nullopt);
    bus.connect(fresh, "", serial);
    EXPECT_FALSE(reconnects());
}

TEST_F(DDCChannelReconnectTest, AbsentSerialDoesNotMatchAPresentOne) {
    makeChannel();
    bus.connect(fresh, edidUUID);
    EXPECT_FALSE(reconnects());
}

TEST_F(DDCChannelReconnectTest, SerialZeroIsNotAnAbsentOne) {
    makeChannel(edidUUID, std::nullopt);
    bus.connect(fresh, edidUUID, 0);
    EXPECT_FALSE(reconnects());
}

TEST_F(DDCChannelReconnectTest, AbsentEDIDUUIDsAreEqual) {
    makeChannel(std::nullopt, serial);
    bus.connect(fresh, std::nullopt, serial);
    EXPECT_TRUE(reconnects());
}

TEST_F(DDCChannelReconnectTest, AbsentSerialsAreEqual) {
    makeChannel(edidUUID, std::nullopt);
    bus.connect(fresh, edidUUID);
    EXPECT_TRUE(reconnects());
}

TEST_F(DDCChannelReconnectTest, IdentityAbsentAltogetherMatchesItsLike) {
    makeChannel(std::nullopt, std::nullopt);
    bus.connect(fresh);
    EXPECT_TRUE(reconnects());
}

TEST_F(DDCChannelReconnectTest, FirstOfSeveralMatchesIsTaken) {
    makeChannel();
    bus.connect(stranger, otherUUID, serial);
    bus.connect(fresh, edidUUID, serial);
    bus.connect(stranger, edidUUID, serial);
    EXPECT_TRUE(write());
    EXPECT_THAT(writtenHandles(), ElementsAre(1, 1, 3, 3));
}

TEST_F(DDCChannelReconnectTest, IdentityStaysThatOfTheBeginning) {
    makeChannel();
    test::ScriptedService other;
    bus.connect(other, otherUUID, 1);
    other.nextWrites({0, 0});
    other.everyOtherWrite(1);
    EXPECT_TRUE(write());  // takes the single link though it is another monitor's
    bus.connect(fresh, edidUUID, serial);
    time.sleepFor(3s);
    takeLog();
    EXPECT_TRUE(write());
    // The name of the beginning, too.
    EXPECT_THAT(takeLog(), Contains(reconnected()));
    EXPECT_THAT(writtenHandles(), ElementsAre(1, 1, 2, 2, 2, 2, 4, 4));
}

TEST_F(DDCChannelReconnectTest, WithoutTheCreateFunctionThereAreNoLinks) {
    makeChannel();
    bus.missingSymbols = {"IOAVServiceCreateWithService"};
    bus.connect(fresh, edidUUID, serial);
    EXPECT_FALSE(write());
    EXPECT_THAT(takeLog(), Contains(noReconnect(0)));
}

TEST_F(DDCChannelReconnectTest, HappensOncePerAttemptOfAReadOutsideTheThrottle) {
    makeChannel();
    monitor.takesPerTransfer(1s);
    channel->read(brightness, 2);
    const Timeline timeline = takeTimeline();
    EXPECT_EQ(std::ranges::count(timeline, "walk"), 2);
}

TEST_F(DDCChannelReconnectTest, CapabilitiesRequestGoesOutOnceMore) {
    makeChannel();
    bus.connect(fresh, edidUUID, serial);
    fresh.nextReply(test::fragmentReply(0, "(vcp(10))"));
    fresh.nextReply(test::fragmentReply(9, ""));
    EXPECT_EQ(channel->capabilities(), "(vcp(10))");
    EXPECT_THAT(takeTimeline(),
                ElementsAre("write 83 F3 00 00 4F", "walk", "write 83 F3 00 00 4F", "pause 50 ms", "read 38",
                            "write 83 F3 00 09 46", "pause 50 ms", "read 38"));
}

}  // namespace
}  // namespace vantrel::ddc
