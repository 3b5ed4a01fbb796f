#include <gtest/gtest.h>
#include <limits>

#include "macos/CFBench.h"
#include "platform/macos/CFDefaultsValue.h"

namespace vantrel::macos {
namespace {

using platform::DefaultsData;
using platform::DefaultsDictionary;
using platform::DefaultsValue;

class CFDefaultsValueTest : public CFBench {};

const std::vector<DefaultsValue> values{
    DefaultsData{""},
    DefaultsData{std::string("\0\xFF", 2)},
    std::int64_t(0),
    std::numeric_limits<std::int64_t>::max(),
    std::numeric_limits<std::int64_t>::min(),
    std::string(),
    std::string("Büro \xF0\x9F\x96\xA5"),
    DefaultsDictionary{},
    DefaultsDictionary{{"brightness", 0.3}, {"15", std::string("Desk")}, {"", std::string()}},
};

TEST_F(CFDefaultsValueTest, ReadsWhatItMade) {
    for (const DefaultsValue& value : values) {
        EXPECT_EQ(CFDefaultsValue::read(CFDefaultsValue::make(value).get()), value);
    }
}

TEST_F(CFDefaultsValueTest, ReadsNothingOfAnotherType) {
    EXPECT_EQ(CFDefaultsValue::read(kCFBooleanTrue), std::nullopt);
    EXPECT_EQ(CFDefaultsValue::read(realOf(0.5).get()), std::nullopt);
    EXPECT_EQ(CFDefaultsValue::read(CFBundleGetMainBundle()), std::nullopt);
}

TEST_F(CFDefaultsValueTest, LeavesEntriesOfOtherTypesOut) {
    const auto good = CFText::make("good");
    const auto real = CFText::make("real");
    const auto integer = CFText::make("integer");
    const auto flag = CFText::make("flag");
    const auto data = CFText::make("data");
    const auto half = realOf(0.5);
    const auto two = integerOf(2);
    const auto bytes = dataOf("x");
    const auto dictionary = dictionaryOf({{good.get(), good.get()},
                                          {real.get(), half.get()},
                                          {integer.get(), two.get()},
                                          {flag.get(), kCFBooleanTrue},
                                          {data.get(), bytes.get()},
                                          {two.get(), good.get()}});
    EXPECT_EQ(
        CFDefaultsValue::read(dictionary.get()),
        DefaultsValue(DefaultsDictionary{{"good", std::string("good")}, {"real", 0.5}, {"integer", 2.0}}));
}

TEST_F(CFDefaultsValueTest, MakesAllOfADictionaryOrNothing) {
    const DefaultsDictionary dictionary{{"a", 1.0}, {"b", std::string("text")}};
    for (const char* function : {"CFStringCreateWithBytes", "CFNumberCreate", "CFDictionaryCreate"}) {
        failNext(function);
        EXPECT_FALSE(CFDefaultsValue::make(dictionary)) << function;
    }
    EXPECT_TRUE(CFDefaultsValue::make(dictionary));
}

}  // namespace
}  // namespace vantrel::macos
