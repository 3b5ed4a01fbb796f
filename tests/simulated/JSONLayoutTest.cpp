#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/simulated/JSONLayout.h"

namespace vantrel::simulated {
namespace {

std::string laidOut(const char* json) { return JSONLayout::text(nlohmann::ordered_json::parse(json)); }

TEST(JSONLayout, WritesWhatFitsOnALineOnOne) {
    EXPECT_EQ(laidOut(R"({"b":{"c":[1,2],"d":null},"a":true})"),
              "{\"b\": {\"c\": [1, 2], \"d\": null}, \"a\": true}\n");
}

TEST(JSONLayout, WritesPlainValuesOnOneLineHoweverLong) {
    const std::string text(200, 'x');
    EXPECT_EQ(JSONLayout::text({{"a", text}, {"b", 1}}), "{\"a\": \"" + text + "\", \"b\": 1}\n");
}

TEST(JSONLayout, GivesEachElementOfAListOfObjectsItsLine) {
    EXPECT_EQ(laidOut(R"([{"a":1},{"b":[]}])"), "[\n  {\"a\": 1},\n  {\"b\": []}\n]\n");
}

TEST(JSONLayout, BreaksWhatIsTooLongAndNothingElse) {
    const std::string text(100, 'x');
    EXPECT_EQ(JSONLayout::text({{"a", {{"b", {{"c", text}}}}}, {"d", {{"e", {{"f", 1}}}}}}),
              "{\n  \"a\": {\n    \"b\": {\"c\": \"" + text + "\"}\n  },\n  \"d\": {\"e\": {\"f\": 1}}\n}\n");
}

TEST(JSONLayout, CountsWhatStandsBeforeAValueOnItsLine) {
    const std::string key(60, 'k');
    const std::string text(60, 'x');
    EXPECT_EQ(JSONLayout::text({{key, {{"b", {{"c", text}}}}}}),
              "{\n  \"" + key + "\": {\n    \"b\": {\"c\": \"" + text + "\"}\n  }\n}\n");
}

TEST(JSONLayout, ReplacesWhatIsNoText) {
    EXPECT_EQ(JSONLayout::text({{"a\xFF", "\xFE"}}), "{\"a\uFFFD\": \"\uFFFD\"}\n");
}

}  // namespace
}  // namespace vantrel::simulated
