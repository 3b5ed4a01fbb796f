#include <gtest/gtest.h>

#include "model/SoftwareDimmer.h"
#include "platform/MemoryDefaults.h"
#include "support/TableDisplays.h"
#include "support/Wakes.h"

namespace vantrel::model {
namespace {

using platform::DefaultsDictionary;
using platform::DefaultsValue;
using platform::TransferTable;
using test::Journal;
using test::TableDisplays;

constexpr platform::DisplayID id = 7;
const std::string key = "1138-1922-0";

// Settings whose changes are in the journal too.
class JournalDefaults : public platform::MemoryDefaults {
  public:
    explicit JournalDefaults(Journal& journal) : journal_(journal) {}
    void set(const std::string& settingKey, DefaultsValue value) override {
        journal_.push_back("store " + settingKey);
        MemoryDefaults::set(settingKey, std::move(value));
    }
    void remove(const std::string& settingKey) override {
        journal_.push_back("remove " + settingKey);
        MemoryDefaults::remove(settingKey);
    }

  private:
    Journal& journal_;
};

class SoftwareDimmerTest : public testing::Test {
  protected:
    SoftwareDimmerTest() { displays.tables[id] = base; }

    SoftwareDimmer make() { return SoftwareDimmer(displays, baseTables, defaults, id, key); }
    // The table of the display after `dimmer` was turned on with these levels.
    TransferTable dimmed(double brightness, double contrast) {
        SoftwareDimmer dimmer = make();
        dimmer.setBrightness(brightness);
        dimmer.setContrast(contrast);
        dimmer.setActive(true);
        return displays.tables[id];
    }
    void expectRed(const TransferTable& table, const std::vector<float>& samples) {
        ASSERT_EQ(table.red.size(), samples.size());
        for (std::size_t index = 0; index < samples.size(); ++index) {
            EXPECT_FLOAT_EQ(table.red[index], samples[index]) << "sample " << index;
        }
    }

    const TransferTable base{
        {0.0F, 0.1F, 0.5F, 0.9F, 1.0F}, {0.0F, 0.2F, 0.4F, 0.6F, 0.8F}, {0.1F, 0.1F, 0.3F, 0.7F, 1.0F}};
    Journal journal;
    TableDisplays displays{journal};
    platform::BaseTables baseTables{displays};
    JournalDefaults defaults{journal};
};

TEST_F(SoftwareDimmerTest, BeginsInactiveWithLevelsThatLeaveThePictureAsItIs) {
    const SoftwareDimmer dimmer = make();
    EXPECT_EQ(dimmer.displayID(), id);
    EXPECT_EQ(dimmer.key(), key);
    EXPECT_EQ(dimmer.brightness(), 1.0);
    EXPECT_EQ(dimmer.contrast(), 0.5);
    EXPECT_FALSE(dimmer.isActive());
}

TEST_F(SoftwareDimmerTest, MakingItTouchesNothing) {
    make();
    EXPECT_EQ(journal, Journal{});
}

TEST_F(SoftwareDimmerTest, BeginsWithTheStoredLevels) {
    defaults.set("software." + key, DefaultsDictionary{{"brightness", 0.25}, {"contrast", 0.75}});
    EXPECT_EQ(make().brightness(), 0.25);
    EXPECT_EQ(make().contrast(), 0.75);
}

TEST_F(SoftwareDimmerTest, BeginsWithTheUsualBrightnessWhenOnlyContrastIsStored) {
    defaults.set("software." + key, DefaultsDictionary{{"contrast", 0.7}});
    EXPECT_EQ(make().brightness(), 1.0);
    EXPECT_EQ(make().contrast(), 0.7);
}

TEST_F(SoftwareDimmerTest, BeginsWithTheUsualLevelWhereNoNumberIsStored) {
    defaults.set("software." + key,
                 DefaultsDictionary{{"brightness", 0.3}, {"contrast", std::string("0.9")}});
    EXPECT_EQ(make().brightness(), 0.3);
    EXPECT_EQ(make().contrast(), 0.5);
}

TEST_F(SoftwareDimmerTest, SettingBrightnessStoresBothLevels) {
    SoftwareDimmer dimmer = make();
    dimmer.setBrightness(0.25);
    EXPECT_EQ(dimmer.brightness(), 0.25);
    EXPECT_EQ(defaults.value("software." + key),
              DefaultsValue(DefaultsDictionary{{"brightness", 0.25}, {"contrast", 0.5}}));
}

TEST_F(SoftwareDimmerTest, SettingContrastStoresBothLevels) {
    SoftwareDimmer dimmer = make();
    dimmer.setContrast(0.75);
    EXPECT_EQ(dimmer.contrast(), 0.75);
    EXPECT_EQ(defaults.value("software." + key),
              DefaultsValue(DefaultsDictionary{{"brightness", 1.0}, {"contrast", 0.75}}));
}

TEST_F(SoftwareDimmerTest, OneSettingStoresOnceAndThenAppliesOnce) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    journal.clear();
    dimmer.setBrightness(0.25);
    EXPECT_EQ(journal, (Journal{"store software.1138-1922-0", "write 7"}));
    journal.clear();
    dimmer.setContrast(0.25);
    EXPECT_EQ(journal, (Journal{"store software.1138-1922-0", "write 7"}));
}

TEST_F(SoftwareDimmerTest, SettingAnEqualLevelStoresAndAppliesAgain) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    dimmer.setBrightness(0.25);
    journal.clear();
    dimmer.setBrightness(0.25);
    dimmer.setContrast(0.5);
    EXPECT_EQ(journal,
              (Journal{"store software.1138-1922-0", "write 7", "store software.1138-1922-0", "write 7"}));
}

TEST_F(SoftwareDimmerTest, SettingALevelWhileItNeverRanOnlyStores) {
    SoftwareDimmer dimmer = make();
    dimmer.setBrightness(0.25);
    dimmer.setContrast(0.25);
    EXPECT_EQ(journal, (Journal{"store software.1138-1922-0", "store software.1138-1922-0"}));
}

TEST_F(SoftwareDimmerTest, TurningItOnReadsTheDisplaysOwnTableAndWritesOnce) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    EXPECT_TRUE(dimmer.isActive());
    EXPECT_EQ(journal, (Journal{"capacity of 7", "read 7 up to 256", "write 7"}));
}

TEST_F(SoftwareDimmerTest, TurningItOnAgainDoesNothing) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    journal.clear();
    dimmer.setActive(true);
    EXPECT_EQ(journal, Journal{});
}

TEST_F(SoftwareDimmerTest, TurningItOffThatNeverRanMakesNoPlatformCall) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(false);
    EXPECT_EQ(journal, Journal{});
}

TEST_F(SoftwareDimmerTest, TurningItOffWritesTheDisplaysOwnTableBack) {
    SoftwareDimmer dimmer = make();
    dimmer.setBrightness(0.25);
    dimmer.setActive(true);
    EXPECT_NE(displays.tables[id], base);
    journal.clear();
    dimmer.setActive(false);
    EXPECT_EQ(displays.tables[id], base);
    EXPECT_EQ(journal, Journal{"write 7"});
}

TEST_F(SoftwareDimmerTest, TurningItOffAgainDoesNothing) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    dimmer.setActive(false);
    journal.clear();
    dimmer.setActive(false);
    EXPECT_EQ(journal, Journal{});
}

TEST_F(SoftwareDimmerTest, WhetherItIsActiveIsNotStored) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    EXPECT_TRUE(defaults.all().empty());
    EXPECT_FALSE(make().isActive());
}

TEST_F(SoftwareDimmerTest, ApplyingOneThatNeverRanMakesNoPlatformCall) {
    make().apply();
    EXPECT_EQ(journal, Journal{});
}

TEST_F(SoftwareDimmerTest, ApplyingAnActiveOneWritesItsTableAgain) {
    SoftwareDimmer dimmer = make();
    dimmer.setBrightness(0.25);
    dimmer.setActive(true);
    const TransferTable dimmedTable = displays.tables[id];
    displays.tables[id] = base;
    journal.clear();
    dimmer.apply();
    EXPECT_EQ(displays.tables[id], dimmedTable);
    EXPECT_EQ(journal, Journal{"write 7"});
}

TEST_F(SoftwareDimmerTest, ApplyingAnInactiveOneThatRanWritesTheDisplaysOwnTable) {
    SoftwareDimmer dimmer = make();
    dimmer.setBrightness(0.25);
    dimmer.setActive(true);
    dimmer.setActive(false);
    displays.tables[id] = TableDisplays::grey({0.0F, 0.1F});
    dimmer.apply();
    EXPECT_EQ(displays.tables[id], base);
}

TEST_F(SoftwareDimmerTest, ADisplayDimmedByAnotherDimmerIsRestored) {
    SoftwareDimmer first = make();
    first.setBrightness(0.25);
    first.setActive(true);
    SoftwareDimmer second = make();
    second.apply();
    EXPECT_EQ(displays.tables[id], base);
}

TEST_F(SoftwareDimmerTest, NeverTakesADimmedTableForTheDisplaysOwn) {
    dimmed(0.25, 0.5);
    SoftwareDimmer second = make();
    second.setActive(true);
    second.setBrightness(1.0);
    EXPECT_EQ(displays.tables[id], base);
}

TEST_F(SoftwareDimmerTest, ScalesFromTheDisplaysOwnTableEveryTime) {
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    for (const double brightness : {0.1, 0.9, 0.5}) dimmer.setBrightness(brightness);
    expectRed(displays.tables[id], {0.0F, 0.055F, 0.275F, 0.495F, 0.55F});
}

TEST_F(SoftwareDimmerTest, FullBrightnessAndMiddleContrastWriteTheTableUnchanged) {
    EXPECT_EQ(dimmed(1.0, 0.5), base);
    EXPECT_EQ(journal.back(), "write 7");
}

TEST_F(SoftwareDimmerTest, LevelsNextToThoseWriteTheTableUnchanged) {
    EXPECT_EQ(dimmed(0.9995, 0.5005), base);
    EXPECT_EQ(dimmed(0.9995, 0.4995), base);
}

TEST_F(SoftwareDimmerTest, BrightnessFrom999ThousandthsIsNeutral) {
    EXPECT_EQ(dimmed(0.999, 0.5), base);
    EXPECT_NE(dimmed(0.9989, 0.5), base);
}

TEST_F(SoftwareDimmerTest, ContrastWithinOneThousandthOfTheMiddleIsNeutral) {
    EXPECT_EQ(dimmed(1.0, 0.5009), base);
    EXPECT_EQ(dimmed(1.0, 0.4991), base);
    EXPECT_NE(dimmed(1.0, 0.5011), base);
    EXPECT_NE(dimmed(1.0, 0.4989), base);
}

TEST_F(SoftwareDimmerTest, IsNeutralWhenBothLevelsAre) {
    SoftwareDimmer dimmer = make();
    EXPECT_TRUE(dimmer.isNeutral());
    dimmer.setBrightness(0.9);
    EXPECT_FALSE(dimmer.isNeutral());
    dimmer.setBrightness(1.0);
    dimmer.setContrast(0.6);
    EXPECT_FALSE(dimmer.isNeutral());
}

TEST_F(SoftwareDimmerTest, NoBrightnessLeavesATenthOfThePicture) {
    const TransferTable table = dimmed(0.0, 0.5);
    expectRed(table, {0.0F, 0.01F, 0.05F, 0.09F, 0.1F});
}

TEST_F(SoftwareDimmerTest, HalfBrightnessLeavesFiftyFivePercent) {
    const TransferTable table = dimmed(0.5, 0.5);
    expectRed(table, {0.0F, 0.055F, 0.275F, 0.495F, 0.55F});
}

TEST_F(SoftwareDimmerTest, FullContrastSpreadsFromTheMiddleAndEndsAtZeroAndOne) {
    const TransferTable table = dimmed(1.0, 1.0);
    expectRed(table, {0.0F, 0.0F, 0.5F, 1.0F, 1.0F});
}

TEST_F(SoftwareDimmerTest, NoContrastHalvesTheDistanceFromTheMiddle) {
    const TransferTable table = dimmed(1.0, 0.0);
    expectRed(table, {0.25F, 0.3F, 0.5F, 0.7F, 0.75F});
}

TEST_F(SoftwareDimmerTest, BrightnessScalesWhatContrastHasCutOff) {
    const TransferTable table = dimmed(0.5, 1.0);
    expectRed(table, {0.0F, 0.0F, 0.275F, 0.55F, 0.55F});
}

TEST_F(SoftwareDimmerTest, BrightnessItselfIsNotCutOff) {
    const TransferTable table = dimmed(1.2, 1.0);
    expectRed(table, {0.0F, 0.0F, 0.59F, 1.18F, 1.18F});
}

TEST_F(SoftwareDimmerTest, EveryChannelIsScaledFromItsOwn) {
    const TransferTable table = dimmed(0.0, 0.5);
    EXPECT_FLOAT_EQ(table.green[4], 0.08F);
    EXPECT_FLOAT_EQ(table.blue[0], 0.01F);
    EXPECT_EQ(table.green.size(), 5U);
    EXPECT_EQ(table.blue.size(), 5U);
}

TEST_F(SoftwareDimmerTest, ADisplayWithoutCapacityIsLeftAlone) {
    displays.capacity = 0;
    SoftwareDimmer dimmer = make();
    dimmer.setBrightness(0.25);
    dimmer.setActive(true);
    EXPECT_EQ(displays.tables[id], base);
    EXPECT_EQ(journal, (Journal{"store software.1138-1922-0", "capacity of 7"}));
}

TEST_F(SoftwareDimmerTest, ADisplayWhoseTableCannotBeReadIsLeftAlone) {
    displays.tables.clear();
    SoftwareDimmer dimmer = make();
    dimmer.setActive(true);
    dimmer.setActive(false);
    EXPECT_TRUE(displays.tables.empty());
    EXPECT_EQ(journal, (Journal{"capacity of 7", "read 7 up to 256"}));
}

TEST_F(SoftwareDimmerTest, AChangedLevelWakesItsReaders) {
    SoftwareDimmer dimmer = make();
    EXPECT_TRUE(test::wakes([&] { return dimmer.brightness(); }, [&] { dimmer.setBrightness(0.5); }));
    EXPECT_TRUE(test::wakes([&] { return dimmer.contrast(); }, [&] { dimmer.setContrast(0.7); }));
    EXPECT_TRUE(test::wakes([&] { return dimmer.isActive(); }, [&] { dimmer.setActive(true); }));
}

TEST_F(SoftwareDimmerTest, AnEqualLevelWakesNobody) {
    SoftwareDimmer dimmer = make();
    EXPECT_FALSE(test::wakes([&] { return dimmer.brightness(); }, [&] { dimmer.setBrightness(1.0); }));
    EXPECT_FALSE(test::wakes([&] { return dimmer.contrast(); }, [&] { dimmer.setContrast(0.5); }));
    EXPECT_FALSE(test::wakes([&] { return dimmer.isActive(); }, [&] { dimmer.setActive(false); }));
}

}  // namespace
}  // namespace vantrel::model
