#include <chrono>
#include <gtest/gtest.h>
#include <sstream>

#include "app/StoryLog.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel::app {
namespace {

using namespace std::chrono_literals;
using platform::LogLevel;

TEST(StoryLog, BeginsLinesWithTheTimeSinceItWasMade) {
    simulated::VirtualTime time;
    time.sleepFor(5s);
    std::ostringstream output;
    StoryLog log(time, output, LogLevel::debug);
    log.step("sleep");
    time.sleepFor(12345678us);
    log.message("it can't");
    time.sleepFor(100000s);
    log.step("wake");
    EXPECT_EQ(output.str(),
              ">     0.000 s  sleep\n"
              "!    12.345 s  it can't\n"
              "> 100012.345 s  wake\n");
}

TEST(StoryLog, ShowsLevelCategoryAndTextOfALogLine) {
    simulated::VirtualTime time;
    std::ostringstream output;
    StoryLog log(time, output, LogLevel::debug);
    log.write("s", "ddc", LogLevel::debug, "one");
    log.write("s", "display", LogLevel::standard, "two");
    log.write("s", "ui", LogLevel::fault, "three");
    EXPECT_EQ(output.str(),
              "      0.000 s  debug    ddc      one\n"
              "      0.000 s  default  display  two\n"
              "      0.000 s  fault    ui       three\n");
}

TEST(StoryLog, LeavesOutLogLinesBelowItsLevelButNoStep) {
    simulated::VirtualTime time;
    std::ostringstream output;
    StoryLog log(time, output, LogLevel::error);
    log.write("s", "ddc", LogLevel::standard, "one");
    log.write("s", "ddc", LogLevel::error, "two");
    log.step("sleep");
    EXPECT_EQ(output.str(),
              "      0.000 s  error    ddc      two\n"
              ">     0.000 s  sleep\n");
}

TEST(StoryLog, IsQuietOnceClosed) {
    simulated::VirtualTime time;
    std::ostringstream output;
    StoryLog log(time, output, LogLevel::debug);
    log.close();
    log.step("sleep");
    log.write("s", "ddc", LogLevel::fault, "one");
    EXPECT_EQ(output.str(), "");
}

}  // namespace
}  // namespace vantrel::app
