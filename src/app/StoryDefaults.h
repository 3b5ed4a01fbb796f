// The user's defaults of a story's program: in the file of a folder, read anew
// whenever the program starts; without a folder in memory, and none at first.
//
// Threads and errors: FileDefaults. Time: waits for the disk. Lifetime: the sink
// outlives it.
#pragma once

#include <optional>
#include <string>

#include "platform/Defaults.h"
#include "platform/LogSink.h"
#include "platform/MemoryDefaults.h"
#include "platform/posix/FileDefaults.h"
#include "platform/posix/PosixFileSystem.h"

namespace vantrel::app {

class StoryDefaults : public platform::Defaults {
  public:
    StoryDefaults(std::optional<std::string> folder, platform::LogSink& sink);

    // The program starts. Comes before everything else.
    void open();

    std::optional<platform::DefaultsValue> value(const std::string& key) override;
    void set(const std::string& key, platform::DefaultsValue value) override;
    void remove(const std::string& key) override;

  private:
    platform::Defaults& current();

    const std::optional<std::string> folder_;
    platform::LogSink& sink_;
    posix::PosixFileSystem fileSystem_;
    std::optional<posix::FileDefaults> file_;
    platform::MemoryDefaults memory_;
};

}  // namespace vantrel::app
