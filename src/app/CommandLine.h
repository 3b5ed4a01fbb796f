// What the user asked for on the command line.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/LogSink.h"

namespace vantrel::app {

struct CommandLine {
    // The diagnostic report instead of the interface.
    bool probe = false;
    // What the probe sees becomes a desk file with this name.
    std::optional<std::string> record;
    // Real monitors unless this is set: a desk file or the name of a shipped
    // desk; empty for the default desk.
    std::optional<std::string> simulate;
    // Time passes only while nobody works; for a simulated desk.
    bool virtualTime = false;
    // A story to play on a simulated desk: a story file or the name of a shipped one.
    std::optional<std::string> play;
    // Draws the interface on simulated desks into pictures in this folder.
    std::optional<std::string> screenshot;
    // The folder of what the program remembers about a simulated desk.
    std::optional<std::string> state;
    // Log lines at this level and above go to standard error, or among what a story
    // prints.
    std::optional<platform::LogLevel> log;
    // Parses a capabilities string: from this file, or from standard input when empty.
    std::optional<std::string> parseCapabilities;

    // Not for people: what the program starts to be its own guard.
    static constexpr const char* guardOutputs = "--guard-outputs";
    bool guard = false;

    // A text to print instead of doing anything: the help, or the version.
    struct Text {
        std::string text;
    };
    // One line that says what is wrong.
    struct Mistake {
        std::string reason;
    };

    // Arguments without the program's name.
    static std::variant<CommandLine, Text, Mistake> parse(const std::vector<std::string>& arguments);
};

}  // namespace vantrel::app
