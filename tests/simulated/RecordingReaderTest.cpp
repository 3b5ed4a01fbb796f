#include <gtest/gtest.h>

#include "platform/simulated/RecordingReader.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

using platform::Transfer;
using namespace std::chrono_literals;

std::string deskWithRecording(const std::string& transfers) {
    return deskWithMonitor(R"("recording": [)" + transfers + "]");
}

std::vector<Transfer> recordingOf(const std::string& transfers) {
    const Desk desk = readDeskText(deskWithRecording(transfers));
    if (desk.displays.empty()) {
        ADD_FAILURE() << desk.title;
        return {};
    }
    return desk.displays.front().monitor->recording;
}

std::string mistakeOf(const std::string& transfers) {
    std::string mistake = mistakeIn(deskWithRecording(transfers));
    const std::string place = "x.json: displays[0].monitor.recording";
    return mistake.starts_with(place) ? mistake.substr(place.size()) : mistake;
}

std::string pairs(std::size_t count) {
    std::string text;
    for (; count > 0; --count) text += "6E";
    return text;
}

TEST(RecordingReader, ReadsAWriteToAMonitor) {
    const Transfer expected{1500us, 360us, Transfer::Direction::write, 0x37, 0x51, {0x82, 0x01, 0x10, 0xAC},
                            4,      0};
    EXPECT_EQ(recordingOf(R"({"atMs": 1.5, "tookMs": 0.36, "write": "82 01 10 AC"})"), std::vector{expected});
}

TEST(RecordingReader, ReadsAReadFromAMonitor) {
    const Transfer expected{0us, 0us, Transfer::Direction::read, 0x37, 0, {0x6E, 0x80, 0xBE}, 3, 0};
    EXPECT_EQ(recordingOf(R"({"atMs": 0, "read": "6E 80 BE"})"), std::vector{expected});
}

TEST(RecordingReader, ReadsTransfersThatFailed) {
    const auto notResponding = static_cast<std::int32_t>(0xE00002ED);
    const Transfer write{0us, 0us, Transfer::Direction::write, 0x37, 0x51, {0x82}, 1, notResponding};
    const Transfer read{1ms, 0us, Transfer::Direction::read, 0x37, 0, {}, 11, notResponding};
    EXPECT_EQ(recordingOf(R"({"atMs": 0, "write": "82", "status": "0xE00002ED"},
                             {"atMs": 1, "read": 11, "status": 3758097133})"),
              (std::vector{write, read}));
}

TEST(RecordingReader, ReadsOtherAddresses) {
    const Transfer expected{0us, 0us, Transfer::Direction::write, 0x50, 2, {}, 0, 0};
    EXPECT_EQ(recordingOf(R"({"atMs": 0, "write": "", "chip": "0x50", "address": 2})"),
              std::vector{expected});
}

TEST(RecordingReader, WantsToKnowWhen) {
    EXPECT_EQ(mistakeOf(R"({"write": ""})"), "[0].atMs: is missing");
    EXPECT_EQ(mistakeOf(R"({"atMs": 86400001, "write": ""})"), "[0].atMs: 86400001 is more than 86400000");
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "tookMs": -1, "write": ""})"), "[0].tookMs: -1 is less than 0");
}

TEST(RecordingReader, RefusesTimesThatGoBack) {
    EXPECT_EQ(mistakeOf(R"({"atMs": 2, "write": ""}, {"atMs": 2, "write": ""}, {"atMs": 1, "write": ""})"),
              "[2].atMs: is before the transfer before it");
}

TEST(RecordingReader, RefusesATransferThatIsNotOneOfWriteAndRead) {
    EXPECT_EQ(mistakeOf(R"({"atMs": 0})"), "[0]: must have one of write and read");
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "write": "", "read": ""})"), "[0]: must have one of write and read");
}

TEST(RecordingReader, RefusesBytesThatAreNone) {
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "write": "82 0"})"),
              R"([0].write: "82 0" is not pairs of hexadecimal digits)");
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "write": 4})"), "[0].write: must be a text, not 4");
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "read": null})"),
              R"([0].read: must be a text like "6E 80" or a whole number, not null)");
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "read": 1.5, "status": 1})"),
              "[0].read: must be a whole number, not 1.5");
}

TEST(RecordingReader, HasTheBytesOfASuccessfulReadAndOfNoOther) {
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "read": 11})"), "[0].read: must be the bytes, as the status is 0");
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "read": "6E", "status": 1})"),
              "[0].read: must be a number of bytes, as the status is not 0");
}

TEST(RecordingReader, TakesTransfersOfAThousandBytesAndNoLonger) {
    EXPECT_EQ(recordingOf(R"({"atMs": 0, "write": ")" + pairs(1024) + R"("})").front().length, 1024U);
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "write": ")" + pairs(1025) + R"("})"),
              "[0].write: has more than 1024 bytes");
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "read": 1025, "status": 1})"), "[0].read: 1025 is more than 1024");
}

TEST(RecordingReader, TakesTenThousandTransfersAndNoMore) {
    std::string transfers = R"({"atMs": 0, "write": ""})";
    for (int count = 1; count < 10'000; ++count) transfers += R"(,{"atMs": 0, "write": ""})";
    EXPECT_EQ(recordingOf(transfers).size(), 10'000U);
    EXPECT_EQ(mistakeOf(transfers + R"(,{"atMs": 0, "write": ""})"), ": has more than 10000 transfers");
}

TEST(RecordingReader, RefusesAWordThatItDoesNotKnow) {
    EXPECT_EQ(mistakeOf(R"({"atMs": 0, "write": "", "colour": 1})"), "[0].colour: is not a known field");
}

}  // namespace
}  // namespace vantrel::simulated
