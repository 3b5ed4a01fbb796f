#include "platform/macos/MacLog.h"

#include <map>
#include <mutex>
#include <os/log.h>
#include <string>
#include <utility>

namespace vantrel::macos {
namespace {

os_log_type_t typeOf(platform::LogLevel level) {
    switch (level) {
        case platform::LogLevel::debug:
            return OS_LOG_TYPE_DEBUG;
        case platform::LogLevel::info:
            return OS_LOG_TYPE_INFO;
        case platform::LogLevel::standard:
            return OS_LOG_TYPE_DEFAULT;
        case platform::LogLevel::error:
            return OS_LOG_TYPE_ERROR;
        case platform::LogLevel::fault:
            return OS_LOG_TYPE_FAULT;
    }
    return OS_LOG_TYPE_DEFAULT;
}

}  // namespace

// The system never frees a log, so each is asked for once.
struct MacLog::Logs {
    os_log_t log(std::string_view subsystem, std::string_view category) {
        const std::lock_guard lock(mutex);
        const auto [place, isNew] = logs.try_emplace({std::string(subsystem), std::string(category)});
        const auto& [names, log] = *place;
        if (isNew) place->second = os_log_create(names.first.c_str(), names.second.c_str());
        return log;
    }

    std::mutex mutex;
    std::map<std::pair<std::string, std::string>, os_log_t> logs;
};

MacLog::MacLog() : logs_(std::make_unique<Logs>()) {}
MacLog::~MacLog() = default;

void MacLog::write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
                   std::string_view text) {
    const os_log_t log = logs_->log(subsystem, category);
    const std::string terminated(text);
    os_log_with_type(log, typeOf(level), "%{public}s", terminated.c_str());
}

}  // namespace vantrel::macos
