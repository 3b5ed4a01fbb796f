#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/Log.h"
#include "platform/linux/JournalLog.h"

namespace vantrel::linux {
namespace {

using Fields = std::vector<std::string>;
using platform::LogLevel;

class JournalLogTest : public testing::Test {
  protected:
    std::vector<Fields> sent;
    JournalLog journal{[this](const Fields& fields) { sent.push_back(fields); }};
};

TEST_F(JournalLogTest, SendsEachLineWithItsFields) {
    journal.write("org.vantrel.Vantrel", "ddc", LogLevel::error, "DELL: no answer");
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0], (Fields{"MESSAGE=DELL: no answer", "PRIORITY=3", "SYSLOG_IDENTIFIER=vantrel",
                               "VANTREL_SUBSYSTEM=org.vantrel.Vantrel", "VANTREL_CATEGORY=ddc"}));
}

TEST_F(JournalLogTest, GivesEachLevelThePriorityThatSyslogHasForIt) {
    for (const LogLevel level :
         {LogLevel::debug, LogLevel::info, LogLevel::standard, LogLevel::error, LogLevel::fault}) {
        journal.write("s", "c", level, "text");
    }
    std::vector<std::string> priorities;
    for (const Fields& fields : sent) priorities.push_back(fields.at(1));
    EXPECT_EQ(priorities, (Fields{"PRIORITY=7", "PRIORITY=6", "PRIORITY=5", "PRIORITY=3", "PRIORITY=2"}));
}

TEST_F(JournalLogTest, LeavesTextsAsTheyAre) {
    journal.write("", "", LogLevel::info, std::string_view("a=b\nc\0d", 7));
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].at(0), std::string("MESSAGE=a=b\nc\0d", 15));
    EXPECT_EQ(sent[0].at(4), "VANTREL_CATEGORY=");
}

TEST_F(JournalLogTest, CarriesTheVoiceOfTheProgram) {
    const platform::Log log(journal);
    log.write(platform::Log::display, LogLevel::info, "refreshed");
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].at(3), "VANTREL_SUBSYSTEM=" + std::string(platform::Log::subsystem));
    EXPECT_EQ(sent[0].at(4), "VANTREL_CATEGORY=display");
}

// With or without a journal on this computer.
TEST(JournalLog, GoesOnWhereNobodyListens) {
    JournalLog journal;
    EXPECT_NO_FATAL_FAILURE(journal.write("s", "c", LogLevel::debug, "a line of a test"));
}

}  // namespace
}  // namespace vantrel::linux
