#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "linux/TestEDID.h"
#include "platform/linux/EDID.h"
#include "platform/simulated/Random.h"
#include "support/RandomSeeds.h"

namespace vantrel::linux {
namespace {

std::optional<std::string> nameOf(const EDIDBytes& bytes) {
    const auto edid = EDID::read(bytes);
    return edid ? edid->name : "no EDID";
}

EDIDBytes named(const std::string& name) { return edidOf(0x10AC, 0x4064, 7, name); }

TEST(EDID, ReadsWhoTheMonitorIs) {
    const EDID expected{.vendor = 0x10AC, .product = 0x4064, .serial = 0x30425A31, .name = "Alder 27"};
    EXPECT_EQ(EDID::read(edidOf(0x10AC, 0x4064, 0x30425A31, "Alder 27")), expected);
}

TEST(EDID, ReadsTheBytesOfNumbersInTheirOrder) {
    EDIDBytes bytes = named("Alder");
    for (std::size_t at = 8; at < 16; ++at) bytes[at] = static_cast<std::uint8_t>(at);
    const auto edid = EDID::read(bytes);
    EXPECT_EQ(edid->vendor, 0x0809);
    EXPECT_EQ(edid->product, 0x0B0A);
    EXPECT_EQ(edid->serial, 0x0F0E0D0C);
}

TEST(EDID, ReadsTheHighestNumbers) {
    const auto edid = EDID::read(edidOf(0x7FFF, 0xFFFF, 0xFFFFFFFF));
    EXPECT_EQ(edid->vendor, 0x7FFF);
    EXPECT_EQ(edid->product, 0xFFFF);
    EXPECT_EQ(edid->serial, 0xFFFFFFFF);
}

TEST(EDID, HasNoSerialWhereThereIsNone) { EXPECT_EQ(EDID::read(edidOf(0x10AC, 1, 0))->serial, 0); }

// Names.

TEST(EDID, FindsTheNameInEachOfTheFourDescriptors) {
    for (std::size_t place = 0; place < 4; ++place) {
        EDIDBytes bytes = named("");
        setText(bytes, place, 0xFC, "Alder");
        EXPECT_EQ(nameOf(bytes), "Alder") << place;
    }
}

TEST(EDID, HasNoNameWithoutADescriptorOfOne) { EXPECT_EQ(nameOf(named("")), std::nullopt); }

TEST(EDID, TakesNoOtherTextForTheName) {
    EDIDBytes bytes = named("");
    setText(bytes, 2, 0xFF, "serial");
    setText(bytes, 3, 0xFE, "anything");
    EXPECT_EQ(nameOf(bytes), std::nullopt);
}

TEST(EDID, TakesNoTimingForAName) {
    EDIDBytes bytes = named("Alder");
    for (const std::size_t at : {108U, 109U, 110U}) {
        EDIDBytes timing = bytes;
        timing[at] = 1;
        EXPECT_EQ(nameOf(timing), std::nullopt) << at;
    }
}

TEST(EDID, ReadsANameOfAllThirteenCharacters) { EXPECT_EQ(nameOf(named("Alder 27 inch")), "Alder 27 inch"); }

TEST(EDID, EndsANameAtItsLineBreak) {
    EXPECT_EQ(nameOf(named("Alder\nx")), "Alder");
    EXPECT_EQ(nameOf(named("\nAlder")), std::nullopt);
}

TEST(EDID, TakesTheSpacesAroundANameAwayAndKeepsThoseWithin) {
    EXPECT_EQ(nameOf(named("  Alder  27  ")), "Alder  27");
    EXPECT_EQ(nameOf(named("Alder   ")), "Alder");
    EXPECT_EQ(nameOf(named("   Alder")), "Alder");
}

TEST(EDID, TakesNothingButSpacesForNoName) { EXPECT_EQ(nameOf(named("             ")), std::nullopt); }

TEST(EDID, KeepsPrintableCharactersOnly) {
    EXPECT_EQ(nameOf(named("A\x01l\x1F"
                           "d\x7F"
                           "e\x80r\xFF")),
              "Alder");
    EXPECT_EQ(nameOf(named(" !az~")), "!az~");
    EXPECT_EQ(nameOf(named("A\tb\r")), "Ab");
    EXPECT_EQ(nameOf(named(std::string("A\0b", 3))), "Ab");
    EXPECT_EQ(nameOf(named("\x01\x02\x7F\x80")), std::nullopt);
}

TEST(EDID, TakesTheFirstOfSeveralNames) {
    EDIDBytes bytes = named("Second");
    setText(bytes, 1, 0xFC, "First");
    EXPECT_EQ(nameOf(bytes), "First");
}

TEST(EDID, PassesAnEmptyNameOverForTheNext) {
    EDIDBytes bytes = named("Second");
    setText(bytes, 1, 0xFC, "   ");
    EXPECT_EQ(nameOf(bytes), "Second");
}

// Damage.

TEST(EDID, ReadsABlockWithAWrongChecksum) {
    EDIDBytes bytes = named("Alder");
    bytes[127] ^= 0xFF;
    EXPECT_EQ(EDID::read(bytes), EDID::read(named("Alder")));
}

TEST(EDID, ReadsTheBaseBlockOfSeveral) {
    EDIDBytes bytes = named("Alder");
    const auto expected = EDID::read(bytes);
    bytes.resize(256, 0xFC);
    EXPECT_EQ(EDID::read(bytes), expected);
}

TEST(EDID, IsNothingBeforeItsIdentityEnds) {
    const EDIDBytes bytes = named("Alder");
    for (std::size_t size = 0; size < 16; ++size) {
        EXPECT_EQ(EDID::read(std::span(bytes).first(size)), std::nullopt) << size;
    }
    EXPECT_EQ(EDID::read({}), std::nullopt);
}

TEST(EDID, HasItsNumbersWhereverItEndsAfterwards) {
    const EDIDBytes bytes = named("Alder");
    for (std::size_t size = 16; size <= 128; ++size) {
        const auto edid = EDID::read(std::span(bytes).first(size));
        ASSERT_TRUE(edid) << size;
        EXPECT_EQ(edid->serial, 7);
        // The last descriptor ends before the number of extensions and the checksum.
        EXPECT_EQ(edid->name.has_value(), size >= 126) << size;
    }
}

TEST(EDID, ForgivesTwoWrongBytesOfTheHeaderAndNoMore) {
    for (std::size_t first = 0; first < 8; ++first) {
        for (std::size_t second = 0; second < first; ++second) {
            EDIDBytes bytes = named("Alder");
            bytes[first] ^= 0x10;
            EXPECT_TRUE(EDID::read(bytes)) << first;
            bytes[second] ^= 0x10;
            EXPECT_TRUE(EDID::read(bytes)) << first << " " << second;
            bytes[(first + 1) % 8 == second ? (first + 2) % 8 : (first + 1) % 8] ^= 0x10;
            EXPECT_EQ(EDID::read(bytes), std::nullopt) << first << " " << second;
        }
    }
}

TEST(EDID, IsNothingOfOtherBytes) {
    EXPECT_EQ(EDID::read(EDIDBytes(128, 0x00)), std::nullopt);
    EXPECT_EQ(EDID::read(EDIDBytes(128, 0x6E)), std::nullopt);
}

// A line that nobody pulls down; six bytes of it are as in a header.
TEST(EDID, IsNothingOfALineOnWhichNobodySpeaks) {
    EXPECT_EQ(EDID::read(EDIDBytes(128, 0xFF)), std::nullopt);
    EXPECT_EQ(EDID::read(EDIDBytes(256, 0xFF)), std::nullopt);
}

TEST(EDID, ReadsWhatItCanOfBytesThatWereDamagedByChance) {
    test::forRandomSeeds(3000, [](std::uint64_t seed) {
        simulated::Random random(seed);
        EDIDBytes bytes = named("Alder");
        const EDIDBytes whole = bytes;
        for (auto flips = random.uniform(0, 40); flips > 0; --flips) {
            bytes[random.uniform(0, bytes.size() - 1)] ^=
                static_cast<std::uint8_t>(1U << random.uniform(0, 7));
        }
        bytes.resize(random.uniform(0, bytes.size()));
        const auto edid = EDID::read(bytes);
        unsigned right = 0;
        for (std::size_t at = 0; at < 8 && at < bytes.size(); ++at) right += bytes[at] == whole[at] ? 1 : 0;
        ASSERT_EQ(edid.has_value(), bytes.size() >= 16 && right >= 6);
        if (!edid) return;
        EXPECT_EQ(edid->vendor, bytes[8] * 256U + bytes[9]);
        EXPECT_EQ(edid->product, bytes[10] + bytes[11] * 256U);
        EXPECT_EQ(edid->serial,
                  bytes[12] + bytes[13] * 0x100U + bytes[14] * 0x10000U + bytes[15] * 0x1000000U);
        if (!edid->name) return;
        EXPECT_FALSE(edid->name->empty());
        EXPECT_LE(edid->name->size(), 13);
        EXPECT_NE(edid->name->front(), ' ');
        EXPECT_NE(edid->name->back(), ' ');
        for (const char character : *edid->name) {
            EXPECT_GE(character, ' ');
            EXPECT_LE(character, '~');
        }
    });
}

}  // namespace
}  // namespace vantrel::linux
