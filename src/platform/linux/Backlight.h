// The light behind the computer's own panel (kernel documentation, "sysfs-class-backlight").
//
// The session's login manager sets it, for which nobody needs a permission; where there is
// no such manager the file is written, for which root or a rule of udev is needed.
// Threads: main thread.
#pragma once

#include <optional>
#include <string>

#include "platform/linux/Session.h"
#include "platform/linux/Sysfs.h"

namespace vantrel::linux {

class Backlight {
  public:
    // Both outlive it.
    Backlight(const Sysfs& sysfs, Session& session) : sysfs_(sysfs), session_(session) {}

    // 0 to 1; nothing without such a light.
    std::optional<float> level() const;
    // Never quite 0, which is no light at all on many panels. False for what is no number,
    // without a light, or when nobody may set it.
    bool setLevel(float level);

  private:
    std::optional<std::string> find() const;

    const Sysfs& sysfs_;
    Session& session_;
};

}  // namespace vantrel::linux
