#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>

#include "mccs/MonitorCapabilities.h"
#include "mccs/MonitorCapabilitiesJSON.h"
#include "mccs/ReferenceParser.h"
#include "support/RandomSeeds.h"

namespace vantrel::mccs {
namespace {

// Pieces of real strings, and whatever joins, splits or imitates their characters.
constexpr std::array<std::string_view, 48> pieces{
    "vcp(",   "vcp(",      "vcp(",   "VCP(",   "Vcp",        "vc",         "model(", "Model(",
    "model",  "mod",       "(",      "(",      "(",          ")",          ")",      ")",
    " ",      " ",         " ",      "1",      "2",          "A",          "f",      "0",
    "10",     "60(0F 11)", "14",     "0000",   "12345",      "FFFF",       "x",      "_",
    "-",      "\r",        "\n",     "\r\n",   "\u0308",     "\u200D",     "\uFE0F", "\u0600",
    "\u0416", "\u0130",    "\u212A", "\u24C2", "\U0001F4BB", "\U0001F1E6", "\uFF11", "\uFFFD",
};

std::string randomText(std::uint64_t seed) {
    std::mt19937_64 random(seed);
    std::string text;
    for (std::uint64_t count = random() % 40; count > 0; --count) text += pieces[random() % pieces.size()];
    return text;
}

TEST(MonitorCapabilitiesRandom, ParserAgreesWithAParserByTheBook) {
    std::uint64_t parsed = 0;
    test::forRandomSeeds(20'000, [&](std::uint64_t seed) {
        const std::string text = randomText(seed);
        SCOPED_TRACE(testing::PrintToString(text));
        const auto expected = test::parseByTheBook(text);
        const auto actual = MonitorCapabilities::parse(text);
        ASSERT_EQ(actual.has_value(), expected.has_value());
        if (!actual) return;
        ++parsed;
        EXPECT_EQ(actual->raw, expected->raw);
        EXPECT_EQ(actual->model, expected->model);
        EXPECT_EQ(actual->codes, expected->codes);
        EXPECT_EQ(actual->values, expected->values);
    });
    EXPECT_GT(parsed, 5'000U) << "most texts have nothing to compare";
}

TEST(MonitorCapabilitiesRandom, WhatIsStoredReadsTheSame) {
    test::forRandomSeeds(5'000, [](std::uint64_t seed) {
        const auto capabilities = MonitorCapabilities::parse("vcp(10)" + randomText(seed));
        ASSERT_TRUE(capabilities);
        EXPECT_EQ(MonitorCapabilitiesJSON::decode(MonitorCapabilitiesJSON::encode(*capabilities)),
                  capabilities);
    });
}

}  // namespace
}  // namespace vantrel::mccs
