#include <gtest/gtest.h>
#include <sstream>

#include "app/ProgramLog.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"

namespace vantrel::app {
namespace {

using platform::LogLevel;

class ProgramLogTest : public testing::Test {
  protected:
    simulated::VirtualTime time;
    std::ostringstream stream;
    test::RecordingLogSink system;
};

TEST_F(ProgramLogTest, IsSilentWhenNobodyAskedAndNoSystemListens) {
    ProgramLog(nullptr, std::nullopt, time, stream).write("s", "c", LogLevel::fault, "text");
    EXPECT_EQ(stream.str(), "");
}

TEST_F(ProgramLogTest, ShowsWhatTheUserAskedFor) {
    ProgramLog log(nullptr, LogLevel::error, time, stream);
    log.write("s", "c", LogLevel::standard, "routine");
    EXPECT_EQ(stream.str(), "");
    log.write("s", "c", LogLevel::fault, "text");
    EXPECT_NE(stream.str().find("[s:c] text\n"), std::string::npos);
}

TEST_F(ProgramLogTest, TellsTheSystemEverything) {
    ProgramLog log(&system, std::nullopt, time, stream);
    log.write("s", "ddc", LogLevel::debug, "text");
    EXPECT_EQ(system.lines(), (std::vector<test::LogLine>{{"s", "ddc", LogLevel::debug, "text"}}));
    EXPECT_EQ(stream.str(), "");
}

TEST_F(ProgramLogTest, TellsTheSystemAlsoWhatTheUserSees) {
    ProgramLog log(&system, LogLevel::error, time, stream);
    log.write("s", "ddc", LogLevel::error, "text");
    EXPECT_EQ(system.lines().size(), 1U);
    EXPECT_NE(stream.str(), "");
}

}  // namespace
}  // namespace vantrel::app
