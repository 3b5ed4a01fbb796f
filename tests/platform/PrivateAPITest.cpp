#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/PrivateAPI.h"
#include "support/DeathTest.h"
#include "support/EmptyRegistry.h"
#include "support/FakeSymbolLoader.h"
#include "support/RecordingLogSink.h"

namespace vantrel::platform {
namespace {

using Bytes = std::vector<std::uint8_t>;

const std::string ioKit = "/System/Library/Frameworks/IOKit.framework/IOKit";
constexpr int link = 0;
constexpr std::uint32_t chip = 0x37;
constexpr std::uint32_t offset = 0x51;

// What the private functions saw, and what they answer: C functions can't carry it.
struct Bus {
    int calls = 0;
    const void* service = nullptr;
    std::uint32_t chip = 0;
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
    Bytes written;
    Bytes bufferBefore;
    Bytes answer;
    std::int32_t status = 0;
};
Bus bus;

std::int32_t busWrite(const void* service, std::uint32_t chipAddress, std::uint32_t dataAddress,
                      const void* bytes, std::uint32_t length) {
    ++bus.calls;
    bus.service = service;
    bus.chip = chipAddress;
    bus.offset = dataAddress;
    bus.length = length;
    const auto* first = static_cast<const std::uint8_t*>(bytes);
    bus.written.assign(first, first + length);
    return bus.status;
}

std::int32_t busRead(const void* service, std::uint32_t chipAddress, std::uint32_t from, void* bytes,
                     std::uint32_t length) {
    ++bus.calls;
    bus.service = service;
    bus.chip = chipAddress;
    bus.offset = from;
    bus.length = length;
    auto* first = static_cast<std::uint8_t*>(bytes);
    bus.bufferBefore.assign(first, first + length);
    std::copy_n(bus.answer.begin(), std::min<std::size_t>(bus.answer.size(), length), first);
    return bus.status;
}

// What both kinds of tests have: a link whose functions are there once added.
struct Link {
    Link() { bus = Bus(); }
    void addWrite() { loader.addSymbol(ioKit, "IOAVServiceWriteI2C", busWrite); }
    void addRead() { loader.addSymbol(ioKit, "IOAVServiceReadI2C", busRead); }
    bool write(const Bytes& bytes) {
        return PrivateAPI::writeI2C(functions, log, service, chip, offset, bytes);
    }
    std::optional<Bytes> read(std::ptrdiff_t count) {
        return PrivateAPI::readI2C(functions, log, service, chip, offset, count);
    }
    static std::vector<test::LogLine> debugLine(const std::string& text) {
        return {{"org.vantrel.Vantrel", "ddc", LogLevel::debug, text}};
    }

    test::FakeSymbolLoader loader;
    PrivateFunctions functions{loader};
    test::RecordingLogSink sink;
    Log log{sink};
    test::EmptyRegistry registry;
    AVService service{registry, &link};
};

class PrivateAPITest : public testing::Test, protected Link {};

TEST_F(PrivateAPITest, WritesTheBytesToTheDataAddressOfTheChip) {
    addWrite();
    EXPECT_TRUE(write({0x84, 0x03, 0x10}));
    EXPECT_EQ(bus.service, &link);
    EXPECT_EQ(bus.chip, chip);
    EXPECT_EQ(bus.offset, offset);
    EXPECT_EQ(bus.written, (Bytes{0x84, 0x03, 0x10}));
    EXPECT_TRUE(sink.lines().empty());
}

TEST_F(PrivateAPITest, WritesNoBytes) {
    addWrite();
    EXPECT_TRUE(write({}));
    EXPECT_EQ(bus.calls, 1);
    EXPECT_EQ(bus.length, 0U);
}

TEST_F(PrivateAPITest, LogsAWriteThatFailedWithItsStatusAsUnsigned) {
    addWrite();
    bus.status = static_cast<std::int32_t>(0xE00002BC);
    EXPECT_FALSE(write({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(sink.lines(), debugLine("I2C write of 12 bytes failed: 0xe00002bc"));
}

TEST_F(PrivateAPITest, LogsAWritesStatusWithoutLeadingZeros) {
    addWrite();
    bus.status = 0xA;
    EXPECT_FALSE(write({1}));
    EXPECT_EQ(sink.lines(), debugLine("I2C write of 1 bytes failed: 0xa"));
}

TEST_F(PrivateAPITest, AWriteWithoutTheFunctionFailsSilently) {
    addRead();
    EXPECT_FALSE(write({1}));
    EXPECT_TRUE(sink.lines().empty());
}

TEST_F(PrivateAPITest, ReadsFromTheOffsetOfTheChip) {
    addRead();
    bus.answer = {0x6E, 0x88, 0x02};
    EXPECT_EQ(read(3), (Bytes{0x6E, 0x88, 0x02}));
    EXPECT_EQ(bus.service, &link);
    EXPECT_EQ(bus.chip, chip);
    EXPECT_EQ(bus.offset, offset);
    EXPECT_EQ(bus.length, 3U);
    EXPECT_TRUE(sink.lines().empty());
}

TEST_F(PrivateAPITest, ReadsIntoABufferOfZeros) {
    addRead();
    bus.answer = {0xFF};
    EXPECT_EQ(read(4), (Bytes{0xFF, 0, 0, 0}));
    EXPECT_EQ(bus.bufferBefore, Bytes(4, 0));
}

TEST_F(PrivateAPITest, AReadOfNoBytesStillAsksTheBus) {
    addRead();
    EXPECT_EQ(read(0), Bytes{});
    EXPECT_EQ(bus.calls, 1);
    EXPECT_EQ(bus.length, 0U);
}

TEST_F(PrivateAPITest, AReadOfNoBytesCanFail) {
    addRead();
    bus.status = 1;
    EXPECT_EQ(read(0), std::nullopt);
    EXPECT_EQ(sink.lines(), debugLine("I2C read of 0 bytes failed: 0x1"));
}

TEST_F(PrivateAPITest, LogsAReadThatFailedAndDropsItsBytes) {
    addRead();
    bus.answer = {1, 2, 3};
    bus.status = -1;
    EXPECT_EQ(read(38), std::nullopt);
    EXPECT_EQ(sink.lines(), debugLine("I2C read of 38 bytes failed: 0xffffffff"));
}

TEST_F(PrivateAPITest, AReadWithoutTheFunctionFailsSilently) {
    addWrite();
    EXPECT_EQ(read(3), std::nullopt);
    EXPECT_TRUE(sink.lines().empty());
}

class PrivateAPIDeathTest : public test::DeathTest, protected Link {};

TEST_F(PrivateAPIDeathTest, AReadOfANegativeNumberOfBytesStopsTheProgram) {
    addRead();
    EXPECT_DEATH(read(-1), "an I2C read of a negative number of bytes");
}

TEST_F(PrivateAPIDeathTest, AReadOfMoreBytesThanALengthCanSayStopsTheProgram) {
    addRead();
    EXPECT_DEATH(read(std::ptrdiff_t{1} << 32), "an I2C read of too many bytes");
}

}  // namespace
}  // namespace vantrel::platform
