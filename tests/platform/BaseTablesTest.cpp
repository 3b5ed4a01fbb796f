#include <gtest/gtest.h>

#include "platform/BaseTables.h"
#include "support/TableDisplays.h"

namespace vantrel::platform {
namespace {

using test::Journal;
using test::TableDisplays;

constexpr DisplayID display = 7;
constexpr DisplayID neighbour = 8;

class BaseTablesTest : public testing::Test {
  protected:
    Journal journal;
    TableDisplays displays{journal};
    BaseTables baseTables{displays};
    const TransferTable ownTable{{0.0F, 0.5F, 1.0F}, {0.0F, 0.4F, 0.9F}, {0.1F, 0.3F, 0.8F}};
};

TEST_F(BaseTablesTest, AskThePlatformNothingUntilATableIsNeeded) {
    EXPECT_FALSE(baseTables.holds(display));
    EXPECT_EQ(journal, Journal{});
}

TEST_F(BaseTablesTest, ReadTheDisplaysTableWithTheCapacityThatThePlatformTells) {
    displays.tables[display] = ownTable;
    displays.capacity = 1024;
    ASSERT_NE(baseTables.table(display), nullptr);
    EXPECT_EQ(*baseTables.table(display), ownTable);
    EXPECT_EQ(journal, (Journal{"capacity of 7", "read 7 up to 1024"}));
}

TEST_F(BaseTablesTest, HoldATableOnceItWasRead) {
    displays.tables[display] = ownTable;
    baseTables.table(display);
    EXPECT_TRUE(baseTables.holds(display));
}

TEST_F(BaseTablesTest, AreNeverReadAgain) {
    displays.tables[display] = ownTable;
    baseTables.table(display);
    journal.clear();
    baseTables.table(display);
    EXPECT_EQ(journal, Journal{});
}

TEST_F(BaseTablesTest, StayAsTheyAreWhenTheDisplayChanges) {
    displays.tables[display] = ownTable;
    baseTables.table(display);
    displays.tables[display] = TableDisplays::grey({0.0F, 0.1F});
    EXPECT_EQ(*baseTables.table(display), ownTable);
}

TEST_F(BaseTablesTest, BelongToOneDisplayEach) {
    displays.tables[display] = ownTable;
    displays.tables[neighbour] = TableDisplays::grey({0.0F, 0.2F});
    baseTables.table(display);
    EXPECT_FALSE(baseTables.holds(neighbour));
    EXPECT_EQ(*baseTables.table(neighbour), TableDisplays::grey({0.0F, 0.2F}));
    EXPECT_EQ(*baseTables.table(display), ownTable);
}

TEST_F(BaseTablesTest, ADisplayWithoutCapacityHasNoneAndIsNotRead) {
    displays.tables[display] = ownTable;
    displays.capacity = 0;
    EXPECT_EQ(baseTables.table(display), nullptr);
    EXPECT_FALSE(baseTables.holds(display));
    EXPECT_EQ(journal, Journal{"capacity of 7"});
}

TEST_F(BaseTablesTest, ADisplayThatCannotBeReadHasNone) {
    EXPECT_EQ(baseTables.table(display), nullptr);
    EXPECT_FALSE(baseTables.holds(display));
}

TEST_F(BaseTablesTest, ATableWithoutSamplesIsNone) {
    displays.tables[display] = TransferTable{};
    EXPECT_EQ(baseTables.table(display), nullptr);
    EXPECT_FALSE(baseTables.holds(display));
}

TEST_F(BaseTablesTest, AskAgainAfterAFailure) {
    EXPECT_EQ(baseTables.table(display), nullptr);
    displays.tables[display] = ownTable;
    ASSERT_NE(baseTables.table(display), nullptr);
    EXPECT_EQ(*baseTables.table(display), ownTable);
}

}  // namespace
}  // namespace vantrel::platform
