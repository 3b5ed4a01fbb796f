// Takes a child process away from the user's desktop, buses and folders.
#pragma once

#include <cstdlib>
#include <string>

namespace vantrel::test {

// Its session has a folder, if one is told.
inline void leaveDesktop(const std::string& sessionFolder = {}) {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "HOME",
                                 "XDG_RUNTIME_DIR", "XDG_STATE_HOME", "XDG_CONFIG_HOME"}) {
        ::unsetenv(variable);
    }
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere", 1);
    if (!sessionFolder.empty()) ::setenv("XDG_RUNTIME_DIR", sessionFolder.c_str(), 1);
}

}  // namespace vantrel::test
