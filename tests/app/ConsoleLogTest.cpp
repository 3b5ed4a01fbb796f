#include <gtest/gtest.h>
#include <sstream>

#include "app/ConsoleLog.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel::app {
namespace {

using namespace std::chrono_literals;
using platform::LogLevel;

TEST(ConsoleLog, ShowsTimeLevelProgramSubsystemCategoryAndText) {
    simulated::VirtualTime time;
    std::ostringstream stream;
    ConsoleLog log(time, stream, LogLevel::debug);
    time.sleepFor(13h + 2min + 3s + 45ms + 6us);
    log.write("org.vantrel.Vantrel", "ui", LogLevel::fault, "too much");
    EXPECT_EQ(stream.str(),
              "2026-01-05 13:02:03.045006+0000 Fault   vantrel: [org.vantrel.Vantrel:ui] too much\n");
}

TEST(ConsoleLog, NamesEveryLevelAsTheSystemLogDoes) {
    simulated::VirtualTime time;
    std::ostringstream stream;
    ConsoleLog log(time, stream, LogLevel::debug);
    for (const LogLevel level :
         {LogLevel::debug, LogLevel::info, LogLevel::standard, LogLevel::error, LogLevel::fault}) {
        log.write("s", "c", level, "t");
    }
    EXPECT_EQ(stream.str(),
              "2026-01-05 00:00:00.000000+0000 Debug   vantrel: [s:c] t\n"
              "2026-01-05 00:00:00.000000+0000 Info    vantrel: [s:c] t\n"
              "2026-01-05 00:00:00.000000+0000 Default vantrel: [s:c] t\n"
              "2026-01-05 00:00:00.000000+0000 Error   vantrel: [s:c] t\n"
              "2026-01-05 00:00:00.000000+0000 Fault   vantrel: [s:c] t\n");
}

TEST(ConsoleLog, LeavesOutWhatIsBelowItsLevel) {
    simulated::VirtualTime time;
    std::ostringstream stream;
    ConsoleLog log(time, stream, LogLevel::standard);
    log.write("s", "c", LogLevel::debug, "a");
    log.write("s", "c", LogLevel::info, "b");
    EXPECT_EQ(stream.str(), "");
    log.write("s", "c", LogLevel::standard, "c");
    EXPECT_NE(stream.str(), "");
}

}  // namespace
}  // namespace vantrel::app
