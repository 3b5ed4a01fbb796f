#include <gtest/gtest.h>

#include "mccs/VCPCatalog.h"

namespace vantrel::mccs {
namespace {

VCPCatalogEntry entry(std::uint8_t code, std::string name) {
    return {code, VCPInfo{.name = text::Text::translated(std::move(name)),
                          .kind = VCPInfo::Kind::continuous,
                          .group = VCPInfo::Group::main}};
}

TEST(VCPCatalog, IsMadeOfItsEntries) {
    const VCPCatalog catalog = vcpCatalog({entry(0x12, "Contrast"), entry(0x10, "Brightness")});
    ASSERT_EQ(catalog.size(), 2U);
    EXPECT_EQ(catalog.at(0x10).name.key(), "Brightness");
    EXPECT_EQ(catalog.at(0x12).name.key(), "Contrast");
}

TEST(VCPCatalogDeathTest, ACodeThatOccursTwiceStopsTheProgram) {
    EXPECT_DEATH(vcpCatalog({entry(0x10, "Brightness"), entry(0x12, "Contrast"), entry(0x10, "Luminance")}),
                 "VCP code 0x10 is twice in the catalog");
}

TEST(VCPCatalog, FiftyCodesAreKnownAndNoneTwice) {
    EXPECT_EQ(knownVCPCodes().size(), 50U);
    EXPECT_EQ(vcpCatalog(knownVCPCodes()).size(), 50U);
}

}  // namespace
}  // namespace vantrel::mccs
