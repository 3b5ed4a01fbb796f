#include <gtest/gtest.h>

#include "macos/CFBench.h"
#include "platform/macos/CFProperty.h"

namespace vantrel::macos {
namespace {

using platform::PropertyDictionary;
using platform::PropertyValue;

class CFPropertyTest : public CFBench {};

TEST_F(CFPropertyTest, ReadsTextsAndIntegers) {
    EXPECT_EQ(CFProperty::value(CFText::make("External").get()), PropertyValue("External"));
    EXPECT_EQ(CFProperty::value(integerOf(-5).get()), PropertyValue(std::int64_t(-5)));
}

TEST_F(CFPropertyTest, ReadsIntegersOfAnyLength) {
    for (const std::int64_t number : {0x7FFFFFFFLL, 0x80000000LL, 0xFFFFFFFFLL, 0x123456789ALL}) {
        EXPECT_EQ(CFProperty::value(integerOf(number).get()), PropertyValue(number));
    }
}

TEST_F(CFPropertyTest, ReadsAnEmptyDictionaryAsOne) {
    EXPECT_EQ(CFProperty::value(dictionaryOf({}).get()), PropertyValue(PropertyDictionary()));
}

TEST_F(CFPropertyTest, ReadsOtherTypesAsMonostate) {
    const PropertyValue nothing;
    EXPECT_EQ(CFProperty::value(kCFBooleanTrue), nothing);
    EXPECT_EQ(CFProperty::value(dataOf("bytes").get()), nothing);
    EXPECT_EQ(CFProperty::value(realOf(0.5).get()), nothing);
    EXPECT_EQ(CFProperty::value(CFBundleGetMainBundle()), nothing);
}

TEST_F(CFPropertyTest, ReadsDictionariesWithinDictionaries) {
    const auto name = CFText::make("ProductName");
    const auto attributes = CFText::make("ProductAttributes");
    const auto flag = CFText::make("Flag");
    const auto number = integerOf(3);
    const auto inner = dictionaryOf({{name.get(), name.get()}, {number.get(), name.get()}});
    const auto outer = dictionaryOf({{attributes.get(), inner.get()}, {flag.get(), kCFBooleanFalse}});
    const PropertyDictionary expected{
        {"ProductAttributes", PropertyDictionary{{"ProductName", "ProductName"}}}, {"Flag", PropertyValue()}};
    EXPECT_EQ(CFProperty::value(outer.get()), PropertyValue(expected));
}

TEST_F(CFPropertyTest, ReadsADeepDictionary) {
    constexpr int depth = 100;
    const auto key = CFText::make("in");
    CFHandle<CFDictionaryRef> dictionary = dictionaryOf({});
    for (int level = 0; level < depth; ++level) {
        dictionary = dictionaryOf({{key.get(), dictionary.get()}});
    }
    PropertyValue value = CFProperty::value(dictionary.get());
    int levels = 0;
    while (auto* held = std::get_if<PropertyDictionary>(&value)) {
        const auto found = held->find("in");
        if (found == held->end()) break;
        ++levels;
        value = PropertyValue(found->second);
    }
    EXPECT_EQ(levels, depth);
}

}  // namespace
}  // namespace vantrel::macos
