#include <gtest/gtest.h>

#include "platform/simulated/VCPTable.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using runtime::MonotonicTime;

constexpr MonotonicTime start{};

const std::map<std::uint8_t, FeaturePlan> features{
    {0x02, {1, 0, 0, false}},     {0x04, {0, 0, 1, false}},    {0x05, {0, 0, 1, false}},
    {0x08, {0, 0, 1, false}},     {0x10, {0, 50, 100, false}}, {0x14, {0, 5, 4, false}},
    {0x16, {0, 70, 100, false}},  {0x62, {0, 10, 0, false}},   {0x87, {0, 1, 4, true}},
    {0xDF, {0, 0x0202, 0, false}}};

std::optional<std::uint16_t> current(const VCPTable& table, std::uint8_t code, MonotonicTime now = start) {
    const auto reading = table.reading(code, now);
    if (!reading) return std::nullopt;
    return reading->current;
}

class VCPTableTest : public testing::Test {
  protected:
    VCPTable table{features, Duration(0)};
};

TEST_F(VCPTableTest, ReadsTypeMaximumAndCurrentAsPlanned) {
    EXPECT_EQ(table.reading(0x10, start), (VCPReading{0, 100, 50}));
    EXPECT_EQ(table.reading(0x02, start), (VCPReading{1, 0, 0}));
}

TEST_F(VCPTableTest, HasNoUnplannedAndNoUnsupportedCode) {
    EXPECT_EQ(table.reading(0x99, start), std::nullopt);
    EXPECT_EQ(table.reading(0x87, start), std::nullopt);
}

TEST_F(VCPTableTest, NeverMakesACodeOutOfAWrite) {
    table.write(0x99, 1, start);
    table.write(0x87, 1, start);
    table.adjust(0x99, 1);
    EXPECT_EQ(table.reading(0x99, start), std::nullopt);
    EXPECT_EQ(table.reading(0x87, start), std::nullopt);
}

TEST_F(VCPTableTest, TakesAContinuousValueUpToItsMaximum) {
    table.write(0x10, 100, start);
    EXPECT_EQ(current(table, 0x10), 100);
}

TEST_F(VCPTableTest, IgnoresAContinuousValueAboveItsMaximum) {
    table.write(0x10, 101, start);
    EXPECT_EQ(current(table, 0x10), 50);
}

TEST_F(VCPTableTest, TakesAnyContinuousValueWhenTheMaximumIsZero) {
    table.write(0x62, 65535, start);
    EXPECT_EQ(current(table, 0x62), 65535);
}

TEST_F(VCPTableTest, TakesAChoiceAboveItsMaximum) {
    table.write(0x14, 11, start);
    EXPECT_EQ(current(table, 0x14), 11);
}

TEST_F(VCPTableTest, KeepsNoValueOfAMomentaryCode) {
    table.write(0x02, 1, start);
    EXPECT_EQ(current(table, 0x02), 0);
}

TEST_F(VCPTableTest, RestoresEverythingWithCode04) {
    table.write(0x10, 1, start);
    table.write(0x16, 2, start);
    table.write(0x62, 3, start);
    table.write(0x04, 1, start);
    EXPECT_EQ(current(table, 0x10), 50);
    EXPECT_EQ(current(table, 0x16), 70);
    EXPECT_EQ(current(table, 0x62), 10);
    EXPECT_EQ(current(table, 0x04), 0);
}

TEST_F(VCPTableTest, RestoresLuminanceAloneWithCode05) {
    table.write(0x10, 1, start);
    table.write(0x16, 2, start);
    table.write(0x05, 1, start);
    EXPECT_EQ(current(table, 0x10), 50);
    EXPECT_EQ(current(table, 0x16), 2);
}

TEST_F(VCPTableTest, RestoresColourAloneWithCode08) {
    table.write(0x10, 1, start);
    table.write(0x16, 2, start);
    table.write(0x14, 1, start);
    table.write(0x08, 1, start);
    EXPECT_EQ(current(table, 0x10), 1);
    EXPECT_EQ(current(table, 0x16), 70);
    EXPECT_EQ(current(table, 0x14), 5);
}

TEST_F(VCPTableTest, RestoresNothingWithTheValueZero) {
    table.write(0x10, 1, start);
    table.write(0x04, 0, start);
    EXPECT_EQ(current(table, 0x10), 1);
}

TEST_F(VCPTableTest, RestoresNothingWithARestoreCodeThatItDoesNotHave) {
    VCPTable without({{0x10, {0, 50, 100, false}}}, Duration(0));
    without.write(0x10, 1, start);
    without.write(0x04, 1, start);
    EXPECT_EQ(current(without, 0x10), 1);
}

TEST_F(VCPTableTest, TakesAnyValueFromItsOwnKnob) {
    table.adjust(0x10, 140);
    EXPECT_EQ(current(table, 0x10), 140);
}

TEST(VCPTableReverting, GoesBackWhenTheTimeIsOver) {
    VCPTable table(features, 1s);
    table.write(0x10, 80, start);
    EXPECT_EQ(current(table, 0x10, start + 999ms), 80);
    EXPECT_EQ(current(table, 0x10, start + 1s), 50);
}

TEST(VCPTableReverting, GoesBackToTheOldValueWhenTheWriteIsRepeated) {
    VCPTable table(features, 1s);
    table.write(0x10, 80, start);
    table.write(0x10, 80, start + 10ms);
    EXPECT_EQ(current(table, 0x10, start + 1009ms), 80);
    EXPECT_EQ(current(table, 0x10, start + 1010ms), 50);
}

TEST(VCPTableReverting, KeepsWhatHasNotGoneBackOnceItStops) {
    VCPTable table(features, 1s);
    table.write(0x10, 80, start);
    table.write(0x16, 80, start + 500ms);
    table.stopReverting(start + 1s);
    EXPECT_EQ(current(table, 0x10, start + 9s), 50);
    EXPECT_EQ(current(table, 0x16, start + 9s), 80);
}

}  // namespace
}  // namespace vantrel::simulated
