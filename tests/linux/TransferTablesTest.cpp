#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "linux/FakeDesktop.h"
#include "linux/SharedDefaults.h"
#include "platform/linux/TransferTables.h"
#include "platform/simulated/Random.h"
#include "support/RandomSeeds.h"

namespace vantrel::linux {
namespace {

using Calls = std::vector<std::string>;
using Notes = SessionMemory::Notes;
using platform::TransferTable;

constexpr std::uint32_t samples = 4;

TransferTable flat(float level) {
    const std::vector<float> channel(samples, level);
    return {channel, channel, channel};
}

// No two channels equal, and numbers that no short text holds.
TransferTable calibrated() {
    return {{0, 0.1F, 1.0F / 3, 1}, {0, 0.2F, 0.7F, 0.95F}, {0.015625F, 1e-9F, 0.5F, 1}};
}

class TransferTablesTest : public testing::Test {
  protected:
    TransferTablesTest() {
        for (const char* name : {"DP-1", "DP-2"}) {
            Desktop::Output output = FakeDesktop::outputOf(name, {});
            output.tableCapacity = samples;
            desktop.add(output);
        }
        desktop.setTable("DP-1", calibrated());
        desktop.calls.clear();
        tables.emplace(desktop, memory);
    }

    // The program ends without a word, and a new one starts.
    void crash() { tables.emplace(desktop, memory); }

    FakeDesktop desktop;
    SharedDefaults file;
    SessionMemory memory{file.open(), "fake-:0"};
    std::optional<TransferTables> tables;
};

TEST_F(TransferTablesTest, ShowsWhatTheOutputHas) {
    EXPECT_EQ(tables->table("DP-1"), calibrated());
    tables->set("DP-1", flat(0.5F));
    EXPECT_EQ(tables->table("DP-1"), flat(0.5F));
    EXPECT_EQ(tables->table("DP-9"), std::nullopt);
}

TEST_F(TransferTablesTest, GivesBackWhatTheOutputHadFirst) {
    tables->set("DP-1", flat(0.5F));
    tables->set("DP-1", flat(0.25F));
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
}

TEST_F(TransferTablesTest, GivesEachOutputItsOwn) {
    tables->set("DP-2", flat(0.5F));
    tables->set("DP-1", flat(0.25F));
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
    EXPECT_EQ(desktop.table("DP-2"), FakeDesktop::straightTable(samples));
}

TEST_F(TransferTablesTest, LeavesAloneWhatItNeverSet) {
    tables->restore();
    tables->set("DP-2", flat(0.5F));
    tables->restore();
    EXPECT_EQ(desktop.calls, (Calls{"table DP-2", "table DP-2"}));
}

TEST_F(TransferTablesTest, RestoresOnce) {
    tables->set("DP-1", flat(0.5F));
    tables->restore();
    desktop.setTable("DP-1", flat(0.75F));
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), flat(0.75F));
}

TEST_F(TransferTablesTest, StartsAnewAfterRestoring) {
    tables->set("DP-1", flat(0.5F));
    tables->restore();
    desktop.setTable("DP-1", flat(0.75F));
    tables->set("DP-1", flat(0.5F));
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), flat(0.75F));
}

TEST_F(TransferTablesTest, NotesTheFirstTableBeforeItSetsAnother) {
    tables->set("DP-1", flat(0.5F));
    const Notes notes = memory.tables();
    ASSERT_TRUE(notes.contains("DP-1"));
    tables->set("DP-1", flat(0.25F));
    EXPECT_EQ(memory.tables(), notes);
    tables->restore();
    EXPECT_EQ(memory.tables(), Notes());
}

TEST_F(TransferTablesTest, GivesBackAfterACrashWhatWasThereBefore) {
    tables->set("DP-1", flat(0.5F));
    crash();
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
    EXPECT_EQ(memory.tables(), Notes());
}

TEST_F(TransferTablesTest, GivesBackACrashedProgramsTableByTheNextEndAtTheLatest) {
    tables->set("DP-1", flat(0.5F));
    crash();
    tables->set("DP-1", flat(0.25F));
    tables->set("DP-2", flat(0.25F));
    crash();
    tables->set("DP-1", flat(0.125F));
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
    EXPECT_EQ(desktop.table("DP-2"), FakeDesktop::straightTable(samples));
}

TEST_F(TransferTablesTest, NotesNothingWhereTheDesktopForgetsTablesByItself) {
    desktop.keeps = false;
    tables->set("DP-1", flat(0.5F));
    EXPECT_EQ(memory.tables(), Notes());
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
}

TEST_F(TransferTablesTest, ReplacesNoTableThatItCanNotRead) {
    desktop.hidesTables = true;
    tables->set("DP-1", flat(0.5F));
    EXPECT_EQ(desktop.calls, Calls());
    desktop.hidesTables = false;
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
    tables->set("DP-1", flat(0.5F));
    EXPECT_EQ(desktop.table("DP-1"), flat(0.5F));
}

TEST_F(TransferTablesTest, SetsNoTableOfAnotherLength) {
    tables->set("DP-1", FakeDesktop::straightTable(256));
    EXPECT_EQ(desktop.calls, Calls());
    EXPECT_EQ(memory.tables(), Notes());
    tables->set("DP-1", flat(0.5F));
    tables->set("DP-1", FakeDesktop::straightTable(256));
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
}

TEST_F(TransferTablesTest, KeepsWhatCanNotBeGivenBackNow) {
    desktop.darkHaveNoTables = true;
    tables->set("DP-1", flat(0.5F));
    desktop.unplug("DP-1");
    tables->restore();
    crash();
    tables->restore();
    desktop.plug("DP-1", {});
    EXPECT_EQ(desktop.table("DP-1"), flat(0.5F));
    tables->set("DP-1", flat(0.25F));
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
    EXPECT_EQ(memory.tables(), Notes());
}

TEST_F(TransferTablesTest, KeepsItWithoutAMemoryToo) {
    desktop.darkHaveNoTables = true;
    desktop.keeps = false;
    tables->set("DP-1", flat(0.5F));
    desktop.output("DP-1").isLit = false;
    tables->restore();
    desktop.output("DP-1").isLit = true;
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), calibrated());
}

TEST_F(TransferTablesTest, TakesTheTableOfANewLengthForTheFirst) {
    tables->set("DP-1", flat(0.5F));
    desktop.remove("DP-1");
    Desktop::Output larger = FakeDesktop::outputOf("DP-1", {});
    larger.tableCapacity = 2;
    desktop.add(larger);
    tables->set("DP-1", {{0, 0}, {0, 0}, {0, 0}});
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"), FakeDesktop::straightTable(2));
}

TEST_F(TransferTablesTest, ForgetsANoteThatNobodyCanRead) {
    for (const char* text : {"", "1 2", "1 2 ", "a b c ", "1 2 3", "1  2 3 ", "1 2 3 x", "1e999 1 1 "}) {
        memory.noteTable("DP-1", text);
        crash();
        tables->restore();
        EXPECT_EQ(memory.tables(), Notes()) << text;
        EXPECT_EQ(desktop.calls, Calls()) << text;
    }
}

TEST_F(TransferTablesTest, ReadsATableOfAnEarlierProgramAsItWas) {
    memory.noteTable("DP-1", "0 0.1 0.2 1 0 0.25 0.5 1 1 0.5 0 0 ");
    tables->restore();
    EXPECT_EQ(desktop.table("DP-1"),
              (TransferTable{{0, 0.1F, 0.2F, 1}, {0, 0.25F, 0.5F, 1}, {1, 0.5F, 0, 0}}));
}

// Whatever happens in whatever order: what an output has after a restoring that it was lit
// for is what it had before anybody set it.
TEST_F(TransferTablesTest, EndsWithTheFirstTableByAnyOrder) {
    test::forRandomSeeds(2000, [](std::uint64_t seed) {
        simulated::Random random(seed);
        FakeDesktop desktop;
        desktop.darkHaveNoTables = random.chance(0.5);
        SharedDefaults file;
        SessionMemory memory(file.open(), "fake-:0");
        std::map<std::string, TransferTable> first;
        for (const char* name : {"DP-1", "DP-2"}) {
            Desktop::Output output = FakeDesktop::outputOf(name, {});
            output.tableCapacity = samples;
            desktop.add(output);
            first[name] = flat(static_cast<float>(random.uniform(0, 99)) / 99);
            desktop.setTable(name, first[name]);
        }
        std::optional<TransferTables> tables;
        tables.emplace(desktop, memory);
        for (std::uint64_t steps = random.uniform(0, 29); steps > 0; --steps) {
            const std::string name = random.uniform(0, 1) == 0 ? "DP-1" : "DP-2";
            switch (random.uniform(0, 6)) {
                case 0:
                    tables->restore();
                    break;
                case 1:
                    tables.emplace(desktop, memory);
                    break;
                case 2:
                    desktop.unplug(name);
                    break;
                case 3:
                    desktop.plug(name, {});
                    break;
                case 4:
                    desktop.refusesTables = !desktop.refusesTables;
                    break;
                default:
                    tables->set(name, flat(static_cast<float>(random.uniform(0, 99)) / 99));
            }
        }
        desktop.refusesTables = false;
        for (const auto& [name, table] : first) desktop.plug(name, {});
        if (random.chance(0.5)) tables.emplace(desktop, memory);
        tables->restore();
        for (const auto& [name, table] : first) EXPECT_EQ(desktop.table(name), table) << name;
        EXPECT_EQ(memory.tables(), Notes());
    });
}

}  // namespace
}  // namespace vantrel::linux
