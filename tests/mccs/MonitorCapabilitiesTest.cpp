#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "mccs/MonitorCapabilities.h"

namespace vantrel::mccs {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(MonitorCapabilities, ParsesAWholeString) {
    constexpr std::string_view text =
        "(prot(monitor)type(lcd)model(Aurora 27Q)cmds(01 02 03 07 0C E3 F3)"
        "vcp(02 04 05 08 10 12 14(05 08 0B) 16 18 1A 60(0F 11 12) 62 DC)mccs_ver(2.1))";
    const auto capabilities = MonitorCapabilities::parse(text);
    ASSERT_TRUE(capabilities);
    EXPECT_EQ(capabilities->raw, text);
    EXPECT_EQ(capabilities->model, "Aurora 27Q");
    EXPECT_THAT(capabilities->codes,
                ElementsAre(0x02, 0x04, 0x05, 0x08, 0x10, 0x12, 0x14, 0x16, 0x18, 0x1A, 0x60, 0x62, 0xDC));
    EXPECT_THAT(capabilities->values,
                ElementsAre(Pair(0x14, ElementsAre(5, 8, 11)), Pair(0x60, ElementsAre(15, 17, 18))));
}

TEST(MonitorCapabilities, KeepsTheTextExactlyAsItCame) {
    const std::string text = " VCP(10)\r\n\0\uFFFD"s;
    EXPECT_EQ(MonitorCapabilities::parse(text)->raw, text);
}

TEST(MonitorCapabilities, NeedAVCPSection) {
    EXPECT_EQ(MonitorCapabilities::parse(""), std::nullopt);
    EXPECT_EQ(MonitorCapabilities::parse("(prot(monitor)model(Aurora 27Q))"), std::nullopt);
    EXPECT_EQ(MonitorCapabilities::parse("vcp 10 12"), std::nullopt);
}

TEST(MonitorCapabilities, NeedMoreThanTheEndOfALongerName) {
    EXPECT_EQ(MonitorCapabilities::parse("_vcp(10)"), std::nullopt);
    EXPECT_EQ(MonitorCapabilities::parse("xvcp(10)"), std::nullopt);
}

TEST(MonitorCapabilities, NeedACode) {
    EXPECT_EQ(MonitorCapabilities::parse("vcp()"), std::nullopt);
    EXPECT_EQ(MonitorCapabilities::parse("vcp(zz)"), std::nullopt);
    EXPECT_EQ(MonitorCapabilities::parse("vcp((01 02))"), std::nullopt);
}

TEST(MonitorCapabilities, OnlyTheFirstVCPSectionCounts) {
    EXPECT_EQ(MonitorCapabilities::parse("vcp()vcp(10)"), std::nullopt);
    EXPECT_THAT(MonitorCapabilities::parse("vcp(10)vcp(12)")->codes, ElementsAre(0x10));
}

TEST(MonitorCapabilities, NeedNoModel) {
    EXPECT_EQ(MonitorCapabilities::parse("vcp(10)")->model, std::nullopt);
}

TEST(MonitorCapabilities, AnEmptyModelIsOne) {
    EXPECT_EQ(MonitorCapabilities::parse("model()vcp(10)")->model, "");
}

TEST(MonitorCapabilities, TheModelIsAsWritten) {
    EXPECT_EQ(MonitorCapabilities::parse("vcp(10)model( aBC )")->model, " aBC ");
}

TEST(MonitorCapabilities, AnUnterminatedModelTakesInTheVCPSection) {
    const auto capabilities = MonitorCapabilities::parse("model(Aurora vcp(10)");
    ASSERT_TRUE(capabilities);
    EXPECT_EQ(capabilities->model, "Aurora vcp(10)");
    EXPECT_THAT(capabilities->codes, ElementsAre(0x10));
}

TEST(MonitorCapabilities, AnUnterminatedListIsDiscardedAndItsCodeKept) {
    const auto capabilities = MonitorCapabilities::parse("vcp(14(01 02");
    ASSERT_TRUE(capabilities);
    EXPECT_THAT(capabilities->codes, ElementsAre(0x14));
    EXPECT_THAT(capabilities->values, IsEmpty());
}

TEST(MonitorCapabilities, WhatFollowsTheVCPSectionIsNotRead) {
    EXPECT_THAT(MonitorCapabilities::parse("vcp(10)mccs_ver(2.1)")->codes, ElementsAre(0x10));
}

TEST(MonitorCapabilities, IllFormedBytesOnlySeparate) {
    EXPECT_THAT(MonitorCapabilities::parse("\xFFvcp(1\xC3 2\xF0\x9F)")->codes, ElementsAre(0x01, 0x02));
}

TEST(MonitorCapabilities, AreEqualWhenEveryFieldIs) {
    const MonitorCapabilities capabilities{
        .raw = "r", .model = "m", .codes = {0x10, 0x14}, .values = {{0x14, {1, 2}}}};
    MonitorCapabilities other = capabilities;
    EXPECT_EQ(capabilities, other);
    other.raw = "s";
    EXPECT_NE(capabilities, other);
    other = capabilities;
    other.model.reset();
    EXPECT_NE(capabilities, other);
    other = capabilities;
    other.codes = {0x14, 0x10};
    EXPECT_NE(capabilities, other);
    other = capabilities;
    other.values[0x14] = {2, 1};
    EXPECT_NE(capabilities, other);
}

}  // namespace
}  // namespace vantrel::mccs
