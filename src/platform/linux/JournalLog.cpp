#include "platform/linux/JournalLog.h"

#include <sys/uio.h>
#include <syslog.h>
#include <systemd/sd-journal.h>

namespace vantrel::linux {
namespace {

using platform::LogLevel;

void sendToJournal(const std::vector<std::string>& fields) {
    std::vector<iovec> pieces;
    pieces.reserve(fields.size());
    for (const std::string& field : fields) {
        pieces.push_back({const_cast<char*>(field.data()), field.size()});
    }
    sd_journal_sendv(pieces.data(), static_cast<int>(pieces.size()));
}

int priority(LogLevel level) {
    switch (level) {
        case LogLevel::debug:
            return LOG_DEBUG;
        case LogLevel::info:
            return LOG_INFO;
        case LogLevel::standard:
            return LOG_NOTICE;
        case LogLevel::error:
            return LOG_ERR;
        case LogLevel::fault:
            return LOG_CRIT;
    }
    return LOG_NOTICE;
}

std::string field(const char* name, std::string_view value) {
    return std::string(name) + "=" + std::string(value);
}

}  // namespace

JournalLog::JournalLog() : send_(sendToJournal) {}

void JournalLog::write(std::string_view subsystem, std::string_view category, LogLevel level,
                       std::string_view text) {
    send_({field("MESSAGE", text), field("PRIORITY", std::to_string(priority(level))),
           field("SYSLOG_IDENTIFIER", "vantrel"), field("VANTREL_SUBSYSTEM", subsystem),
           field("VANTREL_CATEGORY", category)});
}

}  // namespace vantrel::linux
