#include <gtest/gtest.h>

#include "mccs/MCCS.h"
#include "model/VCPFeature.h"

namespace vantrel::model {
namespace {

VCPFeature feature(std::uint8_t code) { return VCPFeature(code, mccs::MCCS::info(code)); }

TEST(VCPFeature, BeginsWithoutOptionsOrValueAndWithTheUsualMaximum) {
    const VCPFeature brightness = feature(0x10);
    EXPECT_EQ(brightness.code, 0x10);
    EXPECT_EQ(brightness.info, mccs::MCCS::info(0x10));
    EXPECT_TRUE(brightness.options.get().empty());
    EXPECT_EQ(brightness.current.get(), std::nullopt);
    EXPECT_EQ(brightness.maximum.get(), 100);
}

TEST(VCPFeature, CallsAValueByItsNameInTheCatalog) { EXPECT_EQ(feature(0xD6).label(4).english(), "Off"); }

TEST(VCPFeature, CallsAnInputByItsNameInTheCatalog) {
    EXPECT_EQ(feature(0x60).label(0x11).english(), "HDMI 1");
}

TEST(VCPFeature, ANameIsShownInTheUsersLanguageIfTheCatalogSaysSo) {
    EXPECT_FALSE(feature(0xD6).label(4).isVerbatim());
    EXPECT_TRUE(feature(0xD6).label(2).isVerbatim());
}

TEST(VCPFeature, CallsANamelessValueByTwoHexadecimalDigits) {
    EXPECT_EQ(feature(0xD6).label(0).english(), "0x00");
    EXPECT_EQ(feature(0x10).label(0xA).english(), "0x0A");
}

TEST(VCPFeature, CallsANamelessValueAboveTwoDigitsByAllOfThem) {
    EXPECT_EQ(feature(0x10).label(256).english(), "0x100");
    EXPECT_EQ(feature(0x10).label(0xFFFF).english(), "0xFFFF");
}

TEST(VCPFeature, DigitsAreTheSameInEveryLanguage) { EXPECT_TRUE(feature(0x10).label(10).isVerbatim()); }

}  // namespace
}  // namespace vantrel::model
