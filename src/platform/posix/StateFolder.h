// Where the program keeps what it remembers, unless it is told where (XDG Base
// Directory Specification 0.8).
#pragma once

#include <optional>
#include <string>

namespace vantrel::posix::StateFolder {

// The values of environment variables; nothing when one is not set.
struct Environment {
    // HOME, XDG_CONFIG_HOME, XDG_STATE_HOME, XDG_RUNTIME_DIR.
    std::optional<std::string> home;
    std::optional<std::string> configHome;
    std::optional<std::string> stateHome;
    std::optional<std::string> runtimeFolder = std::nullopt;
};

// Of this process.
Environment environment();

// Settings for real monitors; nothing when the environment names no place.
std::optional<std::string> real(const Environment& environment);
// State of simulated desks, apart from those.
std::optional<std::string> simulated(const Environment& environment);
// What ends with the user's session; where the system keeps nothing for as long, it lasts longer.
std::optional<std::string> session(const Environment& environment);
// What the desktop starts when the user logs in.
std::optional<std::string> autostart(const Environment& environment);

}  // namespace vantrel::posix::StateFolder
