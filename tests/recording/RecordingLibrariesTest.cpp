#include <gtest/gtest.h>

#include "recording/RecordingBench.h"
#include "support/DeathTest.h"

namespace vantrel::recording {
namespace {

using namespace std::chrono_literals;
using platform::Transfer;
using simulated::bytes;

constexpr auto notResponding = static_cast<std::int32_t>(0xE00002ED);

// The link of the monitor of display 2, opened.
class RecordingLibraries : public testing::Test {
  protected:
    static simulated::Desk desk() {
        simulated::Desk desk = simulated::ordinaryDesk();
        desk.displays[1].monitor->personality.byteTime = 90us;
        return desk;
    }

    platform::AVService open() {
        const auto walk = bench.platform.registry.iterateServicePlane();
        auto entry = walk->next();
        while (entry->property("Location") != platform::PropertyValue("External")) entry = walk->next();
        return {bench.platform.registry, bench.platform.functions.avCreate()(nullptr, entry->object())};
    }

    std::int32_t write(std::string_view frame, std::uint32_t chip = 0x37) {
        const simulated::Bytes written = bytes(frame);
        return bench.platform.functions.avWrite()(service.get(), chip, 0x51, written.data(),
                                                  static_cast<std::uint32_t>(written.size()));
    }

    std::int32_t read(simulated::Bytes& into, std::uint32_t chip = 0x37) {
        return bench.platform.functions.avRead()(service.get(), chip, 3, into.data(),
                                                 static_cast<std::uint32_t>(into.size()));
    }

    std::vector<Transfer> recorded() const { return bench.recorder.recording().transfers(0); }

    RecordingBench bench{desk()};
    platform::AVService service = open();
};

TEST_F(RecordingLibraries, PassesTransfersOnAndRecordsThem) {
    bench.real.time.sleepFor(5ms);
    EXPECT_EQ(write(simulated::get10), 0);
    bench.real.time.sleepFor(50ms);
    simulated::Bytes reply(11);
    EXPECT_EQ(read(reply), 0);
    EXPECT_EQ(reply, bytes(simulated::reply10Is50));
    EXPECT_EQ(
        recorded(),
        (std::vector<Transfer>{
            {5ms, 360us, Transfer::Direction::write, 0x37, 0x51, bytes(simulated::get10), 4, 0},
            {55'360us, 990us, Transfer::Direction::read, 0x37, 3, bytes(simulated::reply10Is50), 11, 0}}));
}

TEST_F(RecordingLibraries, RecordsNoBytesOfAReadThatFailed) {
    simulated::Bytes reply(11, 0xCC);
    EXPECT_EQ(write(simulated::get10, 0x36), notResponding);
    EXPECT_EQ(read(reply, 0x36), notResponding);
    EXPECT_EQ(reply, simulated::Bytes(11, 0xCC));
    ASSERT_EQ(recorded().size(), 2U);
    EXPECT_EQ(recorded().front().status, notResponding);
    EXPECT_EQ(recorded().front().bytes, bytes(simulated::get10));
    EXPECT_EQ(recorded().back().status, notResponding);
    EXPECT_EQ(recorded().back().bytes, simulated::Bytes());
    EXPECT_EQ(recorded().back().length, 11U);
}

TEST_F(RecordingLibraries, SurvivesBytesThatAreNotThere) {
    auto& functions = bench.platform.functions;
    EXPECT_NE(functions.avWrite()(service.get(), 0x37, 0x51, nullptr, 4), 0);
    EXPECT_NE(functions.avRead()(service.get(), 0x37, 0, nullptr, 4), 0);
    EXPECT_EQ(recorded().size(), 2U);
}

TEST_F(RecordingLibraries, OpensNoLinkWhereThereIsNone) {
    EXPECT_EQ(bench.platform.functions.avCreate()(nullptr, 0), nullptr);
}

TEST_F(RecordingLibraries, PassesOtherFunctionsOnAsTheyAre) {
    auto& real = bench.real.platform.functions;
    auto& functions = bench.platform.functions;
    EXPECT_EQ(functions.configureEnabled(), real.configureEnabled());
    EXPECT_EQ(functions.getBrightness(), real.getBrightness());
    EXPECT_EQ(functions.setBrightness(), real.setBrightness());
    EXPECT_NE(functions.avCreate(), real.avCreate());
    EXPECT_NE(functions.avWrite(), real.avWrite());
    EXPECT_NE(functions.avRead(), real.avRead());
}

TEST(RecordingLibrariesMissing, LackWhatTheSystemLacks) {
    simulated::Desk desk = simulated::ordinaryDesk();
    desk.missingSymbols = {"IOAVServiceCreateWithService", "IOAVServiceWriteI2C",
                           "IOAVServiceReadI2C",           "CGSConfigureDisplayEnabled",
                           "DisplayServicesGetBrightness", "DisplayServicesSetBrightness"};
    RecordingBench bench(desk);
    auto& functions = bench.platform.functions;
    EXPECT_EQ(functions.avCreate(), nullptr);
    EXPECT_EQ(functions.avWrite(), nullptr);
    EXPECT_EQ(functions.avRead(), nullptr);
    EXPECT_EQ(functions.configureEnabled(), nullptr);
    EXPECT_EQ(functions.getBrightness(), nullptr);
    EXPECT_EQ(functions.setBrightness(), nullptr);
}

using RecordingLibrariesDeathTest = test::DeathTest;

TEST_F(RecordingLibrariesDeathTest, RecordOneComputerAtATime) {
    RecordingBench bench;
    EXPECT_DEATH(RecordingPlatform(bench.real.platform), "two recordings at the same time");
}

TEST_F(RecordingLibrariesDeathTest, StopAProgramThatCallsThemAfterwards) {
    simulated::DeskBench real;
    const auto create = RecordingPlatform(real.platform).platform().functions.avCreate();
    EXPECT_DEATH(create(nullptr, 0), "a recorded function was called after its recording had ended");
}

}  // namespace
}  // namespace vantrel::recording
