#include <gtest/gtest.h>
#include <string>

#include "macos/CFBench.h"
#include "runtime/RealScheduler.h"

namespace vantrel::macos {
namespace {

using platform::Log;
using platform::LogLevel;

class MacLogTest : public CFBench {
  protected:
    MacLog sink;
    Log log{sink};
};

TEST_F(MacLogTest, WritesUnderSubsystemCategoryAndLevel) {
    log.write(Log::ddc, LogLevel::debug, "a");
    log.write(Log::ddc, LogLevel::info, "b");
    log.write(Log::display, LogLevel::standard, "c");
    log.write(Log::display, LogLevel::error, "d");
    log.write(Log::ui, LogLevel::fault, "100 % é");
    const std::string subsystem = "org.vantrel.Vantrel";
    EXPECT_EQ(bench.fake.logged(), (std::vector<fake::LoggedLine>{
                                       {subsystem, "ddc", OS_LOG_TYPE_DEBUG, "a"},
                                       {subsystem, "ddc", OS_LOG_TYPE_INFO, "b"},
                                       {subsystem, "display", OS_LOG_TYPE_DEFAULT, "c"},
                                       {subsystem, "display", OS_LOG_TYPE_ERROR, "d"},
                                       {subsystem, "ui", OS_LOG_TYPE_FAULT, "100 % é"},
                                   }));
}

TEST_F(MacLogTest, AsksForALogOnce) {
    for (int time = 0; time < 3; ++time) {
        log.write(Log::ddc, LogLevel::debug, "a");
        log.write(Log::ui, LogLevel::debug, "b");
    }
    EXPECT_EQ(bench.fake.logsMade(), 2);
}

TEST_F(MacLogTest, WritesNoMoreThanTheText) {
    log.write(Log::ddc, LogLevel::info, std::string_view("line and more").substr(0, 4));
    ASSERT_EQ(bench.fake.logged().size(), 1);
    EXPECT_EQ(bench.fake.logged()[0].text, "line");
}

TEST_F(MacLogTest, TakesLinesFromSeveralThreads) {
    for (const std::string_view category : {Log::ddc, Log::display}) {
        bench.scheduler.startThread("writer", runtime::QualityOfService::userInitiated, [this, category] {
            for (int line = 0; line < 10; ++line) log.write(category, LogLevel::info, "line");
        });
    }
    bench.scheduler.finishThreads();
    EXPECT_EQ(bench.fake.logged().size(), 20);
    EXPECT_EQ(bench.fake.logsMade(), 2);
}

TEST_F(MacLogTest, AsksForALogOnceWhenThreadsWriteAtTheSameTime) {
    constexpr int threads = 4;
    constexpr std::size_t categories = 500;
    runtime::RealScheduler real;
    for (int thread = 0; thread < threads; ++thread) {
        real.startThread("writer", runtime::QualityOfService::userInitiated, [this] {
            for (std::size_t category = 0; category < categories; ++category) {
                log.write(std::to_string(category), LogLevel::info, "line");
            }
        });
    }
    real.finishThreads();
    EXPECT_EQ(bench.fake.logged().size(), threads * categories);
    EXPECT_EQ(bench.fake.logsMade(), categories);
}

}  // namespace
}  // namespace vantrel::macos
