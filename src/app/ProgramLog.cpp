#include "app/ProgramLog.h"

#include "app/ConsoleLog.h"

namespace vantrel::app {

ProgramLog::ProgramLog(platform::LogSink* systemLog, std::optional<platform::LogLevel> shown,
                       const runtime::Clock& clock, std::ostream& stream)
    : systemLog_(systemLog), shown_(shown ? std::make_unique<ConsoleLog>(clock, stream, *shown) : nullptr) {}

void ProgramLog::write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
                       std::string_view text) {
    if (systemLog_ != nullptr) systemLog_->write(subsystem, category, level, text);
    if (shown_) shown_->write(subsystem, category, level, text);
}

}  // namespace vantrel::app
