#include <gtest/gtest.h>
#include <string>

#include "platform/linux/randr/Placement.h"
#include "platform/simulated/Random.h"
#include "support/RandomSeeds.h"

namespace vantrel::randr {
namespace {

Placement simple() {
    Placement placement;
    placement.picture.mode = {"2560x1440", 2560, 1440, 59951};
    placement.picture.area = {1920, 0, 1440, 2560};
    placement.picture.rotation = 2;
    placement.crtc = 63;
    return placement;
}

Placement full() {
    Placement placement = simple();
    placement.picture.mode.name = "a \"mode\"\nof mine";
    placement.picture.transform.matrix = {98304, -1, 0, 0, 65536, 7, 0, 0, 65536};
    placement.picture.transform.filter = "bilinear";
    placement.picture.transform.parameters = {1, -2};
    placement.picture.panning = {0, 0, 2000, 1500, 0, 0, 2000, 1500, -10, 20, 30, 40};
    placement.isPrimary = true;
    placement.shared = {"eDP-1", "HDMI-1"};
    return placement;
}

TEST(Placement, ComesBackFromItsText) {
    EXPECT_EQ(Placement::parse(simple().text()), simple());
    EXPECT_EQ(Placement::parse(full().text()), full());
}

TEST(Placement, IsOneLineOfPlainText) {
    EXPECT_EQ(simple().text(),
              R"({"crtc":63,"picture":{"area":[1920,0,1440,2560],"mode":"2560x1440","refresh":[59951],)"
              R"("rotation":[2],"size":[2560,1440]},"primary":false,"shared":[]})");
    EXPECT_EQ(full().text().find('\n'), std::string::npos);
}

TEST(Placement, OfNamesThatAreNoTextIsStillText) {
    Placement placement = simple();
    placement.picture.mode.name = "\xFF";
    EXPECT_TRUE(Placement::parse(placement.text()));
}

TEST(Placement, IsNothingWithoutAnyOfItsParts) {
    for (const std::string key : {"crtc", "picture", "primary", "shared", "area", "mode", "refresh",
                                  "rotation", "size", "filter", "parameters"}) {
        std::string text = full().text();
        const std::size_t found = text.find("\"" + key + "\"");
        ASSERT_NE(found, std::string::npos) << key;
        text.replace(found, key.size() + 2, "\"other\"");
        EXPECT_FALSE(Placement::parse(text)) << key;
    }
}

TEST(Placement, IsNothingWithValuesThatRandRDoesNotKnow) {
    const auto isParsed = [](const std::string& part, const std::string& other) {
        std::string text = full().text();
        const std::size_t found = text.find(part);
        EXPECT_NE(found, std::string::npos) << part;
        return Placement::parse(text.replace(found, part.size(), other)).has_value();
    };
    EXPECT_TRUE(isParsed("[1920,0,", "[0,1920,"));
    EXPECT_FALSE(isParsed("[1920,0,", "[1e3,0,"));
    EXPECT_FALSE(isParsed("[1920,0,", "[18446744073709551615,0,"));
    EXPECT_FALSE(isParsed("[1920,0,", "[-32769,0,"));
    EXPECT_FALSE(isParsed("[1920,0,", "[0,"));
    EXPECT_FALSE(isParsed("[2560,1440]", "[65536,1440]"));
    EXPECT_FALSE(isParsed("[2560,1440]", "[0,1440]"));
    EXPECT_FALSE(isParsed("\"crtc\":63", "\"crtc\":-1"));
    EXPECT_FALSE(isParsed("\"crtc\":63", "\"crtc\":4294967296"));
    EXPECT_FALSE(isParsed("true", "1"));
    EXPECT_FALSE(isParsed("\"eDP-1\"", "null"));
    EXPECT_FALSE(isParsed("\"bilinear\"", "7"));
}

TEST(Placement, NoTextIsTooBroken) {
    for (const std::string text : {"", "{", "null", "[]", "\xFF", "{}"}) EXPECT_FALSE(Placement::parse(text));
    int parsed = 0;
    test::forRandomSeeds(2000, [&](std::uint64_t seed) {
        simulated::Random random(seed);
        std::string text = full().text();
        for (auto changes = random.uniform(1, 3); changes > 0; --changes) {
            text[random.uniform(0, text.size() - 1)] = static_cast<char>(random.uniform(0, 255));
        }
        const auto placement = Placement::parse(text);
        if (!placement) return;
        ++parsed;
        EXPECT_EQ(Placement::parse(placement->text()), placement);
    });
    EXPECT_GT(parsed, 0);
}

}  // namespace
}  // namespace vantrel::randr
