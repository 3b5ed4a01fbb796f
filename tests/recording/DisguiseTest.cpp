#include <gtest/gtest.h>

#include "platform/recording/Disguise.h"

namespace vantrel::recording {
namespace {

using platform::PropertyDictionary;
using platform::PropertyValue;

constexpr const char* uuidKey = "EDID UUID";

std::string uuid(Disguise& disguise, const std::string& real) {
    return std::get<std::string>(*disguise.property(uuidKey, real));
}

PropertyDictionary attributes(PropertyDictionary product) {
    return {{"ProductAttributes", std::move(product)}};
}

// What is shown of the product's attributes.
PropertyDictionary product(Disguise& disguise, PropertyDictionary real) {
    const auto shown = disguise.property("DisplayAttributes", attributes(std::move(real)));
    return std::get<PropertyDictionary>(std::get<PropertyDictionary>(*shown).at("ProductAttributes"));
}

TEST(Disguise, NumbersSerialNumbersInTheirOrderOfAppearance) {
    Disguise disguise;
    EXPECT_EQ(disguise.serial(28000417), 1U);
    EXPECT_EQ(disguise.serial(0xFFFFFFFF), 2U);
    EXPECT_EQ(disguise.serial(1), 3U);
    EXPECT_EQ(disguise.serial(28000417), 1U);
}

TEST(Disguise, LeavesNoSerialNumberAsItIs) {
    Disguise disguise;
    EXPECT_EQ(disguise.serial(0), 0U);
    EXPECT_EQ(disguise.serial(7), 1U);
    EXPECT_EQ(product(disguise, {{"SerialNumber", 0}}), (PropertyDictionary{{"SerialNumber", 0}}));
}

TEST(Disguise, ShowsTheSameSerialNumberEverywhere) {
    Disguise disguise;
    EXPECT_EQ(product(disguise, {{"SerialNumber", 28000417}}), (PropertyDictionary{{"SerialNumber", 1}}));
    EXPECT_EQ(disguise.serial(28000417), 1U);
    // As a program takes it that keeps 32 bits.
    EXPECT_EQ(product(disguise, {{"SerialNumber", -1}}), (PropertyDictionary{{"SerialNumber", 2}}));
    EXPECT_EQ(disguise.serial(0xFFFFFFFF), 2U);
}

TEST(Disguise, HidesASerialNumberThatIsNoNumber) {
    Disguise disguise;
    EXPECT_EQ(product(disguise, {{"SerialNumber", "A28000417"}}),
              (PropertyDictionary{{"SerialNumber", std::monostate()}}));
}

TEST(Disguise, KeepsVendorAndProductOfAUUID) {
    Disguise disguise;
    EXPECT_EQ(uuid(disguise, "04728207-0000-0000-2A1F-0104B53C2278"), "04728207-0000-0000-0000-000000000001");
    EXPECT_EQ(uuid(disguise, "0472aBc7-0000-0000-2A20-0104B53C2278"), "0472aBc7-0000-0000-0000-000000000002");
}

TEST(Disguise, NumbersTheRestOfAUUIDWhateverTheModel) {
    Disguise disguise;
    EXPECT_EQ(uuid(disguise, "04728207-0000-0000-2A1F-0104B53C2278"), "04728207-0000-0000-0000-000000000001");
    EXPECT_EQ(uuid(disguise, "11118207-0000-0000-2A1F-0104B53C2278"), "11118207-0000-0000-0000-000000000001");
}

TEST(Disguise, LeavesAUUIDThatTellsNoMoreThanTheModelAsItIs) {
    Disguise disguise;
    for (const char* real : {"04728207-0000-0000-0000-000000000000", "04728207", "4693", ""})
        EXPECT_EQ(uuid(disguise, real), real);
}

TEST(Disguise, HidesWhatIsNoUUID) {
    Disguise disguise;
    EXPECT_EQ(uuid(disguise, "Anna's monitor"), "-0000-0000-0000-000000000001");
    EXPECT_EQ(uuid(disguise, "469312Anna"), "4693-0000-0000-0000-000000000002");
    EXPECT_EQ(uuid(disguise, "\xFF"), "-0000-0000-0000-000000000003");
    EXPECT_EQ(disguise.property(uuidKey, 28000417), PropertyValue());
}

TEST(Disguise, ChangesNothingThatIsDisguisedAlready) {
    Disguise disguise;
    EXPECT_EQ(disguise.serial(1), 1U);
    EXPECT_EQ(disguise.serial(2), 2U);
    for (const char* real : {"04728207-0000-0000-0000-000000000001", "-0000-0000-0000-000000000002"})
        EXPECT_EQ(uuid(disguise, real), real);
}

TEST(Disguise, ShowsProductNamesAndLocationsAsText) {
    Disguise disguise;
    EXPECT_EQ(product(disguise, {{"ProductName", "Lumo 24\xFF"}}),
              (PropertyDictionary{{"ProductName", "Lumo 24\uFFFD"}}));
    EXPECT_EQ(product(disguise, {{"ProductName", 24}}),
              (PropertyDictionary{{"ProductName", std::monostate()}}));
    EXPECT_EQ(disguise.property("Location", "External"), PropertyValue("External"));
    EXPECT_EQ(disguise.property("Location", 5), PropertyValue());
}

TEST(Disguise, ShowsNothingElse) {
    Disguise disguise;
    EXPECT_EQ(disguise.property("IOPlatformSerialNumber", "C02"), std::nullopt);
    EXPECT_EQ(product(disguise, {{"AlphanumericSerialNumber", "C02"}, {"WeekOfManufacture", 7}}),
              PropertyDictionary());
    EXPECT_EQ(disguise.property("DisplayAttributes", PropertyDictionary{{"Owner", "Anna"}}),
              PropertyValue(PropertyDictionary()));
    EXPECT_EQ(disguise.property("DisplayAttributes", "C02"), PropertyValue());
    EXPECT_EQ(disguise.property("DisplayAttributes", PropertyDictionary{{"ProductAttributes", "C02"}}),
              PropertyValue(PropertyDictionary{{"ProductAttributes", std::monostate()}}));
}

}  // namespace
}  // namespace vantrel::recording
