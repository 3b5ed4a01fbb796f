#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Replies.h"
#include "ddc/DDCFrame.h"
#include "support/DeathTest.h"

namespace vantrel::ddc {
namespace {

using test::Bytes;
using test::fragmentReply;
using test::readingReply;
using test::sealed;
using testing::ElementsAre;
using testing::Optional;

constexpr std::uint8_t brightness = 0x10;
const Bytes brightnessReply{0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x00, 0x64, 0x00, 0x32, 0xF2};

// The same reply with another byte at `index` and a checksum to match.
Bytes resealed(Bytes reply, std::size_t index, std::uint8_t byte) {
    reply.at(index) = byte;
    reply.pop_back();
    return sealed(reply);
}

Bytes padded(Bytes reply, std::size_t size = 38) {
    reply.resize(size);
    return reply;
}

Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }

TEST(DDCFrame, RequestToReadBrightness) {
    EXPECT_THAT(requestPacket(Bytes{0x01, 0x10}), ElementsAre(0x82, 0x01, 0x10, 0xAC));
}

TEST(DDCFrame, RequestToSetBrightnessTo50) {
    EXPECT_THAT(requestPacket(Bytes{0x03, 0x10, 0x00, 0x32}),
                ElementsAre(0x84, 0x03, 0x10, 0x00, 0x32, 0x9A));
}

TEST(DDCFrame, FirstCapabilitiesRequest) {
    EXPECT_THAT(requestPacket(Bytes{0xF3, 0x00, 0x00}), ElementsAre(0x83, 0xF3, 0x00, 0x00, 0x4F));
}

TEST(DDCFrame, RequestWithoutPayloadIsLengthAndChecksum) {
    EXPECT_THAT(requestPacket(Bytes{}), ElementsAre(0x80, 0xBF));
}

TEST(DDCFrame, ChecksumOfARequestCoversAddressesLengthAndPayload) {
    const Bytes payload{0x03, 0xE2, 0xAB, 0xCD};
    const Bytes packet = requestPacket(payload);
    std::uint8_t all = 0x6E ^ 0x51;
    for (const std::uint8_t byte : packet) all ^= byte;
    EXPECT_EQ(all, 0);
}

TEST(DDCFrame, LengthByteIsThePayloadLengthWithTheHighestBitSet) {
    EXPECT_EQ(requestPacket(Bytes(127)).at(0), 0xFF);
    EXPECT_EQ(requestPacket(Bytes(128)).at(0), 0x80);
    EXPECT_EQ(requestPacket(Bytes(129)).at(0), 0x81);
}

TEST(DDCFrame, RequestTakes255BytesOfPayload) {
    const Bytes packet = requestPacket(Bytes(255, 0x01));
    ASSERT_EQ(packet.size(), 257U);
    EXPECT_EQ(packet.front(), 0xFF);
    EXPECT_EQ(packet.back(), 0x3F ^ 0xFF ^ 0x01);
}

using DDCFrameDeathTest = test::DeathTest;

TEST_F(DDCFrameDeathTest, MoreThan255BytesOfPayloadStopTheProgram) {
    EXPECT_DEATH(requestPacket(Bytes(256)), "broken invariant");
}

TEST(DDCFrame, ReadingIsValid) { EXPECT_TRUE(isValidReading(brightnessReply, brightness)); }

TEST(DDCFrame, ReadingWithAnotherOpcodeIsInvalid) {
    EXPECT_FALSE(isValidReading(resealed(brightnessReply, 2, 0x03), brightness));
    EXPECT_FALSE(isValidReading(resealed(brightnessReply, 2, 0xE3), brightness));
    EXPECT_FALSE(isValidReading(resealed(brightnessReply, 2, 0x00), brightness));
}

TEST(DDCFrame, ReadingOfAnotherCodeIsInvalid) {
    EXPECT_FALSE(isValidReading(readingReply(0x12, 50, 100), brightness));
}

TEST(DDCFrame, ReadingWithOneWrongBitAnywhereIsInvalid) {
    for (std::size_t index = 0; index < brightnessReply.size(); ++index) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            Bytes reply = brightnessReply;
            reply[index] = static_cast<std::uint8_t>(reply[index] ^ 1U << bit);
            EXPECT_FALSE(isValidReading(reply, brightness)) << "byte " << index << ", bit " << bit;
        }
    }
}

TEST(DDCFrame, SourceLengthAndTypeOfAReadingAreCoveredByTheChecksumOnly) {
    for (const std::size_t index : {0U, 1U, 5U}) {
        for (unsigned byte = 0; byte < 256; ++byte) {
            const Bytes reply = resealed(brightnessReply, index, static_cast<std::uint8_t>(byte));
            EXPECT_TRUE(isValidReading(reply, brightness)) << "byte " << index << " is " << byte;
        }
    }
}

TEST(DDCFrame, NullMessageIsNoReading) {
    EXPECT_FALSE(isValidReading(Bytes{0x6E, 0x80, 0xBE, 0, 0, 0, 0, 0, 0, 0, 0}, brightness));
}

TEST(DDCFrame, ReadingWithAResultCodeIsValidAndUnsupported) {
    for (unsigned result = 1; result < 256; ++result) {
        const Bytes reply = resealed(brightnessReply, 3, static_cast<std::uint8_t>(result));
        EXPECT_TRUE(isValidReading(reply, brightness)) << result;
        EXPECT_TRUE(isUnsupported(reply)) << result;
    }
}

TEST(DDCFrame, ReadingWithResultCodeZeroIsSupported) { EXPECT_FALSE(isUnsupported(brightnessReply)); }

TEST(DDCFrame, ValuesOfAReadingAreBigEndianMaximumFirst) {
    const Bytes reply = sealed({0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x12, 0x34, 0xFE, 0xDC});
    EXPECT_EQ(readingOf(reply), (VCPReading{.current = 0xFEDC, .maximum = 0x1234}));
}

TEST(DDCFrame, FragmentYieldsItsStringBytes) {
    EXPECT_THAT(fragmentOf(padded(fragmentReply(0, "(prot(monitor)")), 0),
                Optional(bytesOf("(prot(monitor)")));
}

TEST(DDCFrame, FragmentOf32BytesFillsTheReply) {
    const std::string text = "0123456789abcdef0123456789ABCDEF";
    const Bytes reply = fragmentReply(0x0120, text);
    ASSERT_EQ(reply.size(), 38U);
    EXPECT_THAT(fragmentOf(reply, 0x0120), Optional(bytesOf(text)));
}

TEST(DDCFrame, FragmentOfLengthThreeIsEmpty) {
    const Bytes reply = padded(fragmentReply(0x20, ""));
    ASSERT_EQ(reply[1], 0x83);
    EXPECT_THAT(fragmentOf(reply, 0x20), Optional(Bytes{}));
}

// In each, the checksum is where the length puts it, and the offset fits.
TEST(DDCFrame, FragmentOfLengthBelowThreeIsInvalid) {
    const Bytes two = sealed({0x6E, 0x82, 0xE3, 0x00});
    EXPECT_EQ(fragmentOf(padded(two), two.at(4)), std::nullopt);
    const Bytes one = sealed({0x6E, 0x81, 0xE3});
    EXPECT_EQ(fragmentOf(padded(one), static_cast<std::uint16_t>(one.at(3) << 8)), std::nullopt);
    const Bytes zero = sealed({0x33, 0x80});
    ASSERT_EQ(zero.at(2), 0xE3);
    EXPECT_EQ(fragmentOf(padded(zero), 0), std::nullopt);
}

TEST(DDCFrame, HighestBitOfAFragmentsLengthIsIgnored) {
    EXPECT_THAT(fragmentOf(padded(sealed({0x6E, 0x04, 0xE3, 0x00, 0x00, 'x'})), 0), Optional(bytesOf("x")));
}

TEST(DDCFrame, EveryLowerBitOfAFragmentsLengthCounts) {
    EXPECT_EQ(fragmentOf(padded(sealed({0x6E, 0xC4, 0xE3, 0x00, 0x00, 'x'})), 0), std::nullopt);
}

TEST(DDCFrame, FragmentThatSaysItIsLongerThanTheReplyIsInvalid) {
    // 36 bytes and 3 of frame are one more than were read.
    Bytes reply{0x6E, 0xA4, 0xE3, 0x00, 0x00};
    reply.resize(37, 'x');
    EXPECT_EQ(fragmentOf(sealed(reply), 0), std::nullopt);
    reply[1] = 0xFF;
    EXPECT_EQ(fragmentOf(sealed(reply), 0), std::nullopt);
}

TEST(DDCFrame, FragmentMustReachItsChecksum) {
    const Bytes whole = fragmentReply(0, "abcde");
    EXPECT_THAT(fragmentOf(whole, 0), Optional(bytesOf("abcde")));
    EXPECT_EQ(fragmentOf(std::span(whole).first(whole.size() - 1), 0), std::nullopt);
}

TEST(DDCFrame, FragmentWithAnotherOpcodeIsInvalid) {
    EXPECT_EQ(fragmentOf(padded(sealed({0x6E, 0x84, 0x02, 0x00, 0x00, 'x'})), 0), std::nullopt);
    EXPECT_EQ(fragmentOf(padded(sealed({0x6E, 0x84, 0xF3, 0x00, 0x00, 'x'})), 0), std::nullopt);
}

TEST(DDCFrame, FragmentWithOneWrongBitIsInvalid) {
    const Bytes reply = fragmentReply(0x0120, "vcp(10 12)");
    for (std::size_t index = 0; index < reply.size(); ++index) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            // Which the length ignores and the checksum catches.
            Bytes damaged = reply;
            damaged[index] = static_cast<std::uint8_t>(damaged[index] ^ 1U << bit);
            EXPECT_EQ(fragmentOf(padded(damaged), 0x0120), std::nullopt)
                << "byte " << index << ", bit " << bit;
        }
    }
}

TEST(DDCFrame, FragmentOfAnotherOffsetIsInvalid) {
    EXPECT_EQ(fragmentOf(padded(fragmentReply(0x0121, "x")), 0x0120), std::nullopt);
    EXPECT_EQ(fragmentOf(padded(fragmentReply(0x0220, "x")), 0x0120), std::nullopt);
    EXPECT_EQ(fragmentOf(padded(fragmentReply(0x2001, "x")), 0x0120), std::nullopt);
}

TEST(DDCFrame, BytesAfterAFragmentAreNotLookedAt) {
    Bytes reply = fragmentReply(0, "x");
    reply.resize(38, 0xAA);
    EXPECT_THAT(fragmentOf(reply, 0), Optional(bytesOf("x")));
}

TEST(DDCFrame, SourceOfAFragmentIsCoveredByTheChecksumOnly) {
    EXPECT_THAT(fragmentOf(padded(sealed({0x51, 0x84, 0xE3, 0x00, 0x00, 'x'})), 0), Optional(bytesOf("x")));
}

TEST(DDCFrame, FragmentKeepsNULBytes) {
    EXPECT_THAT(fragmentOf(padded(sealed({0x6E, 0x85, 0xE3, 0x00, 0x00, 0x00, 'x'})), 0),
                Optional(ElementsAre(0x00, 'x')));
}

}  // namespace
}  // namespace vantrel::ddc
