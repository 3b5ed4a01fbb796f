#include <gtest/gtest.h>
#include <string>

#include "mccs/CapabilitiesSection.h"

namespace vantrel::mccs {
namespace {

using namespace std::string_literals;

TEST(CapabilitiesSection, IsWhatStandsBetweenTheParentheses) {
    EXPECT_EQ(capabilitiesSection("model", "(prot(monitor)model(Aurora 27Q)vcp(10))"), "Aurora 27Q");
}

TEST(CapabilitiesSection, IsFoundAtTheStart) { EXPECT_EQ(capabilitiesSection("vcp", "vcp(10)"), "10"); }

TEST(CapabilitiesSection, IsFoundAtTheLastPositionWhereItFits) {
    EXPECT_EQ(capabilitiesSection("vcp", "(vcp("), "");
}

TEST(CapabilitiesSection, IsNotFoundWhenTheTextEndsBeforeItsParenthesis) {
    EXPECT_EQ(capabilitiesSection("vcp", "(vcp"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundInAnEmptyText) {
    EXPECT_EQ(capabilitiesSection("vcp", ""), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundWhenSomethingStandsBeforeItsParenthesis) {
    EXPECT_EQ(capabilitiesSection("vcp", "vcp (10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundUnderALongerName) {
    EXPECT_EQ(capabilitiesSection("vcp", "vcpname(10)"), std::nullopt);
}

TEST(CapabilitiesSection, MayBeEmpty) { EXPECT_EQ(capabilitiesSection("model", "model()vcp(10)"), ""); }

TEST(CapabilitiesSection, IsFoundInAnyCase) {
    EXPECT_EQ(capabilitiesSection("vcp", "VCP(10)"), "10");
    EXPECT_EQ(capabilitiesSection("vcp", "Vcp(10)"), "10");
    EXPECT_EQ(capabilitiesSection("model", "mOdEl(X)"), "X");
}

TEST(CapabilitiesSection, KeepsItsCase) { EXPECT_EQ(capabilitiesSection("model", "MODEL(aBc)"), "aBc"); }

TEST(CapabilitiesSection, IsNotTrimmed) {
    EXPECT_EQ(capabilitiesSection("model", "model( A \r\n)"), " A \r\n");
}

TEST(CapabilitiesSection, TheFirstOneWins) { EXPECT_EQ(capabilitiesSection("vcp", "vcp(10)vcp(12)"), "10"); }

TEST(CapabilitiesSection, MayStandInsideAnother) {
    EXPECT_EQ(capabilitiesSection("vcp", "model(vcp(10))vcp(12)"), "10");
}

TEST(CapabilitiesSection, ARejectedOneDoesNotHideALaterOne) {
    EXPECT_EQ(capabilitiesSection("vcp", "xvcp(10)vcp(12)"), "12");
}

TEST(CapabilitiesSection, IsFoundAfterAFalseStart) {
    EXPECT_EQ(capabilitiesSection("vcp", "(vc(vcp(10)"), "10");
    EXPECT_EQ(capabilitiesSection("model", "2model-model(X)"), "X");
}

TEST(CapabilitiesSection, IsNotFoundAfterALetter) {
    EXPECT_EQ(capabilitiesSection("vcp", "xvcp(10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundAfterACapitalLetter) {
    EXPECT_EQ(capabilitiesSection("vcp", "XVCP(10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundAfterALetterOfAnotherScript) {
    EXPECT_EQ(capabilitiesSection("vcp", "Жvcp(10)"), std::nullopt);
    EXPECT_EQ(capabilitiesSection("vcp", "漢vcp(10)"), std::nullopt);
    EXPECT_EQ(capabilitiesSection("vcp", "עvcp(10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundAfterALetterUnderAMark) {
    EXPECT_EQ(capabilitiesSection("vcp", "e\u0301vcp(10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundAfterALetterWhoseLowerCaseIsLonger) {
    EXPECT_EQ(capabilitiesSection("vcp", "\u0130vcp(10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundAfterAnUnderscore) {
    EXPECT_EQ(capabilitiesSection("vcp", "_vcp(10)"), std::nullopt);
    EXPECT_EQ(capabilitiesSection("vcp", "my_vcp(10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsFoundAfterADigit) { EXPECT_EQ(capabilitiesSection("vcp", "2vcp(10)"), "10"); }

TEST(CapabilitiesSection, IsFoundAfterADigitUnderAMark) {
    EXPECT_EQ(capabilitiesSection("vcp", "2\u0308vcp(10)"), "10");
}

TEST(CapabilitiesSection, IsFoundAfterAnUnderscoreUnderAMark) {
    EXPECT_EQ(capabilitiesSection("vcp", "_\u0308vcp(10)"), "10");
}

TEST(CapabilitiesSection, IsFoundAfterASpace) { EXPECT_EQ(capabilitiesSection("vcp", "x vcp(10)"), "10"); }

TEST(CapabilitiesSection, IsFoundAfterALineEnd) {
    EXPECT_EQ(capabilitiesSection("vcp", "x\r\nvcp(10)"), "10");
}

TEST(CapabilitiesSection, IsFoundAfterANULByte) {
    EXPECT_EQ(capabilitiesSection("vcp", "x\0vcp(10)"s), "10");
}

TEST(CapabilitiesSection, IsFoundAfterAParenthesis) {
    EXPECT_EQ(capabilitiesSection("vcp", "(vcp(10)"), "10");
    EXPECT_EQ(capabilitiesSection("vcp", ")vcp(10)"), "10");
}

TEST(CapabilitiesSection, IsNotFoundWhenAMarkIsOnItsParenthesis) {
    EXPECT_EQ(capabilitiesSection("vcp", "vcp(\u0308 10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundWhenAMarkIsOnALetterOfItsName) {
    EXPECT_EQ(capabilitiesSection("vcp", "vcp\u0308(10)"), std::nullopt);
    EXPECT_EQ(capabilitiesSection("vcp", "v\u0308cp(10)"), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundWhenAPrefixCombinesWithItsName) {
    constexpr std::string_view arabicNumberSignAndName = "\u0600vcp(10)";
    EXPECT_EQ(capabilitiesSection("vcp", arabicNumberSignAndName), std::nullopt);
}

TEST(CapabilitiesSection, IsNotFoundInFullWidthLetters) {
    EXPECT_EQ(capabilitiesSection("vcp", "ｖｃｐ(10)"), std::nullopt);
    EXPECT_EQ(capabilitiesSection("vcp", "vcp（10）"), std::nullopt);
}

TEST(CapabilitiesSection, IsCutWhereItIsWrittenThoughALowerCaseIsLonger) {
    EXPECT_EQ(capabilitiesSection("model", "\u0130\u0130\u0130 model(X\u0130)"), "X\u0130");
}

// The capital M in a circle is an emoji and joins; the small one is none.
TEST(CapabilitiesSection, IsCutWhereItIsWrittenThoughLowerCaseSplitsACharacter) {
    EXPECT_EQ(capabilitiesSection("model", "\u24C2\u200D\U0001F4BB model(AB)"), "AB");
}

TEST(CapabilitiesSection, KeepsNestedParentheses) {
    EXPECT_EQ(capabilitiesSection("vcp", "vcp(10 14(05 (08)) 60)x)"), "10 14(05 (08)) 60");
}

TEST(CapabilitiesSection, RunsToTheEndWhenItsParenthesisIsMissing) {
    EXPECT_EQ(capabilitiesSection("vcp", "vcp(14(01 02"), "14(01 02");
    EXPECT_EQ(capabilitiesSection("vcp", "vcp(14(01 02)"), "14(01 02)");
}

TEST(CapabilitiesSection, IsNotClosedByAParenthesisUnderAMark) {
    EXPECT_EQ(capabilitiesSection("model", "model(A)\u0308B)C"), "A)\u0308B");
}

TEST(CapabilitiesSection, IsNotNestedByAParenthesisUnderAMark) {
    EXPECT_EQ(capabilitiesSection("model", "model(A(\u0308B)C)"), "A(\u0308B");
}

TEST(CapabilitiesSection, IsAPieceOfTheTextItself) {
    const std::string text = "model(Aurora)";
    const auto section = capabilitiesSection("model", text);
    ASSERT_TRUE(section);
    EXPECT_EQ(section->data(), text.data() + 6);
}

TEST(CapabilitiesSection, NestsAMillionDeep) {
    const std::string nested = std::string(1'000'000, '(') + std::string(1'000'000, ')');
    EXPECT_EQ(capabilitiesSection("vcp", "vcp(" + nested + ")x"), std::string_view(nested));
}

}  // namespace
}  // namespace vantrel::mccs
