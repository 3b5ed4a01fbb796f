#include "app/StoryLog.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <string>

namespace vantrel::app {
namespace {

// As wide as the widest.
constexpr std::array levelNames{"debug  ", "info   ", "default", "error  ", "fault  "};
constexpr std::size_t categoryWidth = 7;

}  // namespace

void StoryLog::write(std::string_view, std::string_view category, platform::LogLevel level,
                     std::string_view text) {
    if (level < least_) return;
    std::string line(levelNames.at(static_cast<std::size_t>(level)));
    line.append("  ").append(category);
    if (category.size() < categoryWidth) line.append(categoryWidth - category.size(), ' ');
    line.append("  ").append(text);
    print(' ', line);
}

void StoryLog::close() {
    const std::lock_guard lock(mutex_);
    isClosed_ = true;
}

void StoryLog::print(char mark, std::string_view text) {
    const std::lock_guard lock(mutex_);
    if (isClosed_) return;
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(clock_.now() - start_).count();
    std::array<char, 40> time{};
    const int length =
        std::snprintf(time.data(), time.size(), "%c %5lld.%03lld s  ", mark,
                      static_cast<long long>(elapsed / 1000), static_cast<long long>(elapsed % 1000));
    stream_ << std::string_view(time.data(), static_cast<std::size_t>(length)) << text << "\n" << std::flush;
}

}  // namespace vantrel::app
