// The private functions on Linux: as C functions that serve the one platform alive.
//
// C functions carry no context, so a second LinuxLibraries stops the program.
// Threads: made and destroyed on the main thread, while nobody calls the functions.
#pragma once

#include <string>

#include "platform/SubstituteLibraries.h"
#include "platform/linux/AVServices.h"
#include "platform/linux/Backlight.h"
#include "platform/linux/LinuxDisplayServices.h"

namespace vantrel::linux {

class LinuxLibraries : public platform::SymbolLoader {
  public:
    // Where outputs can't be switched there is no function that would. Everything given
    // outlives it.
    enum class Switching { missing, possible };
    LinuxLibraries(LinuxDisplayServices& displays, AVServices& services, Backlight& backlight,
                   Switching switching);
    LinuxLibraries(const LinuxLibraries&) = delete;
    LinuxLibraries& operator=(const LinuxLibraries&) = delete;
    ~LinuxLibraries() override;

    void* open(const std::string& path) override { return substitutes_.open(path); }
    void* lookUp(void* library, const std::string& symbol) override {
        return substitutes_.lookUp(library, symbol);
    }

    // For the functions themselves.
    LinuxDisplayServices& displays() { return displays_; }
    AVServices& services() { return services_; }
    Backlight& backlight() { return backlight_; }

  private:
    LinuxDisplayServices& displays_;
    AVServices& services_;
    Backlight& backlight_;
    platform::SubstituteLibraries substitutes_;
};

}  // namespace vantrel::linux
