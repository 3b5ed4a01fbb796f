#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "mccs/VCPSectionReader.h"

namespace vantrel::mccs {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Codes = std::vector<std::uint8_t>;
using Values = std::map<std::uint8_t, std::vector<std::uint16_t>>;

Codes codes(std::string_view contents) {
    VCPSectionReader reader;
    reader.read(contents);
    return reader.codes();
}

Values values(std::string_view contents) {
    VCPSectionReader reader;
    reader.read(contents);
    return reader.values();
}

TEST(VCPSectionReader, ReadsCodesAndTheirValues) {
    constexpr std::string_view contents = "10 12 14(05 08 0B) 60(0F 11 12)";
    EXPECT_THAT(codes(contents), ElementsAre(0x10, 0x12, 0x14, 0x60));
    EXPECT_THAT(values(contents),
                ElementsAre(Pair(0x14, ElementsAre(5, 8, 11)), Pair(0x60, ElementsAre(15, 17, 18))));
}

TEST(VCPSectionReader, ReadsNothingFromNothing) {
    EXPECT_THAT(codes(""), IsEmpty());
    EXPECT_THAT(values(""), IsEmpty());
}

TEST(VCPSectionReader, CodesNeedNoSeparator) { EXPECT_THAT(codes("101214"), ElementsAre(0x10, 0x12, 0x14)); }

TEST(VCPSectionReader, ThreeDigitsAreACodeOfTwoAndOneOfOne) {
    EXPECT_THAT(codes("101"), ElementsAre(0x10, 0x01));
}

TEST(VCPSectionReader, ASingleDigitIsACode) {
    EXPECT_THAT(codes("6 2"), ElementsAre(0x06, 0x02));
    EXPECT_THAT(codes("6"), ElementsAre(0x06));
}

TEST(VCPSectionReader, DigitsMayBeOfEitherCase) {
    EXPECT_THAT(codes("aA Af fC"), ElementsAre(0xAA, 0xAF, 0xFC));
}

TEST(VCPSectionReader, CodesKeepTheOrderInWhichTheyAppear) {
    EXPECT_THAT(codes("60 10 FF 02"), ElementsAre(0x60, 0x10, 0xFF, 0x02));
}

TEST(VCPSectionReader, KeepsADuplicateCodeOnceAtItsFirstPosition) {
    EXPECT_THAT(codes("10 10 12"), ElementsAre(0x10, 0x12));
    EXPECT_THAT(codes("12 10 12"), ElementsAre(0x12, 0x10));
}

TEST(VCPSectionReader, EveryCodeIsReadable) {
    std::string contents;
    Codes expected;
    for (int code = 0; code <= 0xFF; ++code) {
        contents += "0123456789ABCDEF"[code / 16];
        contents += "0123456789abcdef"[code % 16];
        expected.push_back(static_cast<std::uint8_t>(code));
    }
    EXPECT_EQ(codes(contents), expected);
}

TEST(VCPSectionReader, EveryOtherCharacterSeparates) {
    EXPECT_THAT(codes("1 2,3x4\r\n5\0006Ж7"s), ElementsAre(1, 2, 3, 4, 5, 6, 7));
}

TEST(VCPSectionReader, LettersBeyondFAreNoDigits) { EXPECT_THAT(codes("zz gh"), IsEmpty()); }

TEST(VCPSectionReader, ADigitUnderAMarkIsNone) {
    EXPECT_THAT(codes("1\u0308 2"), ElementsAre(0x02));
    EXPECT_THAT(codes("12\u03083"), ElementsAre(0x01, 0x03));
}

TEST(VCPSectionReader, DigitsOfOtherScriptsAreNone) { EXPECT_THAT(codes("１０ ٣ Ａ 10"), ElementsAre(0x10)); }

TEST(VCPSectionReader, ADigitThatAPrefixCombinesWithIsNone) {
    constexpr std::string_view arabicNumberSign = "\u0600";
    EXPECT_THAT(codes(std::string(arabicNumberSign) + "12"), ElementsAre(0x02));
}

TEST(VCPSectionReader, AListBelongsToTheCodeBeforeIt) {
    EXPECT_THAT(values("10 12(01)14"), ElementsAre(Pair(0x12, ElementsAre(1))));
}

TEST(VCPSectionReader, AListMayStandApartFromItsCode) {
    EXPECT_THAT(values("12 , zz (01)"), ElementsAre(Pair(0x12, ElementsAre(1))));
}

TEST(VCPSectionReader, AnOpeningParenthesisEndsACodeOfOneDigit) {
    EXPECT_THAT(codes("1(02)"), ElementsAre(0x01));
    EXPECT_THAT(values("1(02)"), ElementsAre(Pair(0x01, ElementsAre(2))));
}

TEST(VCPSectionReader, CodesGoOnAfterAList) {
    EXPECT_THAT(codes("14(01)1012"), ElementsAre(0x14, 0x10, 0x12));
}

TEST(VCPSectionReader, AnEmptyListStoresNothing) {
    EXPECT_THAT(codes("14() 10"), ElementsAre(0x14, 0x10));
    EXPECT_THAT(values("14() 10"), IsEmpty());
}

TEST(VCPSectionReader, AListWithoutAnyValueStoresNothing) { EXPECT_THAT(values("14(zz 12345)"), IsEmpty()); }

TEST(VCPSectionReader, AnEmptyListDoesNotReplaceAnEarlierOne) {
    EXPECT_THAT(values("14(01)()"), ElementsAre(Pair(0x14, ElementsAre(1))));
}

TEST(VCPSectionReader, AListBeforeAnyCodeIsLost) {
    EXPECT_THAT(codes("(01 02)10"), ElementsAre(0x10));
    EXPECT_THAT(values("(01 02)10"), IsEmpty());
}

TEST(VCPSectionReader, ASecondListReplacesTheFirst) {
    EXPECT_THAT(values("14(01 02)(03)"), ElementsAre(Pair(0x14, ElementsAre(3))));
}

TEST(VCPSectionReader, TheListOfADuplicateCodeReplacesTheFirst) {
    EXPECT_THAT(codes("14(01) 10 14(02)"), ElementsAre(0x14, 0x10));
    EXPECT_THAT(values("14(01) 10 14(02)"), ElementsAre(Pair(0x14, ElementsAre(2))));
}

TEST(VCPSectionReader, ADuplicateCodeWithoutAListKeepsTheFirst) {
    EXPECT_THAT(values("14(01) 10 14"), ElementsAre(Pair(0x14, ElementsAre(1))));
}

TEST(VCPSectionReader, AnInnerParenthesisEmptiesTheList) {
    EXPECT_THAT(codes("60(0F 11 (12))"), ElementsAre(0x60));
    EXPECT_THAT(values("60(0F 11 (12))"), ElementsAre(Pair(0x60, ElementsAre(18))));
}

TEST(VCPSectionReader, WhatFollowsAnInnerListIsReadAsCodes) {
    EXPECT_THAT(codes("60(0F (12) 1011)"), ElementsAre(0x60, 0x10, 0x11));
}

TEST(VCPSectionReader, AStrayClosingParenthesisOnlyEndsACode) {
    EXPECT_THAT(codes("1)2)10"), ElementsAre(0x01, 0x02, 0x10));
    EXPECT_THAT(values("14(01))10)"), ElementsAre(Pair(0x14, ElementsAre(1))));
}

TEST(VCPSectionReader, AListThatIsStillOpenAtTheEndIsDiscarded) {
    EXPECT_THAT(codes("14(01 02"), ElementsAre(0x14));
    EXPECT_THAT(values("14(01 02"), IsEmpty());
}

TEST(VCPSectionReader, AnOpenListDoesNotReplaceAnEarlierOne) {
    EXPECT_THAT(values("14(01)(02"), ElementsAre(Pair(0x14, ElementsAre(1))));
}

TEST(VCPSectionReader, AValueGrowsUntilSomethingEndsIt) {
    EXPECT_THAT(values("14(123 0C0D)"), ElementsAre(Pair(0x14, ElementsAre(0x123, 0x0C0D))));
}

TEST(VCPSectionReader, AClosingParenthesisEndsAValue) {
    EXPECT_THAT(values("14(1)"), ElementsAre(Pair(0x14, ElementsAre(1))));
}

TEST(VCPSectionReader, TheLargestValueHas16Bits) {
    EXPECT_THAT(values("14(FFFF)"), ElementsAre(Pair(0x14, ElementsAre(0xFFFF))));
}

TEST(VCPSectionReader, AValueAbove16BitsIsDropped) {
    EXPECT_THAT(values("14(12345 01)"), ElementsAre(Pair(0x14, ElementsAre(1))));
    EXPECT_THAT(values("14(10000 01)"), ElementsAre(Pair(0x14, ElementsAre(1))));
}

TEST(VCPSectionReader, LeadingZerosOfAValueAreNotSignificant) {
    EXPECT_THAT(values("14(000000FFFF)"), ElementsAre(Pair(0x14, ElementsAre(0xFFFF))));
}

TEST(VCPSectionReader, AListKeepsItsDuplicatesAndItsOrder) {
    EXPECT_THAT(values("14(03 01 03)"), ElementsAre(Pair(0x14, ElementsAre(3, 1, 3))));
}

TEST(VCPSectionReader, AParenthesisUnderAMarkOnlySeparates) {
    EXPECT_THAT(codes("1(\u03082)"), ElementsAre(0x01, 0x02));
    EXPECT_THAT(values("14(1)\u03082)"), ElementsAre(Pair(0x14, ElementsAre(1, 2))));
}

TEST(VCPSectionReader, ReadsAMillionParentheses) {
    const std::string contents = "14" + std::string(1'000'000, '(') + "01" + std::string(1'000'000, ')');
    EXPECT_THAT(values(contents), ElementsAre(Pair(0x14, ElementsAre(1))));
}

TEST(VCPSectionReader, ReadsATokenOfAMillionDigits) {
    const std::string million(1'000'000, '0');
    EXPECT_THAT(values("14(" + million + "7 1" + million + ")"), ElementsAre(Pair(0x14, ElementsAre(7))));
}

}  // namespace
}  // namespace vantrel::mccs
