#include <gtest/gtest.h>

#include "persistence/StoredJSON.h"

namespace vantrel::persistence {
namespace {

using namespace StoredJSON;
using Inputs = std::vector<std::uint16_t>;
using Aliases = std::map<std::uint16_t, std::string>;
using Displays = std::vector<DisabledDisplay>;

TEST(StoredJSON, WritesInputsAsAnArrayInTheirOrder) { EXPECT_EQ(encodeInputs({27, 15, 17}), "[27,15,17]"); }

TEST(StoredJSON, WritesNoInputsAsAnEmptyArray) { EXPECT_EQ(encodeInputs({}), "[]"); }

TEST(StoredJSON, ReadsInputsInTheirOrder) { EXPECT_EQ(decodeInputs("[27,15,17]"), (Inputs{27, 15, 17})); }

TEST(StoredJSON, ReadsNoInputs) { EXPECT_EQ(decodeInputs("[]"), Inputs{}); }

TEST(StoredJSON, ReadsAcrossBlanksAndLines) { EXPECT_EQ(decodeInputs(" [ 27,\n\t15 ] "), (Inputs{27, 15})); }

TEST(StoredJSON, ReadsTheLeastAndTheGreatestInput) {
    EXPECT_EQ(decodeInputs("[0,65535]"), (Inputs{0, 65535}));
}

TEST(StoredJSON, AnInputAboveSixteenBitsIsUnreadable) { EXPECT_EQ(decodeInputs("[65536]"), std::nullopt); }

TEST(StoredJSON, ANegativeInputIsUnreadable) { EXPECT_EQ(decodeInputs("[-1]"), std::nullopt); }

TEST(StoredJSON, AnInputThatFitsNoIntegerIsUnreadable) {
    EXPECT_EQ(decodeInputs("[123456789012345678901234567890]"), std::nullopt);
}

TEST(StoredJSON, AnInputWithAFractionIsUnreadable) { EXPECT_EQ(decodeInputs("[15.5]"), std::nullopt); }

TEST(StoredJSON, AnInputThatIsTextIsUnreadable) { EXPECT_EQ(decodeInputs(R"(["15"])"), std::nullopt); }

TEST(StoredJSON, AnInputThatIsATruthValueIsUnreadable) { EXPECT_EQ(decodeInputs("[true]"), std::nullopt); }

TEST(StoredJSON, OneUnreadableInputSpoilsTheList) { EXPECT_EQ(decodeInputs("[15,null]"), std::nullopt); }

TEST(StoredJSON, InputsThatAreNoArrayAreUnreadable) {
    EXPECT_EQ(decodeInputs("15"), std::nullopt);
    EXPECT_EQ(decodeInputs(R"({"15":17})"), std::nullopt);
    EXPECT_EQ(decodeInputs("null"), std::nullopt);
}

TEST(StoredJSON, WhatIsNoJSONIsUnreadable) {
    EXPECT_EQ(decodeInputs(""), std::nullopt);
    EXPECT_EQ(decodeInputs("[15"), std::nullopt);
    EXPECT_EQ(decodeInputs("[15,]"), std::nullopt);
    EXPECT_EQ(decodeInputs("[15] x"), std::nullopt);
    EXPECT_EQ(decodeInputs("\xFF\xFE"), std::nullopt);
}

TEST(StoredJSON, EndlessNestingIsUnreadableAndHarmless) {
    EXPECT_EQ(decodeInputs(std::string(1'000'000, '[')), std::nullopt);
}

TEST(StoredJSON, WritesOneAliasAsAnArrayOfTheInputAndTheName) {
    EXPECT_EQ(encodeAliases({{17, "Desk PC"}}), R"([17,"Desk PC"])");
}

TEST(StoredJSON, WritesAliasesAsOneFlatArrayOfInputsAndNamesByTurns) {
    EXPECT_EQ(encodeAliases({{17, "Desk PC"}, {15, "Mac"}}), R"([15,"Mac",17,"Desk PC"])");
}

TEST(StoredJSON, WritesNoAliasesAsAnEmptyArray) { EXPECT_EQ(encodeAliases({}), "[]"); }

TEST(StoredJSON, WritesLettersOfAnyScriptAsTheyAre) {
    EXPECT_EQ(encodeAliases({{17, "B\u00fcro \U0001F5A5"}}), "[17,\"B\u00fcro \U0001F5A5\"]");
}

TEST(StoredJSON, EveryCharacterOfAnAliasSurvives) {
    const Aliases aliases{{17, std::string("\"\\/\0\n\x01\x7F\u2028", 10)}, {18, ""}};
    EXPECT_EQ(decodeAliases(encodeAliases(aliases)), aliases);
}

TEST(StoredJSON, WritesAByteThatIsNoTextAsAReplacementCharacter) {
    EXPECT_EQ(encodeAliases({{17, "A\xFF"}}), "[17,\"A\uFFFD\"]");
    EXPECT_EQ(encodeDisplays({{.id = 7, .key = "a", .name = "\xFF"}}),
              "[{\"id\":7,\"key\":\"a\",\"name\":\"\uFFFD\"}]");
}

TEST(StoredJSON, ReadsAliasesInAnyOrderOfTheInputs) {
    EXPECT_EQ(decodeAliases(R"([17,"Desk PC",15,"Mac"])"), (Aliases{{15, "Mac"}, {17, "Desk PC"}}));
}

TEST(StoredJSON, ReadsNoAliases) { EXPECT_EQ(decodeAliases("[]"), Aliases{}); }

TEST(StoredJSON, ReadsEscapedCharactersOfAnAlias) {
    EXPECT_EQ(decodeAliases(R"([17,"A\/B \u00fc"])"), (Aliases{{17, "A/B \u00fc"}}));
}

TEST(StoredJSON, AnAliasWithoutAnInputIsUnreadable) {
    EXPECT_EQ(decodeAliases(R"([17,"Desk PC",18])"), std::nullopt);
}

TEST(StoredJSON, AnAliasOfAnInputAboveSixteenBitsIsUnreadable) {
    EXPECT_EQ(decodeAliases(R"([65536,"Desk PC"])"), std::nullopt);
}

TEST(StoredJSON, AnAliasThatIsNoTextIsUnreadable) {
    EXPECT_EQ(decodeAliases("[17,18]"), std::nullopt);
    EXPECT_EQ(decodeAliases("[17,null]"), std::nullopt);
}

TEST(StoredJSON, NamesBeforeInputsAreUnreadable) {
    EXPECT_EQ(decodeAliases(R"(["Desk PC",17])"), std::nullopt);
}

TEST(StoredJSON, AliasesAsAnObjectAreUnreadable) {
    EXPECT_EQ(decodeAliases(R"({"17":"Desk PC"})"), std::nullopt);
}

TEST(StoredJSON, AliasesAsPairsAreUnreadable) {
    EXPECT_EQ(decodeAliases(R"([[17,"Desk PC"]])"), std::nullopt);
}

TEST(StoredJSON, WritesDisplaysAsObjectsWithTheirFieldsInOrder) {
    EXPECT_EQ(encodeDisplays({{.id = 7, .key = "1138-1922-0", .name = "Halden \"HX27\""}}),
              R"([{"id":7,"key":"1138-1922-0","name":"Halden \"HX27\""}])");
}

TEST(StoredJSON, WritesDisplaysInTheirOrder) {
    EXPECT_EQ(encodeDisplays({{.id = 9, .key = "b", .name = "B"}, {.id = 7, .key = "a", .name = "A"}}),
              R"([{"id":9,"key":"b","name":"B"},{"id":7,"key":"a","name":"A"}])");
}

TEST(StoredJSON, WritesNoDisplaysAsAnEmptyArray) { EXPECT_EQ(encodeDisplays({}), "[]"); }

TEST(StoredJSON, ReadsTheDisplaysThatItWrites) {
    const Displays displays{{.id = 4294967295, .key = "b", .name = ""}, {.id = 0, .key = "", .name = "A"}};
    EXPECT_EQ(decodeDisplays(encodeDisplays(displays)), displays);
}

TEST(StoredJSON, ReadsTheFieldsOfADisplayInAnyOrderAndPassesOthersOver) {
    EXPECT_EQ(decodeDisplays(R"([{"name":"A","more":[1],"key":"a","id":7}])"),
              (Displays{{.id = 7, .key = "a", .name = "A"}}));
}

TEST(StoredJSON, ADisplayWithoutAnIdentifierIsUnreadable) {
    EXPECT_EQ(decodeDisplays(R"([{"key":"a","name":"A"}])"), std::nullopt);
}

TEST(StoredJSON, ADisplayWithoutAKeyIsUnreadable) {
    EXPECT_EQ(decodeDisplays(R"([{"id":7,"name":"A"}])"), std::nullopt);
}

TEST(StoredJSON, ADisplayWithoutANameIsUnreadable) {
    EXPECT_EQ(decodeDisplays(R"([{"id":7,"key":"a"}])"), std::nullopt);
}

TEST(StoredJSON, ADisplayIdentifierAboveThirtyTwoBitsIsUnreadable) {
    EXPECT_EQ(decodeDisplays(R"([{"id":4294967296,"key":"a","name":"A"}])"), std::nullopt);
}

TEST(StoredJSON, ANegativeDisplayIdentifierIsUnreadable) {
    EXPECT_EQ(decodeDisplays(R"([{"id":-7,"key":"a","name":"A"}])"), std::nullopt);
}

TEST(StoredJSON, ADisplayFieldOfAnotherTypeIsUnreadable) {
    EXPECT_EQ(decodeDisplays(R"([{"id":"7","key":"a","name":"A"}])"), std::nullopt);
    EXPECT_EQ(decodeDisplays(R"([{"id":7,"key":1,"name":"A"}])"), std::nullopt);
    EXPECT_EQ(decodeDisplays(R"([{"id":7,"key":"a","name":null}])"), std::nullopt);
}

TEST(StoredJSON, OneUnreadableDisplaySpoilsTheList) {
    EXPECT_EQ(decodeDisplays(R"([{"id":7,"key":"a","name":"A"},7])"), std::nullopt);
}

TEST(StoredJSON, DisplaysThatAreNoArrayAreUnreadable) {
    EXPECT_EQ(decodeDisplays(R"({"id":7,"key":"a","name":"A"})"), std::nullopt);
    EXPECT_EQ(decodeDisplays(""), std::nullopt);
}

}  // namespace
}  // namespace vantrel::persistence
