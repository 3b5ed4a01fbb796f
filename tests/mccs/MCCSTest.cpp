#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "mccs/MCCS.h"
#include "text/Hex.h"

namespace vantrel::mccs {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using text::Text;
using enum VCPInfo::Kind;
using enum VCPInfo::Group;
using ValueNames = std::map<std::uint16_t, Text>;

Text V(std::string text) { return Text::verbatim(std::move(text)); }
Text T(std::string key) { return Text::translated(std::move(key)); }

struct Row {
    std::uint8_t code;
    Text name;
    VCPInfo::Kind kind;
    VCPInfo::Group group;
};

// In the order of the codes; the product's table is in the order of the groups.
const std::vector<Row>& expectedCatalog() {
    static const std::vector<Row> rows{
        {0x04, T("Restore factory defaults"), action, system},
        {0x05, T("Restore brightness and contrast"), action, system},
        {0x06, T("Restore geometry"), action, system},
        {0x08, T("Restore factory colors"), action, system},
        {0x0C, T("Color temperature"), continuous, color},
        {0x10, T("Brightness"), continuous, main},
        {0x12, T("Contrast"), continuous, main},
        {0x14, T("Color preset"), choice, color},
        {0x16, T("Red gain"), continuous, color},
        {0x18, T("Green gain"), continuous, color},
        {0x1A, T("Blue gain"), continuous, color},
        {0x1E, V("Auto setup"), action, system},
        {0x1F, T("Auto color"), action, system},
        {0x20, T("Horizontal position"), continuous, picture},
        {0x30, T("Vertical position"), continuous, picture},
        {0x3E, T("Clock phase"), continuous, picture},
        {0x59, T("Red saturation"), continuous, color},
        {0x5A, T("Yellow saturation"), continuous, color},
        {0x5B, T("Green saturation"), continuous, color},
        {0x5C, T("Cyan saturation"), continuous, color},
        {0x5D, T("Blue saturation"), continuous, color},
        {0x5E, T("Magenta saturation"), continuous, color},
        {0x60, T("Input"), choice, main},
        {0x62, V("Volume"), continuous, audio},
        {0x6C, T("Red black level"), continuous, color},
        {0x6E, T("Green black level"), continuous, color},
        {0x70, T("Blue black level"), continuous, color},
        {0x72, T("Gamma"), choice, picture},
        {0x86, T("Scaling"), choice, picture},
        {0x87, T("Sharpness"), continuous, picture},
        {0x8A, T("Saturation"), continuous, color},
        {0x8D, T("Mute"), choice, audio},
        {0x8F, T("Treble"), continuous, audio},
        {0x90, T("Hue"), continuous, color},
        {0x91, T("Bass"), continuous, audio},
        {0x93, T("Balance"), continuous, audio},
        {0x9B, T("Red hue"), continuous, color},
        {0x9C, T("Yellow hue"), continuous, color},
        {0x9D, T("Green hue"), continuous, color},
        {0x9E, T("Cyan hue"), continuous, color},
        {0x9F, T("Blue hue"), continuous, color},
        {0xA0, T("Magenta hue"), continuous, color},
        {0xAA, T("Orientation"), readOnly, info},
        {0xAE, T("Vertical frequency"), readOnly, info},
        {0xC0, T("Usage hours"), readOnly, info},
        {0xC9, V("Firmware"), readOnly, info},
        {0xCA, T("On-screen menu (OSD)"), choice, system},
        {0xCC, T("OSD language"), choice, system},
        {0xD6, T("Power"), choice, system},
        {0xDC, T("Picture mode"), choice, picture},
    };
    return rows;
}

const ValueNames& valueNames(std::uint8_t code) { return MCCS::catalog().at(code).valueNames; }

TEST(MCCS, TheCatalogHoldsTheFiftyCodesAndNoOthers) {
    std::vector<std::uint8_t> expected;
    for (const Row& row : expectedCatalog()) expected.push_back(row.code);
    std::vector<std::uint8_t> actual;
    for (const auto& [code, info] : MCCS::catalog()) actual.push_back(code);
    EXPECT_EQ(actual, expected);
    EXPECT_EQ(actual.size(), 50U);
}

TEST(MCCS, EveryCodeOfTheCatalogHasItsNameKindAndGroup) {
    for (const Row& row : expectedCatalog()) {
        SCOPED_TRACE("code 0x" + text::upperHex(row.code));
        const VCPInfo& info = MCCS::catalog().at(row.code);
        EXPECT_EQ(info.name, row.name);
        EXPECT_EQ(info.kind, row.kind);
        EXPECT_EQ(info.group, row.group);
    }
}

TEST(MCCS, EveryActionValueOfTheCatalogIsOne) {
    for (const auto& [code, info] : MCCS::catalog()) EXPECT_EQ(info.actionValue, 1) << text::upperHex(code);
}

TEST(MCCS, TenCodesOfTheCatalogHaveNamedValues) {
    std::vector<std::uint8_t> named;
    for (const auto& [code, info] : MCCS::catalog()) {
        if (!info.valueNames.empty()) named.push_back(code);
    }
    EXPECT_THAT(named, ElementsAre(0x14, 0x60, 0x72, 0x86, 0x8D, 0xAA, 0xCA, 0xCC, 0xD6, 0xDC));
}

TEST(MCCS, NamesTheColorPresets) {
    EXPECT_EQ(valueNames(0x14), (ValueNames{{1, V("sRGB")},
                                            {2, T("Native")},
                                            {3, V("4000 K")},
                                            {4, V("5000 K")},
                                            {5, V("6500 K")},
                                            {6, V("7500 K")},
                                            {7, V("8200 K")},
                                            {8, V("9300 K")},
                                            {9, V("10000 K")},
                                            {10, V("11500 K")},
                                            {11, T("User 1")},
                                            {12, T("User 2")},
                                            {13, T("User 3")}}));
}

TEST(MCCS, NamesTheInputs) {
    EXPECT_EQ(MCCS::inputNames(),
              (ValueNames{{1, V("VGA 1")},          {2, V("VGA 2")},        {3, V("DVI 1")},
                          {4, V("DVI 2")},          {5, T("Composite 1")},  {6, T("Composite 2")},
                          {7, V("S-Video 1")},      {8, V("S-Video 2")},    {9, V("Tuner 1")},
                          {10, V("Tuner 2")},       {11, V("Tuner 3")},     {12, T("Component 1")},
                          {13, T("Component 2")},   {14, T("Component 3")}, {15, V("DisplayPort 1")},
                          {16, V("DisplayPort 2")}, {17, V("HDMI 1")},      {18, V("HDMI 2")},
                          {19, V("HDMI 3")},        {20, V("HDMI 4")},      {0x1B, V("USB-C")},
                          {0x19, V("USB-C 2")}}));
    EXPECT_EQ(MCCS::inputNames().size(), 22U);
}

TEST(MCCS, TheValuesOfInputAreTheInputNames) { EXPECT_EQ(valueNames(0x60), MCCS::inputNames()); }

TEST(MCCS, TheInputBetweenTheTwoUSBCInputsHasNoName) {
    EXPECT_FALSE(MCCS::inputNames().contains(0x1A));
    EXPECT_EQ(MCCS::inputNames().at(0x19), V("USB-C 2"));
    EXPECT_EQ(MCCS::inputNames().at(0x1B), V("USB-C"));
}

TEST(MCCS, NamesTheGammas) {
    EXPECT_EQ(
        valueNames(0x72),
        (ValueNames{{80, V("1.8")}, {100, V("2.0")}, {120, V("2.2")}, {140, V("2.4")}, {160, V("2.6")}}));
}

TEST(MCCS, AGammaValueIsAHundredTimesTheGammaLessAHundred) {
    for (const auto& [value, name] : valueNames(0x72)) {
        EXPECT_DOUBLE_EQ(value, std::stod(name.key()) * 100 - 100);
    }
}

TEST(MCCS, NamesTheScalings) {
    EXPECT_EQ(valueNames(0x86), (ValueNames{{1, T("No scaling")},
                                            {2, T("Full screen")},
                                            {3, T("Max vertical")},
                                            {4, T("Max horizontal")},
                                            {5, T("Max vertical, no distortion")},
                                            {6, T("Max horizontal, no distortion")},
                                            {7, V("Linear 4:3")},
                                            {8, T("Non-linear")},
                                            {9, V("Linear widescreen")}}));
}

TEST(MCCS, NamesTheMuteStates) {
    EXPECT_EQ(valueNames(0x8D), (ValueNames{{1, T("Muted")}, {2, T("Sound on")}}));
}

TEST(MCCS, NamesTheOrientations) {
    EXPECT_EQ(valueNames(0xAA), (ValueNames{{1, V("0\u00B0")},
                                            {2, V("90\u00B0")},
                                            {3, V("180\u00B0")},
                                            {4, V("270\u00B0")},
                                            {255, T("N/A")}}));
}

TEST(MCCS, NamesTheStatesOfTheOnScreenMenu) {
    EXPECT_EQ(valueNames(0xCA), (ValueNames{{1, T("Disabled")}, {2, T("Enabled")}}));
}

TEST(MCCS, NamesTheLanguagesOfTheOnScreenMenu) {
    EXPECT_EQ(valueNames(0xCC), (ValueNames{{1, T("Chinese (Trad.)")},
                                            {2, T("English")},
                                            {3, T("French")},
                                            {4, T("German")},
                                            {5, T("Italian")},
                                            {6, T("Japanese")},
                                            {7, T("Korean")},
                                            {8, T("Portuguese (PT)")},
                                            {9, T("Russian")},
                                            {10, T("Spanish")},
                                            {11, T("Swedish")},
                                            {12, T("Turkish")},
                                            {13, T("Chinese (Simpl.)")},
                                            {14, T("Portuguese (BR)")},
                                            {15, T("Arabic")},
                                            {16, T("Bulgarian")},
                                            {17, T("Croatian")},
                                            {18, T("Czech")},
                                            {19, T("Danish")},
                                            {20, T("Dutch")},
                                            {21, T("Estonian")},
                                            {22, T("Finnish")},
                                            {23, T("Greek")},
                                            {24, T("Hebrew")},
                                            {25, V("Hindi")},
                                            {26, T("Hungarian")},
                                            {27, T("Latvian")},
                                            {28, T("Lithuanian")},
                                            {29, T("Norwegian")},
                                            {30, T("Polish")},
                                            {31, T("Romanian")},
                                            {32, T("Serbian")},
                                            {33, T("Slovak")},
                                            {34, T("Slovenian")},
                                            {35, T("Thai")},
                                            {36, T("Ukrainian")},
                                            {37, T("Vietnamese")}}));
}

TEST(MCCS, NamesThePowerStates) {
    EXPECT_EQ(
        valueNames(0xD6),
        (ValueNames{
            {1, T("On")}, {2, V("Standby")}, {3, T("Suspended")}, {4, T("Off")}, {5, T("Off (button)")}}));
}

TEST(MCCS, NamesThePictureModes) {
    EXPECT_EQ(valueNames(0xDC), (ValueNames{{0, T("Standard")},
                                            {1, T("Productivity")},
                                            {2, T("Mixed")},
                                            {3, T("Movie")},
                                            {4, T("User")},
                                            {5, T("Games")},
                                            {6, T("Sports")},
                                            {7, T("Professional")},
                                            {8, T("Standard (intermediate)")},
                                            {9, T("Standard (long)")},
                                            {10, V("Demo")},
                                            {240, T("Dynamic contrast")}}));
}

TEST(MCCS, HidesElevenCodes) {
    EXPECT_THAT(MCCS::hidden(),
                ElementsAre(0x02, 0x03, 0x0B, 0x52, 0xAC, 0xB2, 0xB6, 0xC6, 0xC8, 0xDF, 0xF3));
}

TEST(MCCS, InfoOfAKnownCodeIsItsEntry) {
    for (const auto& [code, entry] : MCCS::catalog())
        EXPECT_EQ(MCCS::info(code), entry) << text::upperHex(code);
}

TEST(MCCS, AKnownContinuousCodeStaysContinuousWhateverValuesAreListed) {
    const std::vector<std::uint16_t> listed{1, 2};
    const VCPInfo info = MCCS::info(0x10, listed);
    EXPECT_EQ(info.name, T("Brightness"));
    EXPECT_EQ(info.kind, continuous);
    EXPECT_EQ(info.group, main);
    EXPECT_THAT(info.valueNames, IsEmpty());
}

TEST(MCCS, AKnownChoiceKeepsItsOwnValueNames) {
    const std::vector<std::uint16_t> listed{2, 77};
    EXPECT_EQ(MCCS::info(0x8D, listed).valueNames, (ValueNames{{1, T("Muted")}, {2, T("Sound on")}}));
}

TEST(MCCS, AnUnknownManufacturerCodeIsAVendorSlider) {
    const VCPInfo info = MCCS::info(0xE5);
    EXPECT_EQ(info.name, Text::translated("Vendor 0x%@", {"E5"}));
    EXPECT_EQ(info.name.english(), "Vendor 0xE5");
    EXPECT_EQ(info.kind, continuous);
    EXPECT_EQ(info.group, vendor);
}

TEST(MCCS, AnUnknownStandardCodeWithListedValuesIsAChoice) {
    const std::vector<std::uint16_t> listed{1, 2};
    const VCPInfo info = MCCS::info(0x7A, listed);
    EXPECT_EQ(info.name, V("VCP 0x7A"));
    EXPECT_EQ(info.kind, choice);
    EXPECT_EQ(info.group, vendor);
}

TEST(MCCS, AnUnknownManufacturerCodeWithListedValuesIsAChoice) {
    const std::vector<std::uint16_t> listed{0};
    EXPECT_EQ(MCCS::info(0xFF, listed).kind, choice);
}

TEST(MCCS, AnEmptyListOfValuesCountsAsNone) {
    const std::vector<std::uint16_t> listed;
    const VCPInfo info = MCCS::info(0xE0, listed);
    EXPECT_EQ(info.name.english(), "Vendor 0xE0");
    EXPECT_FALSE(info.name.isVerbatim());
    EXPECT_EQ(info.kind, continuous);
}

TEST(MCCS, TheLastStandardCodeIsNoManufacturerCode) {
    const VCPInfo info = MCCS::info(0xDF);
    EXPECT_EQ(info.name, V("VCP 0xDF"));
    EXPECT_EQ(info.kind, continuous);
    EXPECT_EQ(info.group, vendor);
}

TEST(MCCS, AnUnknownCodeIsNamedWithTwoDigits) { EXPECT_EQ(MCCS::info(0x01).name, V("VCP 0x01")); }

TEST(MCCS, InfoDoesNotAskWhetherACodeIsHidden) {
    ASSERT_TRUE(MCCS::hidden().contains(0xF3));
    EXPECT_EQ(MCCS::info(0xF3).name, Text::translated("Vendor 0x%@", {"F3"}));
}

TEST(MCCS, NoHiddenCodeIsInTheCatalog) {
    for (const std::uint8_t code : MCCS::hidden())
        EXPECT_FALSE(MCCS::catalog().contains(code)) << text::upperHex(code);
}

TEST(MCCS, EveryUnknownCodeIsAVendorCodeWithoutNamesThatWritesOne) {
    for (int code = 0; code <= 0xFF; ++code) {
        if (MCCS::catalog().contains(static_cast<std::uint8_t>(code))) continue;
        const VCPInfo info = MCCS::info(static_cast<std::uint8_t>(code));
        EXPECT_EQ(info.group, vendor) << code;
        EXPECT_EQ(info.name.isVerbatim(), code < 0xE0) << code;
        EXPECT_THAT(info.valueNames, IsEmpty()) << code;
        EXPECT_EQ(info.actionValue, 1) << code;
    }
}

TEST(MCCS, TablesAreMadeOnce) {
    EXPECT_EQ(&MCCS::catalog(), &MCCS::catalog());
    EXPECT_EQ(&MCCS::hidden(), &MCCS::hidden());
    EXPECT_EQ(&MCCS::inputNames(), &MCCS::inputNames());
}

}  // namespace
}  // namespace vantrel::mccs
