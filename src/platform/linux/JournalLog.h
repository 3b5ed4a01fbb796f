// The system's journal (systemd-journald), each line with its category as a field:
//
//     journalctl VANTREL_CATEGORY=ddc
//
// Without a journal the lines go nowhere. Threads: any.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/LogSink.h"

namespace vantrel::linux {

class JournalLog : public platform::LogSink {
  public:
    // One entry: texts of the form "FIELD=value".
    using Send = std::function<void(const std::vector<std::string>& fields)>;

    JournalLog();
    explicit JournalLog(Send send) : send_(std::move(send)) {}

    void write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
               std::string_view text) override;

  private:
    const Send send_;
};

}  // namespace vantrel::linux
