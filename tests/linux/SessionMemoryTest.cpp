#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "linux/SharedDefaults.h"
#include "platform/linux/SessionMemory.h"

namespace vantrel::linux {
namespace {

using Notes = SessionMemory::Notes;
using platform::DefaultsDictionary;

class SessionMemoryTest : public testing::Test {
  protected:
    SessionMemory memoryOf(const std::string& desktop) { return SessionMemory(file.open(), desktop); }

    SharedDefaults file;
    SessionMemory memory = memoryOf("x11-:0");
};

TEST_F(SessionMemoryTest, HoldsNothingAtFirst) {
    EXPECT_EQ(memory.darkened(), Notes());
    EXPECT_EQ(memory.tables(), Notes());
    EXPECT_TRUE(file.kept().all().empty());
}

TEST_F(SessionMemoryTest, KeepsHowEachOutputWasArranged) {
    memory.noteDarkened("DP-1", "1920x1080+0+0");
    memory.noteDarkened("HDMI-1", "");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}, {"HDMI-1", ""}}));
}

TEST_F(SessionMemoryTest, ReplacesAnOlderNoteOfAnOutput) {
    memory.noteDarkened("DP-1", "old");
    memory.noteDarkened("DP-1", "new");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "new"}}));
}

TEST_F(SessionMemoryTest, ForgetsOneOutputOnly) {
    memory.noteDarkened("DP-1", "a");
    memory.noteDarkened("DP-2", "b");
    memory.forgetDarkened("DP-1");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-2", "b"}}));
}

TEST_F(SessionMemoryTest, LeavesNothingBehindOnceAllIsForgotten) {
    memory.noteDarkened("DP-1", "a");
    memory.forgetDarkened("DP-1");
    EXPECT_TRUE(file.kept().all().empty());
}

TEST_F(SessionMemoryTest, IgnoresForgettingWhatWasNeverNoted) {
    memory.noteDarkened("DP-1", "a");
    memory.forgetDarkened("DP-9");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "a"}}));
}

TEST_F(SessionMemoryTest, KeepsTablesApartFromOutputsThatWereTurnedOff) {
    memory.noteDarkened("DP-1", "a");
    memory.noteTable("DP-1", "0 1 ");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "a"}}));
    EXPECT_EQ(memory.tables(), (Notes{{"DP-1", "0 1 "}}));
    memory.forgetDarkened("DP-1");
    EXPECT_EQ(memory.tables(), (Notes{{"DP-1", "0 1 "}}));
    memory.forgetTable("DP-1");
    EXPECT_EQ(memory.tables(), Notes());
}

TEST_F(SessionMemoryTest, KeepsDesktopsApart) {
    SessionMemory other = memoryOf("wayland-0");
    memory.noteDarkened("DP-1", "a");
    EXPECT_EQ(other.darkened(), Notes());
    other.noteDarkened("DP-1", "b");
    memory.forgetDarkened("DP-1");
    EXPECT_EQ(other.darkened(), (Notes{{"DP-1", "b"}}));
}

TEST_F(SessionMemoryTest, ShowsEveryProgramOnADesktopTheSame) {
    SessionMemory guard = memoryOf("x11-:0");
    memory.noteDarkened("DP-1", "a");
    EXPECT_EQ(guard.darkened(), (Notes{{"DP-1", "a"}}));
    guard.noteDarkened("DP-2", "b");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "a"}, {"DP-2", "b"}}));
    guard.forgetDarkened("DP-1");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-2", "b"}}));
}

TEST_F(SessionMemoryTest, OutlivesTheProgramThatNoted) {
    auto mortal = std::make_unique<SessionMemory>(memoryOf("x11-:0"));
    mortal->noteDarkened("DP-1", "a");
    mortal.reset();
    EXPECT_EQ(memoryOf("x11-:0").darkened(), (Notes{{"DP-1", "a"}}));
}

TEST_F(SessionMemoryTest, SkipsWhatNoProgramOfItsKindWrote) {
    file.kept().set("darkened.x11-:0", std::string("text"));
    EXPECT_EQ(memory.darkened(), Notes());
    file.kept().set("darkened.x11-:0", DefaultsDictionary{{"DP-1", 3.5}, {"DP-2", "b"}});
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-2", "b"}}));
    memory.noteDarkened("DP-3", "c");
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-2", "b"}, {"DP-3", "c"}}));
}

}  // namespace
}  // namespace vantrel::linux
