#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/RecordedMonitor.h"
#include "simulated/MonitorBench.h"

namespace vantrel::app {
namespace {

using platform::Transfer;
using simulated::bytes;
using simulated::FeaturePlan;
using simulated::InputPlan;
using simulated::MonitorPlan;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr std::int32_t failure = -1;

Transfer written(std::string_view frame, std::int32_t status = 0) {
    const auto all = bytes(frame);
    return {{},    {}, Transfer::Direction::write, 0x37, 0x51, all, static_cast<std::uint32_t>(all.size()),
            status};
}

Transfer replied(std::string_view frame) {
    const auto all = bytes(frame);
    return {{}, {}, Transfer::Direction::read, 0x37, 0, all, static_cast<std::uint32_t>(all.size()), 0};
}

Transfer failedRead() { return {{}, {}, Transfer::Direction::read, 0x37, 0, {}, 11, failure}; }

// A fragment of the capabilities string, in a frame with its checksum.
Transfer fragment(std::uint16_t offset, std::string_view text) {
    std::vector<std::uint8_t> frame{0x6E, static_cast<std::uint8_t>(0x80 | (text.size() + 3)), 0xE3,
                                    static_cast<std::uint8_t>(offset >> 8),
                                    static_cast<std::uint8_t>(offset)};
    frame.insert(frame.end(), text.begin(), text.end());
    std::uint8_t checksum = 0x50;
    for (const std::uint8_t byte : frame) checksum ^= byte;
    frame.push_back(checksum);
    const auto length = static_cast<std::uint32_t>(frame.size());
    return {{}, {}, Transfer::Direction::read, 0x37, 0, frame, length, 0};
}

constexpr const char* capabilitiesAt2 = "83 F3 00 02 4D";
constexpr const char* capabilitiesAt4 = "83 F3 00 04 4B";
constexpr const char* unsupported99 = "6E 88 02 01 99 00 00 00 00 00 2C";

// Shows 0F; a capabilities string that lists the given inputs.
std::vector<Transfer> monitorThatLists(const std::string& inputs) {
    return {written(simulated::get60), replied(simulated::reply60Is0F), written(simulated::capabilitiesAt0),
            fragment(0, "(vcp(60(" + inputs + ")))")};
}

TEST(RecordedMonitor, KeepsTheRecording) {
    const std::vector<Transfer> transfers{written(simulated::get10), replied(simulated::nullReply)};
    const MonitorPlan plan = RecordedMonitor::make(transfers);
    EXPECT_EQ(plan.recording, transfers);
    EXPECT_THAT(plan.features, IsEmpty());
    EXPECT_EQ(plan.capabilities, std::nullopt);
    EXPECT_EQ(plan.personality, simulated::Personality());
}

TEST(RecordedMonitor, HasTheValuesOfValidReplies) {
    EXPECT_THAT(RecordedMonitor::make({written(simulated::get10), written(simulated::get10),
                                       replied(simulated::reply10Is20), written(simulated::get12),
                                       replied(simulated::reply10Is50)})
                    .features,
                ElementsAre(Pair(0x10, FeaturePlan{0, 20, 100, false})));
}

TEST(RecordedMonitor, HasTheLastValueOfACode) {
    EXPECT_EQ(RecordedMonitor::make({written(simulated::get10), replied(simulated::reply10Is20),
                                     written(simulated::get10), replied(simulated::reply10Is50),
                                     written(simulated::get10), failedRead()})
                  .features.at(0x10)
                  .current,
              50);
}

TEST(RecordedMonitor, KnowsTheCodesThatItLacks) {
    FeaturePlan unsupported;
    unsupported.unsupported = true;
    EXPECT_THAT(RecordedMonitor::make({written(simulated::get99), replied(unsupported99)}).features,
                ElementsAre(Pair(0x99, unsupported)));
}

TEST(RecordedMonitor, TakesAReplyForTheRequestBeforeItOnly) {
    EXPECT_THAT(
        RecordedMonitor::make({replied(simulated::reply10Is20), written(simulated::get12), failedRead(),
                               written(simulated::set10To20), replied(simulated::reply10Is20)})
            .features,
        IsEmpty());
    Transfer elsewhere = written(simulated::get10);
    elsewhere.chip = 0x36;
    EXPECT_THAT(RecordedMonitor::make({elsewhere, replied(simulated::reply10Is20)}).features, IsEmpty());
    elsewhere = written(simulated::get10);
    elsewhere.address = 0x50;
    EXPECT_THAT(RecordedMonitor::make({elsewhere, replied(simulated::reply10Is20)}).features, IsEmpty());
}

TEST(RecordedMonitor, PutsTheCapabilitiesTogether) {
    EXPECT_EQ(RecordedMonitor::make({written(simulated::capabilitiesAt0), fragment(2, "no"),
                                     written(simulated::capabilitiesAt0), fragment(0, "(v"),
                                     written(capabilitiesAt2), fragment(2, "\xFF)"), written(capabilitiesAt4),
                                     fragment(4, "")})
                  .capabilities,
              "(v\xFF)");
}

TEST(RecordedMonitor, HasTheCapabilitiesUpToAHole) {
    EXPECT_EQ(RecordedMonitor::make({written(simulated::capabilitiesAt0), fragment(0, "(v"),
                                     written(capabilitiesAt4), fragment(4, "cp")})
                  .capabilities,
              "(v");
    EXPECT_EQ(RecordedMonitor::make({written(capabilitiesAt4), fragment(4, "cp")}).capabilities,
              std::nullopt);
}

TEST(RecordedMonitor, HasTheInputsThatItListsWhenItShowsOneOfThem) {
    const MonitorPlan plan = RecordedMonitor::make(monitorThatLists("0F 11 0F 12"));
    EXPECT_EQ(plan.inputs, (InputPlan{0x0F, 0x0F, {0x0F, 0x11, 0x12}}));
    EXPECT_THAT(plan.features, IsEmpty());
}

TEST(RecordedMonitor, HasItsInputAsAFeatureOtherwise) {
    for (const char* inputs : {"10 11", ""}) {
        const MonitorPlan plan = RecordedMonitor::make(monitorThatLists(inputs));
        EXPECT_EQ(plan.inputs, std::nullopt);
        EXPECT_THAT(plan.features, ElementsAre(Pair(0x60, FeaturePlan{0, 0x0F, 0x11, false})));
    }
    const MonitorPlan unlisted =
        RecordedMonitor::make({written(simulated::get60), replied(simulated::reply60Is0F)});
    EXPECT_EQ(unlisted.inputs, std::nullopt);
    EXPECT_THAT(unlisted.features, ElementsAre(Pair(0x60, FeaturePlan{0, 0x0F, 0x11, false})));
}

TEST(RecordedMonitor, IsDeadWhenNothingWasAcknowledged) {
    EXPECT_TRUE(RecordedMonitor::make({written(simulated::get10, failure), failedRead()}).personality.dead);
    EXPECT_FALSE(RecordedMonitor::make({written(simulated::get10), failedRead()}).personality.dead);
    EXPECT_FALSE(RecordedMonitor::make({}).personality.dead);
}

TEST(RecordedMonitor, KeepsNoMoreTransfersThanADeskFileTakes) {
    const std::vector<Transfer> many(MonitorPlan::mostTransfers + 1, written(simulated::get10));
    EXPECT_EQ(RecordedMonitor::make(many).recording.size(), MonitorPlan::mostTransfers);
}

TEST(RecordedMonitor, EndsBeforeATransferThatIsLongerThanADeskFileTakes) {
    Transfer longest = failedRead();
    longest.length = MonitorPlan::longestTransfer;
    Transfer tooLong = longest;
    ++tooLong.length;
    EXPECT_EQ(RecordedMonitor::make({longest, tooLong, longest}).recording, std::vector{longest});
}

}  // namespace
}  // namespace vantrel::app
