#include <gtest/gtest.h>

#include "platform/posix/StateDocument.h"

namespace vantrel::posix {
namespace {

using platform::DefaultsDictionary;
using platform::DefaultsValue;

TEST(StateDocument, IsAnObjectWithALineForEachKey) {
    StateDocument document;
    document.set("software.1-2-3", DefaultsDictionary{{"brightness", 0.5}});
    document.set("controlMode.1-2-3", std::string("ddc"));
    EXPECT_EQ(document.text(),
              "{\n"
              "  \"controlMode.1-2-3\": {\"text\":\"ddc\"},\n"
              "  \"software.1-2-3\": {\"dictionary\":{\"brightness\":0.5}}\n"
              "}\n");
}

TEST(StateDocument, IsTheSameAfterItsText) {
    StateDocument document;
    EXPECT_EQ(StateDocument::parse(document.text()), document);
    document.set("a \"key\"\n", std::int64_t{1});
    document.set("", platform::DefaultsData{"bytes"});
    EXPECT_EQ(StateDocument::parse(document.text()), document);
}

TEST(StateDocument, HasNoValueForAKeyThatIsNotThere) {
    EXPECT_EQ(StateDocument().value("focusInput.1-2-3"), std::nullopt);
}

TEST(StateDocument, ReplacesAndRemovesValues) {
    StateDocument document;
    document.set("a", std::int64_t{1});
    document.set("a", std::string("one"));
    EXPECT_EQ(document.value("a"), DefaultsValue("one"));
    document.remove("a");
    EXPECT_EQ(document.value("a"), std::nullopt);
    EXPECT_EQ(document, StateDocument());
}

TEST(StateDocument, KeepsWhatNobodyKnows) {
    const auto document = StateDocument::parse(
        R"({"z": {"date": [2031, 1, 1]}, "y": 1.5, "x": null, "w": {"integer": 1, "b": {"d":1, "c":2}}})");
    ASSERT_TRUE(document);
    EXPECT_EQ(document->value("z"), std::nullopt);
    EXPECT_EQ(document->text(),
              "{\n"
              "  \"w\": {\"integer\":1,\"b\":{\"d\":1,\"c\":2}},\n"
              "  \"x\": null,\n"
              "  \"y\": 1.5,\n"
              "  \"z\": {\"date\":[2031,1,1]}\n"
              "}\n");
}

TEST(StateDocument, FindsAKeyThatIsNoUTF8AsItIsRepaired) {
    StateDocument document;
    document.set("a\xFF", std::int64_t{1});
    EXPECT_EQ(document.value("a\xFF"), DefaultsValue(std::int64_t{1}));
    EXPECT_EQ(StateDocument::parse(document.text()), document);
    document.remove("a\xFF");
    EXPECT_EQ(document, StateDocument());
}

TEST(StateDocument, TakesTheLastOfEqualKeys) {
    const auto document = StateDocument::parse(R"({"a":{"integer":1},"a":{"integer":2}})");
    EXPECT_EQ(document.value().value("a"), DefaultsValue(std::int64_t{2}));
}

TEST(StateDocument, IsNothingWithoutAnObjectAtTheTop) {
    for (const char* text : {"", " \n", "[]", "17", "\"text\"", "null", "{\"a\":{\"integer\":1}", "{} x"}) {
        EXPECT_EQ(StateDocument::parse(text), std::nullopt) << text;
    }
}

TEST(StateDocument, MayStartWithAByteOrderMark) { EXPECT_TRUE(StateDocument::parse("\xEF\xBB\xBF{}")); }

}  // namespace
}  // namespace vantrel::posix
