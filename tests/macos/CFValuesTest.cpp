#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "macos/CFBench.h"
#include "platform/macos/CFValues.h"

namespace vantrel::macos {
namespace {

class CFValuesTest : public CFBench {};

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

TEST_F(CFValuesTest, ReadsEachTypeAsItselfOnly) {
    const auto text = CFText::make("text");
    const auto data = dataOf("bytes");
    const auto number = integerOf(7);
    const auto dictionary = dictionaryOf({});
    EXPECT_EQ(CFValues::text(text.get()), "text");
    EXPECT_EQ(CFValues::bytes(data.get()), "bytes");
    EXPECT_EQ(CFValues::integer(number.get()), 7);
    EXPECT_TRUE(CFValues::entries(dictionary.get()));
    for (const CFTypeRef other : {CFTypeRef(data.get()), CFTypeRef(number.get()), CFTypeRef(dictionary.get()),
                                  CFTypeRef(kCFBooleanTrue)}) {
        EXPECT_EQ(CFValues::text(other), std::nullopt);
    }
    for (const CFTypeRef other : {CFTypeRef(text.get()), CFTypeRef(number.get()), CFTypeRef(dictionary.get()),
                                  CFTypeRef(kCFBooleanTrue)}) {
        EXPECT_EQ(CFValues::bytes(other), std::nullopt);
    }
    for (const CFTypeRef other : {CFTypeRef(text.get()), CFTypeRef(data.get()), CFTypeRef(dictionary.get()),
                                  CFTypeRef(kCFBooleanTrue)}) {
        EXPECT_EQ(CFValues::integer(other), std::nullopt);
        EXPECT_EQ(CFValues::real(other), std::nullopt);
    }
    for (const CFTypeRef other :
         {CFTypeRef(text.get()), CFTypeRef(data.get()), CFTypeRef(number.get()), CFTypeRef(kCFBooleanTrue)}) {
        EXPECT_EQ(CFValues::entries(other), std::nullopt);
    }
}

TEST_F(CFValuesTest, ReadsIntegersToTheirEnds) {
    for (const std::int64_t value : {most, least, std::int64_t(0), std::int64_t(-1)}) {
        EXPECT_EQ(CFValues::integer(integerOf(value).get()), value);
    }
}

TEST_F(CFValuesTest, ReadsARealAsAnIntegerOnlyWhenItIsOne) {
    EXPECT_EQ(CFValues::integer(realOf(3).get()), 3);
    EXPECT_EQ(CFValues::integer(realOf(3.5).get()), std::nullopt);
    EXPECT_EQ(CFValues::integer(realOf(1e300).get()), std::nullopt);
    EXPECT_EQ(CFValues::integer(realOf(std::nan("")).get()), std::nullopt);
}

TEST_F(CFValuesTest, ReadsAnIntegerAsARealOnlyWhenItFits) {
    EXPECT_EQ(CFValues::real(realOf(0.25).get()), 0.25);
    EXPECT_EQ(CFValues::real(integerOf(3).get()), 3.0);
    EXPECT_EQ(CFValues::real(integerOf(most).get()), std::nullopt);
}

TEST_F(CFValuesTest, ReadsNoBytesAsSuch) { EXPECT_EQ(CFValues::bytes(dataOf("").get()), ""); }

TEST_F(CFValuesTest, KeepsNULsAmongBytes) {
    const std::string bytes("\0\xFF\0", 3);
    EXPECT_EQ(CFValues::bytes(dataOf(bytes).get()), bytes);
}

TEST_F(CFValuesTest, LeavesEntriesOutWhoseKeysAreNoTexts) {
    const auto key = CFText::make("key");
    const auto number = integerOf(1);
    const auto data = dataOf("key");
    const auto dictionary = dictionaryOf({{number.get(), key.get()},
                                          {key.get(), number.get()},
                                          {data.get(), key.get()},
                                          {kCFBooleanTrue, key.get()}});
    EXPECT_EQ(CFValues::entries(dictionary.get()), (CFValues::Entries{{"key", number.get()}}));
}

}  // namespace
}  // namespace vantrel::macos
