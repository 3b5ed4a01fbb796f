#include <gtest/gtest.h>
#include <string>

#include "platform/posix/BoundedJSON.h"

namespace vantrel::posix {
namespace {

std::string nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

TEST(BoundedJSON, KeepsTheOrderOfMembers) {
    EXPECT_EQ(BoundedJSON::parse(R"({"b":1,"a":2})").value().dump(), R"({"b":1,"a":2})");
}

TEST(BoundedJSON, IsNothingForWhatIsNoJSON) {
    EXPECT_EQ(BoundedJSON::parse(""), std::nullopt);
    EXPECT_EQ(BoundedJSON::parse("{\"a\":1"), std::nullopt);
    EXPECT_EQ(BoundedJSON::parse("{} {}"), std::nullopt);
    EXPECT_EQ(BoundedJSON::parse("\"\xFF\""), std::nullopt);
}

TEST(BoundedJSON, IsNothingForANumberBeyondADouble) { EXPECT_EQ(BoundedJSON::parse("1e999"), std::nullopt); }

TEST(BoundedJSON, IsAsDeepAsItMayBe) {
    EXPECT_TRUE(BoundedJSON::parse(nested(64)));
    EXPECT_FALSE(BoundedJSON::parse(nested(65)));
    EXPECT_TRUE(BoundedJSON::parse(nested(3), 3));
    EXPECT_FALSE(BoundedJSON::parse(nested(4), 3));
}

TEST(BoundedJSON, CountsObjectsAndArraysAlike) {
    EXPECT_TRUE(BoundedJSON::parse(R"({"a":[{}]})", 3));
    EXPECT_FALSE(BoundedJSON::parse(R"({"a":[{}]})", 2));
}

TEST(BoundedJSON, SurvivesAMillionBrackets) { EXPECT_FALSE(BoundedJSON::parse(nested(1'000'000))); }

}  // namespace
}  // namespace vantrel::posix
