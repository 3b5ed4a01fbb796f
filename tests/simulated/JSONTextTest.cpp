#include <gtest/gtest.h>

#include "platform/simulated/JSONText.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

TEST(JSONText, RefusesEmptyText) {
    EXPECT_EQ(mistakeIn(""),
              "x.json: line 1, column 1: unexpected end of input; expected '[', '{', or a literal");
}

TEST(JSONText, RefusesBadJSONInALaterLine) {
    EXPECT_EQ(mistakeIn("{\n  \"title\": \"T\",\n  \"displays\" [] }"),
              "x.json: line 3, column 14: unexpected '['; expected ':'");
}

TEST(JSONText, RefusesTextAfterTheDesk) {
    EXPECT_EQ(mistakeIn("{} ,"), "x.json: line 1, column 4: unexpected ','; expected end of input");
}

TEST(JSONText, RefusesUnfinishedText) {
    EXPECT_EQ(mistakeIn("{\n"), "x.json: line 2, column 1: unexpected end of input; expected string literal");
}

TEST(JSONText, RefusesALineBreakInAString) {
    EXPECT_EQ(
        mistakeIn("{\"title\": \"a\nb\"}"),
        "x.json: line 1, column 13: invalid string: control character U+000A (LF) must be escaped to \\u000A "
        "or \\n");
}

TEST(JSONText, RefusesBytesThatAreNotUTF8) {
    EXPECT_EQ(mistakeIn("{\"title\": \"\xFF\"}"),
              "x.json: line 1, column 12: invalid string: ill-formed UTF-8 byte");
}

TEST(JSONText, RefusesBytesThatAreNoText) {
    EXPECT_EQ(mistakeIn(std::string("\0\0\0", 3)), "x.json: line 1, column 1: unexpected NUL byte");
}

TEST(JSONText, RefusesBytesThatAreHiddenBehindANUL) {
    EXPECT_EQ(mistakeIn(deskWith("") + std::string("\0{", 2)),
              "x.json: line 1, column 80: unexpected NUL byte");
}

TEST(JSONText, RefusesAWordThatIsNoJSON) {
    EXPECT_EQ(mistakeIn("{\"title\": none}"), "x.json: line 1, column 12: invalid literal");
}

TEST(JSONText, RefusesANumberThatNothingCanHold) {
    EXPECT_EQ(mistakeIn(R"({"seed": 1e999})"), "x.json: line 1, column 14: the number is too large");
}

TEST(JSONText, RefusesAKeyThatAppearsTwice) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "name": "A", "id": 2}]})"),
              "x.json: displays[0].id: appears twice");
}

TEST(JSONText, RefusesAKeyThatAppearsTwiceAtTheTop) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "title": "T"})"), "x.json: title: appears twice");
}

TEST(JSONText, RefusesTooDeepNesting) {
    const std::string open = R"({"a":)";
    std::string text;
    for (int level = 0; level < 40; ++level) text += open;
    std::string place = "a";
    for (int level = 1; level < 32; ++level) place += ".a";
    EXPECT_EQ(mistakeIn(text), "x.json: " + place + ": is nested deeper than 32 levels");
}

TEST(JSONText, RefusesNestingThatWouldExhaustAStack) {
    std::string place;
    for (int level = 0; level < 32; ++level) place += "[0]";
    EXPECT_EQ(mistakeIn(std::string(1'000'000, '[')),
              "x.json: " + place + ": is nested deeper than 32 levels");
}

TEST(JSONText, AcceptsNestingUpToTheLimit) {
    std::string value = "1";
    // The desk, its registry, the entry and its properties are four levels.
    for (int level = 0; level < 28; ++level) value = "[" + value + "]";
    EXPECT_EQ(
        mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "properties": {"p": )" + value + "}}]")), "");
    EXPECT_EQ(
        mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "properties": {"p": [)" + value + "]}}]")),
        "x.json: registry[0].properties.p" +
            [] {
                std::string place;
                for (int level = 0; level < 28; ++level) place += "[0]";
                return place;
            }() +
            ": is nested deeper than 32 levels");
}

TEST(JSONText, RefusesAnUnknownFieldOfALongOddName) {
    EXPECT_EQ(mistakeIn("{\"a\\nb\\u00e9 " + std::string(10'000, 'x') + "\": 1}"),
              "x.json: [\"a\\nb\\u00e9 xxxxxxxxxxxxxxxxxxxxxxxxxxxx...\"]: is not a known field");
}

TEST(JSONText, RefusesAnUnknownFieldWithoutAName) {
    EXPECT_EQ(mistakeIn(R"({"": 1})"), "x.json: [\"\"]: is not a known field");
}

}  // namespace
}  // namespace vantrel::simulated
