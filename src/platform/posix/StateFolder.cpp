#include "platform/posix/StateFolder.h"

#include <cstdlib>

namespace vantrel::posix::StateFolder {
namespace {

std::optional<std::string> variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

// A relative path is to be ignored.
bool isPlace(const std::optional<std::string>& path) { return path && path->starts_with('/'); }

std::optional<std::string> below(const std::optional<std::string>& base,
                                 const std::optional<std::string>& home, const std::string& usual,
                                 const std::string& own) {
    if (isPlace(base)) return *base + own;
    if (isPlace(home)) return *home + usual + own;
    return std::nullopt;
}

}  // namespace

Environment environment() {
    return {variable("HOME"), variable("XDG_CONFIG_HOME"), variable("XDG_STATE_HOME"),
            variable("XDG_RUNTIME_DIR")};
}

std::optional<std::string> real(const Environment& environment) {
    return below(environment.configHome, environment.home, "/.config", "/vantrel");
}

std::optional<std::string> simulated(const Environment& environment) {
    return below(environment.stateHome, environment.home, "/.local/state", "/vantrel/simulated");
}

std::optional<std::string> session(const Environment& environment) {
    if (isPlace(environment.runtimeFolder)) return *environment.runtimeFolder + "/vantrel";
    return below(environment.stateHome, environment.home, "/.local/state", "/vantrel/session");
}

std::optional<std::string> autostart(const Environment& environment) {
    return below(environment.configHome, environment.home, "/.config", "/autostart");
}

}  // namespace vantrel::posix::StateFolder
