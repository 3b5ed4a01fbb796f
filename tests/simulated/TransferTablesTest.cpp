#include <gtest/gtest.h>

#include "platform/simulated/TransferTables.h"

namespace vantrel::simulated {
namespace {

using platform::TransferTable;

const TransferTable dark{{0, 0.1F}, {0, 0.2F}, {0, 0.3F}};

TransferTables tablesOf(std::uint32_t capacity) {
    DisplayPlan plan;
    plan.id = 2;
    plan.transferTableCapacity = capacity;
    return TransferTables({plan});
}

TEST(TransferTables, AreLinearAtFirst) {
    const std::vector<float> ramp{0, 0.5F, 1};
    EXPECT_EQ(tablesOf(3).table(2, 3), (TransferTable{ramp, ramp, ramp}));
}

TEST(TransferTables, KeepWhatIsSetUntilTheyAreReset) {
    TransferTables tables = tablesOf(3);
    tables.set(2, dark);
    EXPECT_EQ(tables.table(2, 3), dark);
    tables.reset();
    EXPECT_EQ(tables.table(2, 3), TransferTables::linear(3));
}

TEST(TransferTables, GiveNoMoreSamplesThanAskedFor) {
    const std::vector<float> ramp{0, 0.5F};
    EXPECT_EQ(tablesOf(3).table(2, 2), (TransferTable{ramp, ramp, ramp}));
    EXPECT_EQ(tablesOf(3).table(2, 0), std::nullopt);
}

TEST(TransferTables, AreMissingWithoutACapacity) {
    TransferTables tables = tablesOf(0);
    tables.set(2, dark);
    EXPECT_EQ(tables.table(2, 256), std::nullopt);
}

TEST(TransferTables, AreMissingForAnUnknownDisplay) {
    TransferTables tables = tablesOf(3);
    tables.set(9, dark);
    EXPECT_EQ(tables.table(9, 3), std::nullopt);
}

TEST(TransferTables, IgnoreATableThatIsEmptyTooLongOrUneven) {
    TransferTables tables = tablesOf(1);
    tables.set(2, dark);
    tables.set(2, {});
    tables.set(2, {{0}, {0}, {}});
    EXPECT_EQ(tables.table(2, 1), TransferTables::linear(1));
}

}  // namespace
}  // namespace vantrel::simulated
