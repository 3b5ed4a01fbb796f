#include <gtest/gtest.h>
#include <limits>

#include "platform/posix/DefaultsValueJSON.h"

namespace vantrel::posix {
namespace {

using platform::DefaultsData;
using platform::DefaultsDictionary;
using platform::DefaultsValue;

std::string encoded(const DefaultsValue& value) { return DefaultsValueJSON::encode(value); }

void expectUnchanged(const DefaultsValue& value) {
    EXPECT_EQ(DefaultsValueJSON::decode(encoded(value)), value) << encoded(value);
}

TEST(DefaultsValueJSON, KeepsIntegers) {
    EXPECT_EQ(encoded(std::int64_t{17}), R"({"integer":17})");
    expectUnchanged(std::numeric_limits<std::int64_t>::min());
    expectUnchanged(std::numeric_limits<std::int64_t>::max());
    expectUnchanged(std::int64_t{0});
}

TEST(DefaultsValueJSON, KeepsText) {
    EXPECT_EQ(encoded(std::string("ddc")), R"({"text":"ddc"})");
    expectUnchanged(std::string());
    expectUnchanged(std::string("\"quoted\"\n\\ \xF0\x9F\x96\xA5 and a NUL: \0.", 27));
}

TEST(DefaultsValueJSON, RepairsTextThatIsNoUTF8) {
    EXPECT_EQ(encoded(std::string("a\xFF")), "{\"text\":\"a\xEF\xBF\xBD\"}");
    EXPECT_EQ(encoded(DefaultsDictionary{{"b\xFF", "c\xFF"}}),
              "{\"dictionary\":{\"b\xEF\xBF\xBD\":\"c\xEF\xBF\xBD\"}}");
}

TEST(DefaultsValueJSON, KeepsDictionaries) {
    EXPECT_EQ(encoded(DefaultsDictionary{{"brightness", 0.5}, {"contrast", 1.0}, {"name", "Desk"}}),
              R"({"dictionary":{"brightness":0.5,"contrast":1.0,"name":"Desk"}})");
    expectUnchanged(DefaultsDictionary{});
}

TEST(DefaultsValueJSON, KeepsEveryBitOfAReal) {
    for (const double real : {0.1, 1.0 / 3, 5e-324, 1.7976931348623157e308, -2.5, 1e15}) {
        expectUnchanged(DefaultsDictionary{{"", real}});
    }
}

TEST(DefaultsValueJSON, LeavesOutARealThatIsNotFinite) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(encoded(DefaultsDictionary{{"a", infinity}, {"b", -infinity}, {"c", none}, {"d", 0.5}}),
              R"({"dictionary":{"d":0.5}})");
}

TEST(DefaultsValueJSON, ShowsDataThatIsJSONAsJSON) {
    EXPECT_EQ(encoded(DefaultsData{"[20,[5,8]]"}), R"({"json":[20,[5,8]]})");
    expectUnchanged(DefaultsData{R"({"raw":"(vcp(10 12)) ","model":"1922"})"});
    expectUnchanged(DefaultsData{"0.5"});
    expectUnchanged(DefaultsData{"null"});
}

TEST(DefaultsValueJSON, KeepsTheBytesOfJSONThatWouldBeWrittenOtherwise) {
    EXPECT_EQ(encoded(DefaultsData{"[1, 2]"}), R"({"base64":"WzEsIDJd"})");
    for (const char* bytes : {"[1, 2]", "{\"a\":1,\"a\":2}", "1.50", "\"\\u0041\"", "\xEF\xBB\xBF[]", "-0"}) {
        expectUnchanged(DefaultsData{bytes});
    }
}

TEST(DefaultsValueJSON, KeepsDataThatIsNoJSON) {
    EXPECT_EQ(encoded(DefaultsData{std::string("\0\xFF", 2)}), R"({"base64":"AP8="})");
    expectUnchanged(DefaultsData{});
    expectUnchanged(DefaultsData{"\"\xFF\""});
}

TEST(DefaultsValueJSON, KeepsDataThatIsDeepJSON) {
    for (const std::size_t depth : {31U, 32U, 33U, 63U, 64U, 1000U}) {
        expectUnchanged(DefaultsData{std::string(depth, '[') + std::string(depth, ']')});
    }
}

TEST(DefaultsValueJSON, TakesWholeNumbersInADictionaryForReals) {
    EXPECT_EQ(DefaultsValueJSON::decode(R"({"dictionary":{"brightness":1}})"),
              DefaultsValue(DefaultsDictionary{{"brightness", 1.0}}));
}

class UnknownValues : public testing::TestWithParam<const char*> {};

TEST_P(UnknownValues, AreNothing) { EXPECT_EQ(DefaultsValueJSON::decode(GetParam()), std::nullopt); }

INSTANTIATE_TEST_SUITE_P(DefaultsValueJSON, UnknownValues,
                         testing::Values("17", "\"text\"", "{}", "[]", R"({"date":"2031-01-01"})",
                                         R"({"integer":1,"unit":"%"})", R"({"integer":1.5})",
                                         R"({"integer":9223372036854775808})", R"({"integer":"1"})",
                                         R"({"text":1})", R"({"dictionary":[]})",
                                         R"({"dictionary":{"a":null}})", R"({"dictionary":{"a":{}}})",
                                         R"({"base64":1})", R"({"base64":"?"})", "not JSON"));

}  // namespace
}  // namespace vantrel::posix
