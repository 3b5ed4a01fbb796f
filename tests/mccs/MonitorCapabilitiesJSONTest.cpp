#include <gtest/gtest.h>

#include "mccs/MonitorCapabilitiesJSON.h"

namespace vantrel::mccs {
namespace {

using namespace std::string_literals;
using MonitorCapabilitiesJSON::decode;
using MonitorCapabilitiesJSON::encode;

MonitorCapabilities sample() {
    return {.raw = "vcp(14(05 08)60(0F))",
            .model = "Aurora 27Q",
            .codes = {0x60, 0x14},
            .values = {{0x60, {15}}, {0x14, {5, 8}}}};
}

// An object with these members, given as JSON, and no model.
std::string object(std::string_view raw, std::string_view codes, std::string_view values) {
    std::string json = R"({"raw":)";
    json.append(raw).append(R"(,"codes":)").append(codes).append(R"(,"values":)").append(values).append("}");
    return json;
}

std::string withCodes(std::string_view codes) { return object(R"("r")", codes, "[]"); }
std::string withValues(std::string_view values) { return object(R"("r")", "[20]", values); }
std::string withModel(std::string_view model) {
    return R"({"raw":"r","model":)" + std::string(model) + R"(,"codes":[16],"values":[]})";
}

TEST(MonitorCapabilitiesJSON, WritesTheFieldsInTheirOrderAndTheValuesInTheOrderOfTheCodes) {
    EXPECT_EQ(encode(sample()), R"json({"raw":"vcp(14(05 08)60(0F))","model":"Aurora 27Q",)json"
                                R"json("codes":[96,20],"values":[20,[5,8],96,[15]]})json");
}

TEST(MonitorCapabilitiesJSON, LeavesAnAbsentModelOut) {
    MonitorCapabilities capabilities = sample();
    capabilities.model.reset();
    EXPECT_EQ(encode(capabilities),
              R"json({"raw":"vcp(14(05 08)60(0F))","codes":[96,20],"values":[20,[5,8],96,[15]]})json");
}

TEST(MonitorCapabilitiesJSON, WritesAnEmptyModel) {
    MonitorCapabilities capabilities = sample();
    capabilities.model = "";
    EXPECT_EQ(decode(encode(capabilities))->model, "");
}

TEST(MonitorCapabilitiesJSON, WritesNoValuesAsAnEmptyArray) {
    EXPECT_EQ(encode({.raw = "r", .model = {}, .codes = {0x10}, .values = {}}),
              R"({"raw":"r","codes":[16],"values":[]})");
}

TEST(MonitorCapabilitiesJSON, WhatIsWrittenReadsTheSame) { EXPECT_EQ(decode(encode(sample())), sample()); }

TEST(MonitorCapabilitiesJSON, EveryCharacterOfTheTextSurvives) {
    MonitorCapabilities capabilities = sample();
    capabilities.raw = "\"\\/\0\x01\r\n\x7F\u0308\u2028\U0001F5A5\uFFFD"s;
    EXPECT_EQ(decode(encode(capabilities)), capabilities);
}

TEST(MonitorCapabilitiesJSON, TheLargestNumbersSurvive) {
    const MonitorCapabilities capabilities{
        .raw = "r", .model = {}, .codes = {0, 255}, .values = {{255, {0, 65535}}}};
    EXPECT_EQ(decode(encode(capabilities)), capabilities);
}

TEST(MonitorCapabilitiesJSON, IllFormedTextIsWrittenAsReplacementCharacters) {
    MonitorCapabilities capabilities = sample();
    capabilities.raw = "a\xFF";
    EXPECT_EQ(decode(encode(capabilities))->raw, "a\uFFFD");
}

TEST(MonitorCapabilitiesJSON, ReadsKeysInAnyOrderAndSpacesBetweenThem) {
    EXPECT_EQ(decode(R"json( { "values" : [20,[5,8],96,[15]], "codes" : [96,20],
                               "model":"Aurora 27Q", "raw":"vcp(14(05 08)60(0F))" } )json"),
              sample());
}

TEST(MonitorCapabilitiesJSON, ReadsValuesInAnyOrderOfTheCodes) {
    EXPECT_EQ(decode(withValues("[96,[15],20,[5,8]]"))->values, sample().values);
}

TEST(MonitorCapabilitiesJSON, ReadsEscapedSlashes) {
    EXPECT_EQ(decode(object(R"("a\/b")", "[16]", "[]"))->raw, "a/b");
}

TEST(MonitorCapabilitiesJSON, PassesOverUnknownKeys) {
    EXPECT_TRUE(decode(R"({"raw":"r","codes":[16],"values":[],"later":{"a":[1.5,null]}})"));
}

TEST(MonitorCapabilitiesJSON, ANullModelIsAbsent) {
    const auto capabilities = decode(withModel("null"));
    ASSERT_TRUE(capabilities);
    EXPECT_EQ(capabilities->model, std::nullopt);
}

TEST(MonitorCapabilitiesJSON, TheLastListOfACodeCounts) {
    EXPECT_EQ(decode(withValues("[20,[5],20,[8]]"))->values,
              (std::map<std::uint8_t, std::vector<std::uint16_t>>{{20, {8}}}));
}

TEST(MonitorCapabilitiesJSON, NeedsTheRawText) { EXPECT_FALSE(decode(R"({"codes":[16],"values":[]})")); }

TEST(MonitorCapabilitiesJSON, NeedsTheCodes) { EXPECT_FALSE(decode(R"({"raw":"r","values":[]})")); }

TEST(MonitorCapabilitiesJSON, NeedsTheValues) { EXPECT_FALSE(decode(R"({"raw":"r","codes":[16]})")); }

TEST(MonitorCapabilitiesJSON, KeysAreCaseSensitive) {
    EXPECT_FALSE(decode(R"({"Raw":"r","codes":[16],"values":[]})"));
}

TEST(MonitorCapabilitiesJSON, RefusesARawTextThatIsNone) {
    for (const auto raw : {"null", "1", "true", "[]", "{}"})
        EXPECT_FALSE(decode(object(raw, "[16]", "[]"))) << raw;
}

TEST(MonitorCapabilitiesJSON, RefusesAModelThatIsNoText) {
    for (const auto model : {"1", "false", "[]", "{}"}) EXPECT_FALSE(decode(withModel(model))) << model;
}

TEST(MonitorCapabilitiesJSON, RefusesCodesThatAreNoArray) {
    for (const auto codes : {"null", "16", R"("10")", "{}"}) EXPECT_FALSE(decode(withCodes(codes))) << codes;
}

TEST(MonitorCapabilitiesJSON, RefusesACodeThatIsNoInteger) {
    for (const auto code : {"16.5", R"("16")", "null", "true", "[16]"}) {
        EXPECT_FALSE(decode(withCodes("[16," + std::string(code) + "]"))) << code;
    }
}

TEST(MonitorCapabilitiesJSON, RefusesACodeOutOfRange) {
    for (const auto code : {"-1", "256", "65552", "4294967312", "18446744073709551632", "1e400"}) {
        EXPECT_FALSE(decode(withCodes("[" + std::string(code) + "]"))) << code;
    }
}

TEST(MonitorCapabilitiesJSON, RefusesValuesThatAreNoArray) {
    for (const auto values : {"null", R"({"20":[5]})", "20"})
        EXPECT_FALSE(decode(withValues(values))) << values;
}

TEST(MonitorCapabilitiesJSON, RefusesACodeWithoutAList) {
    EXPECT_FALSE(decode(withValues("[20]")));
    EXPECT_FALSE(decode(withValues("[20,[5],96]")));
}

TEST(MonitorCapabilitiesJSON, RefusesPairsInsteadOfAFlatArray) {
    EXPECT_FALSE(decode(withValues("[[20,[5]],[96,[15]]]")));
}

TEST(MonitorCapabilitiesJSON, RefusesAListThatIsNone) { EXPECT_FALSE(decode(withValues("[20,5]"))); }

TEST(MonitorCapabilitiesJSON, RefusesAListForSomethingThatIsNoCode) {
    for (const auto code : {"256", "-1", R"("20")", "[20]", "20.5"}) {
        EXPECT_FALSE(decode(withValues("[" + std::string(code) + ",[5]]"))) << code;
    }
}

TEST(MonitorCapabilitiesJSON, RefusesAValueOutOfRange) {
    EXPECT_FALSE(decode(withValues("[20,[65536]]")));
    EXPECT_FALSE(decode(withValues("[20,[-1]]")));
}

TEST(MonitorCapabilitiesJSON, RefusesAValueThatIsNoInteger) {
    for (const auto value : {"5.5", R"("5")", "null", "[5]"}) {
        EXPECT_FALSE(decode(withValues("[20,[" + std::string(value) + "]]"))) << value;
    }
}

TEST(MonitorCapabilitiesJSON, RefusesWhatIsNoObject) {
    for (const auto json : {"null", "[]", "1", R"("raw")"}) EXPECT_FALSE(decode(json)) << json;
}

TEST(MonitorCapabilitiesJSON, RefusesWhatIsNoJSON) {
    EXPECT_FALSE(decode(""));
    EXPECT_FALSE(decode("raw"));
    EXPECT_FALSE(decode(encode(sample()) + "x"));
}

TEST(MonitorCapabilitiesJSON, RefusesEveryBeginningOfAnObject) {
    const std::string whole = encode(sample());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(decode(std::string_view(whole).substr(0, length))) << length;
    }
}

TEST(MonitorCapabilitiesJSON, RefusesIllFormedText) {
    EXPECT_FALSE(decode(object("\"a\xFF\"", "[16]", "[]")));
    EXPECT_FALSE(decode(object(R"("\uD800")", "[16]", "[]")));
}

TEST(MonitorCapabilitiesJSON, RefusesDeepNestingWithoutRecursion) {
    const std::string deep = std::string(200'000, '[') + std::string(200'000, ']');
    EXPECT_FALSE(decode(deep));
    EXPECT_FALSE(decode(withCodes(deep)));
}

}  // namespace
}  // namespace vantrel::mccs
