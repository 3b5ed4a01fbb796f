#include <gtest/gtest.h>

#include "platform/Log.h"
#include "support/RecordingLogSink.h"

namespace vantrel::platform {
namespace {

TEST(Log, WritesEveryLineUnderTheProgramsSubsystemAsItStands) {
    test::RecordingLogSink sink;
    const Log log(sink);
    log.write(Log::ddc, LogLevel::debug, "read");
    log.write(Log::display, LogLevel::standard, "100%s");
    log.write(Log::ui, LogLevel::fault, "");
    EXPECT_EQ(sink.lines(), (std::vector<test::LogLine>{
                                {"org.vantrel.Vantrel", "ddc", LogLevel::debug, "read"},
                                {"org.vantrel.Vantrel", "display", LogLevel::standard, "100%s"},
                                {"org.vantrel.Vantrel", "ui", LogLevel::fault, ""},
                            }));
}

}  // namespace
}  // namespace vantrel::platform
