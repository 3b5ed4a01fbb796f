#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ddc/AVServiceLocator.h"
#include "support/NoDisplays.h"
#include "support/ScriptedBus.h"
#include "support/SteppingClock.h"

namespace vantrel::ddc {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

struct Numbers {
    std::uint32_t vendor = 0;
    std::uint32_t model = 0;
    std::uint32_t serial = 0;
};

class NumberedDisplays : public test::NoDisplays {
  public:
    std::map<platform::DisplayID, Numbers> numbers;

    std::uint32_t vendorNumber(platform::DisplayID id) override { return numbers[id].vendor; }
    std::uint32_t modelNumber(platform::DisplayID id) override { return numbers[id].model; }
    std::uint32_t serialNumber(platform::DisplayID id) override { return numbers[id].serial; }
};

using Serial = std::optional<std::uint32_t>;

// Display 1 is vendor 10AC, model A0E1 and serial 7; in an EDID UUID the model's
// bytes are swapped.
constexpr const char* both = "10ACE1A0-0000-0000-0C1E-0104B5351E78";
constexpr const char* vendorOnly = "10AC0000-0000-0000-0C1E-0104B5351E78";
constexpr const char* modelOnly = "0000E1A0-0000-0000-0C1E-0104B5351E78";
constexpr const char* neither = "00000000-0000-0000-0C1E-0104B5351E78";
constexpr Serial theSerial = 7;
constexpr Serial otherSerial = 8;
constexpr Serial noSerial = std::nullopt;

class AVServiceMatchTest : public testing::Test {
  protected:
    AVServiceMatchTest() {
        displays.numbers[1] = {.vendor = 0x10AC, .model = 0xA0E1, .serial = 7};
        displays.numbers[2] = {.vendor = 0x1E6D, .model = 0x7707, .serial = 9};
    }

    void entry(const std::optional<std::string>& uuid, Serial serial = noSerial) {
        entries.push_back({bus.open(link), uuid, serial, std::nullopt});
    }

    // Which entry (from 0) each display has got.
    std::map<platform::DisplayID, int> match(const std::vector<platform::DisplayID>& ids) {
        std::map<platform::DisplayID, int> found;
        for (const auto& [id, matched] : AVServiceLocator::match(displays, ids, entries)) {
            for (std::size_t index = 0; index < entries.size(); ++index) {
                if (entries[index].service.get() == matched.service.get())
                    found[id] = static_cast<int>(index);
            }
        }
        return found;
    }

    // Whether display 1 prefers the one to the other, in whichever order.
    bool prefers(std::pair<const char*, Serial> better, std::pair<const char*, Serial> worse) {
        const auto matched = [this](auto first, auto second) {
            entries.clear();
            entry(first.first, first.second);
            entry(second.first, second.second);
            return match({1}).at(1);
        };
        return matched(better, worse) == 0 && matched(worse, better) == 1;
    }
    // Whether an entry scores anything at all with display 1.
    bool scores(const std::optional<std::string>& uuid, Serial serial = noSerial) {
        entries.clear();
        entry(std::nullopt);
        entry(uuid, serial);
        return !match({1}).empty();
    }
    // Whether it scores like a match of the vendor alone.
    bool scoresOne(const char* uuid) {
        entries.clear();
        entry(uuid);
        entry(vendorOnly);
        const bool isAtLeast = match({1}).at(1) == 0;
        entries.clear();
        entry(vendorOnly);
        entry(uuid);
        return isAtLeast && match({1}).at(1) == 0;
    }

    test::SteppingClock clock;
    test::ScriptedService link;
    test::ScriptedBus bus{clock};
    NumberedDisplays displays;
    std::vector<AVServiceLocator::Entry> entries;
};

TEST_F(AVServiceMatchTest, NoDisplaysMatchNothing) {
    entry(both);
    EXPECT_THAT(match({}), IsEmpty());
}

TEST_F(AVServiceMatchTest, NoEntriesMatchNothing) { EXPECT_THAT(match({1, 2}), IsEmpty()); }

TEST_F(AVServiceMatchTest, DisplayGetsTheWholeEntry) {
    entry(neither);
    entries.push_back({bus.open(link), both, theSerial, "Left"});
    const auto matched = AVServiceLocator::match(displays, {1}, entries);
    EXPECT_EQ(matched.at(1).service.get(), entries[1].service.get());
    EXPECT_EQ(matched.at(1).edidUUID, both);
    EXPECT_EQ(matched.at(1).serial, theSerial);
    EXPECT_EQ(matched.at(1).productName, "Left");
}

TEST_F(AVServiceMatchTest, VendorScores) { EXPECT_TRUE(scores(vendorOnly)); }

TEST_F(AVServiceMatchTest, ModelScoresWithItsBytesSwapped) { EXPECT_TRUE(scores(modelOnly)); }

TEST_F(AVServiceMatchTest, ModelInItsOwnByteOrderScoresNothing) { EXPECT_FALSE(scores("0000A0E1")); }

TEST_F(AVServiceMatchTest, SerialScores) { EXPECT_TRUE(scores(std::nullopt, theSerial)); }

TEST_F(AVServiceMatchTest, NothingInCommonScoresNothing) { EXPECT_FALSE(scores(neither, otherSerial)); }

TEST_F(AVServiceMatchTest, ModelAloneOutranksVendorAlone) {
    EXPECT_TRUE(prefers({modelOnly, noSerial}, {vendorOnly, noSerial}));
}

TEST_F(AVServiceMatchTest, ModelAndVendorOutrankModelAlone) {
    EXPECT_TRUE(prefers({both, noSerial}, {modelOnly, noSerial}));
}

TEST_F(AVServiceMatchTest, SerialAloneOutranksModelAndVendor) {
    EXPECT_TRUE(prefers({neither, theSerial}, {both, noSerial}));
}

TEST_F(AVServiceMatchTest, SerialAddsToVendorAndModel) {
    EXPECT_TRUE(prefers({vendorOnly, theSerial}, {neither, theSerial}));
    EXPECT_TRUE(prefers({modelOnly, theSerial}, {vendorOnly, theSerial}));
    EXPECT_TRUE(prefers({both, theSerial}, {modelOnly, theSerial}));
}

TEST_F(AVServiceMatchTest, AnotherSerialTakesNothingAway) {
    EXPECT_TRUE(prefers({modelOnly, otherSerial}, {vendorOnly, noSerial}));
    entries.clear();
    entry(modelOnly, otherSerial);
    entry(modelOnly);
    EXPECT_THAT(match({1}), ElementsAre(Pair(1, 0)));
}

TEST_F(AVServiceMatchTest, SerialZeroAddsNothing) {
    displays.numbers[1].serial = 0;
    EXPECT_FALSE(scores(neither, 0));
    EXPECT_TRUE(prefers({modelOnly, noSerial}, {vendorOnly, 0}));
}

TEST_F(AVServiceMatchTest, AbsentSerialAddsNothing) {
    displays.numbers[1].serial = 0;
    EXPECT_FALSE(scores(neither, noSerial));
}

TEST_F(AVServiceMatchTest, HexadecimalDigitsMayBeLowercase) {
    EXPECT_TRUE(scores("10ac0000"));
    EXPECT_TRUE(scores("0000e1a0"));
}

TEST_F(AVServiceMatchTest, EightCharactersAreEnoughForTheModel) { EXPECT_TRUE(scores("0000E1A0")); }

TEST_F(AVServiceMatchTest, FewerThanEightCharactersHaveNoModel) {
    EXPECT_FALSE(scores("0000E1A"));
    displays.numbers[1].model = 0x0AE1;
    EXPECT_FALSE(scores("0000E1A"));
    EXPECT_FALSE(scores("0000E10"));
}

TEST_F(AVServiceMatchTest, FewerThanEightCharactersScoreAtMostTheVendor) {
    EXPECT_TRUE(scoresOne("10ACE1A"));
    EXPECT_TRUE(scoresOne("10AC"));
}

TEST_F(AVServiceMatchTest, FewerThanFourCharactersAreAVendorNumberAllTheSame) {
    displays.numbers[1].vendor = 0x10A;
    EXPECT_TRUE(scores("10A"));
}

TEST_F(AVServiceMatchTest, SerialAddsToAShortEDIDUUID) {
    EXPECT_TRUE(prefers({"10ACE1A", theSerial}, {neither, theSerial}));
}

TEST_F(AVServiceMatchTest, EmptyEDIDUUIDScoresNothing) {
    displays.numbers[1].vendor = 0;
    EXPECT_FALSE(scores(""));
}

TEST_F(AVServiceMatchTest, VendorThatIsNotHexadecimalScoresNothing) {
    for (const std::uint32_t vendor : {0U, 1U, 0x10U, 0x10AU}) {
        displays.numbers[1].vendor = vendor;
        EXPECT_FALSE(scores("10AG0000"));
        EXPECT_FALSE(scores("0x100000"));
        EXPECT_FALSE(scores("10 A0000"));
        EXPECT_FALSE(scores(" 10A0000"));
        EXPECT_FALSE(scores("GGGG0000"));
        EXPECT_FALSE(scores("-0010000"));
    }
}

TEST_F(AVServiceMatchTest, ModelCountsBesideAVendorThatIsNotHexadecimal) {
    EXPECT_TRUE(prefers({"ZZZZE1A0", noSerial}, {vendorOnly, noSerial}));
}

TEST_F(AVServiceMatchTest, ModelThatIsNotHexadecimalLeavesTheVendor) {
    EXPECT_TRUE(scoresOne("10ACE1AZ"));
    EXPECT_TRUE(scoresOne("10ACE1--"));
    EXPECT_TRUE(scoresOne("10AC-E1A0"));
}

TEST_F(AVServiceMatchTest, ModelZeroOfADisplayMatchesZero) {
    displays.numbers[1].model = 0;
    EXPECT_TRUE(scores("FFFF0000"));
}

TEST_F(AVServiceMatchTest, OnlyEntryIsTakenWithoutAnyScore) {
    entry(std::nullopt);
    EXPECT_THAT(match({1}), ElementsAre(Pair(1, 0)));
}

TEST_F(AVServiceMatchTest, OnlyEntryIsTakenThoughItsIdentityIsAnothers) {
    entry(neither, otherSerial);
    EXPECT_THAT(match({1}), ElementsAre(Pair(1, 0)));
}

TEST_F(AVServiceMatchTest, NoneOfSeveralIsTakenWithoutAnyScore) {
    entry(std::nullopt);
    entry(neither, otherSerial);
    EXPECT_THAT(match({1}), IsEmpty());
}

TEST_F(AVServiceMatchTest, EarlierEntryWinsATie) {
    entry(neither);
    entry(both);
    entry(both);
    EXPECT_THAT(match({1}), ElementsAre(Pair(1, 1)));
}

TEST_F(AVServiceMatchTest, IdenticalMonitorsTakeTheirEntriesInOrder) {
    displays.numbers[2] = displays.numbers[1];
    entry(both);
    entry(both);
    EXPECT_THAT(match({1, 2}), ElementsAre(Pair(1, 0), Pair(2, 1)));
    EXPECT_THAT(match({2, 1}), ElementsAre(Pair(1, 1), Pair(2, 0)));
}

TEST_F(AVServiceMatchTest, IdenticalMonitorsAreToldApartByTheirSerials) {
    displays.numbers[2] = displays.numbers[1];
    displays.numbers[2].serial = 8;
    entry(both, otherSerial);
    entry(both, theSerial);
    EXPECT_THAT(match({1, 2}), ElementsAre(Pair(1, 1), Pair(2, 0)));
}

TEST_F(AVServiceMatchTest, EntryServesOneDisplayOnly) {
    displays.numbers[2] = displays.numbers[1];
    entry(both, theSerial);
    EXPECT_THAT(match({1, 2}), ElementsAre(Pair(1, 0)));
}

TEST_F(AVServiceMatchTest, TakenEntryIsNotLookedAtAgain) {
    displays.numbers[2] = displays.numbers[1];
    entry(both, theSerial);
    entry(vendorOnly);
    entry(modelOnly);
    EXPECT_THAT(match({1, 2}), ElementsAre(Pair(1, 0), Pair(2, 2)));
}

TEST_F(AVServiceMatchTest, EarlierDisplayTakesTheOnlyEntryFromTheOneItFits) {
    entry(both, theSerial);
    EXPECT_THAT(match({2, 1}), ElementsAre(Pair(2, 0)));
}

TEST_F(AVServiceMatchTest, LastEntryLeftFitsAnyDisplay) {
    entry(std::nullopt);
    entry(both);
    EXPECT_THAT(match({1, 2}), ElementsAre(Pair(1, 1), Pair(2, 0)));
}

TEST_F(AVServiceMatchTest, DisplayWithoutAnEntryLeavesThemToTheNext) {
    entry(std::nullopt);
    entry(both);
    EXPECT_THAT(match({2, 1}), ElementsAre(Pair(1, 1)));
}

TEST_F(AVServiceMatchTest, EntriesThatNoDisplayTookAreReleased) {
    entry(neither);
    entry(both);
    const auto matched = AVServiceLocator::match(displays, {1}, std::move(entries));
    EXPECT_EQ(bus.liveHandles(), 1);
    EXPECT_FALSE(bus.isReleased(2));
}

}  // namespace
}  // namespace vantrel::ddc
