// Starts the program when the user logs in to a desktop: a desktop file in the
// user's autostart folder (Desktop Application Autostart Specification 0.5).
//
// The file itself is the truth: a user or a desktop's settings may change it too.
// Threads: main thread. Lifetime: file system and localizer outlive it.
#pragma once

#include <optional>
#include <string>

#include "platform/Localizer.h"
#include "platform/LoginItem.h"
#include "platform/posix/FileSystem.h"
#include "platform/posix/StateFolder.h"

namespace vantrel::posix {

class AutostartEntry : public platform::LoginItem {
  public:
    static constexpr const char* fileName = "org.vantrel.Vantrel.desktop";

    // `program` is started: a path, or a name to be looked up.
    AutostartEntry(FileSystem& fileSystem, const StateFolder::Environment& environment,
                   platform::Localizer& localizer, std::string program);

    bool isEnabled() const override;
    std::optional<std::string> enable() override;
    std::optional<std::string> disable() override;

  private:
    std::string noFolder() const;

    FileSystem& fileSystem_;
    platform::Localizer& localizer_;
    // Nothing when the environment names no place.
    std::optional<std::string> folder_;
    std::string program_;
};

}  // namespace vantrel::posix
