#include <gtest/gtest.h>

#include "platform/MemoryDefaults.h"

namespace vantrel::platform {
namespace {

TEST(MemoryDefaults, HasNothingUnderAKeyThatWasNeverSet) {
    MemoryDefaults defaults;
    EXPECT_EQ(defaults.value("macInput.1-2-3"), std::nullopt);
}

TEST(MemoryDefaults, KeepsData) {
    MemoryDefaults defaults;
    defaults.set("key", DefaultsData{"[15]"});
    EXPECT_EQ(defaults.value("key"), DefaultsValue(DefaultsData{"[15]"}));
}

TEST(MemoryDefaults, KeepsAnInteger) {
    MemoryDefaults defaults;
    defaults.set("key", std::int64_t{-1});
    EXPECT_EQ(defaults.value("key"), DefaultsValue(std::int64_t{-1}));
}

TEST(MemoryDefaults, KeepsText) {
    MemoryDefaults defaults;
    defaults.set("key", std::string("ddc"));
    EXPECT_EQ(defaults.value("key"), DefaultsValue(std::string("ddc")));
}

TEST(MemoryDefaults, KeepsADictionary) {
    MemoryDefaults defaults;
    const DefaultsDictionary dictionary{{"brightness", 0.25}, {"note", std::string("dim")}};
    defaults.set("key", dictionary);
    EXPECT_EQ(defaults.value("key"), DefaultsValue(dictionary));
}

TEST(MemoryDefaults, TellsDataFromText) {
    MemoryDefaults defaults;
    defaults.set("key", DefaultsData{"ddc"});
    EXPECT_NE(defaults.value("key"), DefaultsValue(std::string("ddc")));
}

TEST(MemoryDefaults, KeepsBytesThatAreNoText) {
    MemoryDefaults defaults;
    const DefaultsData data{std::string("\0\xFF\n", 3)};
    defaults.set("key", data);
    EXPECT_EQ(defaults.value("key"), DefaultsValue(data));
}

TEST(MemoryDefaults, TheLastValueReplacesOneOfAnotherType) {
    MemoryDefaults defaults;
    defaults.set("key", std::int64_t{1});
    defaults.set("key", std::string("one"));
    EXPECT_EQ(defaults.value("key"), DefaultsValue(std::string("one")));
    EXPECT_EQ(defaults.all().size(), 1U);
}

TEST(MemoryDefaults, KeysThatBeginAlikeAreDifferentKeys) {
    MemoryDefaults defaults;
    defaults.set("macInput.1-2-3", std::int64_t{15});
    EXPECT_EQ(defaults.value("macInput.1-2-33"), std::nullopt);
    EXPECT_EQ(defaults.value("macInput.1-2-"), std::nullopt);
}

TEST(MemoryDefaults, ForgetsARemovedValueAndNoOther) {
    MemoryDefaults defaults;
    defaults.set("one", std::int64_t{1});
    defaults.set("two", std::int64_t{2});
    defaults.remove("one");
    EXPECT_EQ(defaults.all(), (std::map<std::string, DefaultsValue>{{"two", std::int64_t{2}}}));
}

TEST(MemoryDefaults, RemovingWhatIsNotThereChangesNothing) {
    MemoryDefaults defaults;
    defaults.set("one", std::int64_t{1});
    defaults.remove("two");
    EXPECT_EQ(defaults.all(), (std::map<std::string, DefaultsValue>{{"one", std::int64_t{1}}}));
}

}  // namespace
}  // namespace vantrel::platform
