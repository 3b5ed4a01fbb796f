#include "app/ConsoleLog.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <string>

namespace vantrel::app {
namespace {

// As wide as the widest.
constexpr std::array levelNames{"Debug  ", "Info   ", "Default", "Error  ", "Fault  "};

std::string stamp(runtime::WallTime time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time - day);
    std::array<char, 40> text{};
    const int length = std::snprintf(
        text.data(), text.size(), "%04d-%02u-%02u %02ld:%02ld:%02ld.%06ld+0000",
        static_cast<int>(date.year()), static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<long>(clock.hours().count()), static_cast<long>(clock.minutes().count()),
        static_cast<long>(clock.seconds().count()), static_cast<long>(clock.subseconds().count()));
    return std::string(text.data(), static_cast<std::size_t>(length));
}

}  // namespace

void ConsoleLog::write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
                       std::string_view text) {
    if (level < least_) return;
    std::string line = stamp(clock_.wallNow());
    line.append(" ").append(levelNames.at(static_cast<std::size_t>(level))).append(" vantrel: [");
    line.append(subsystem).append(":").append(category).append("] ").append(text).append("\n");
    const std::lock_guard lock(mutex_);
    stream_ << line << std::flush;
}

}  // namespace vantrel::app
