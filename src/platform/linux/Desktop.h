// What the desktop that the user is logged in to does with the computer's outputs: which
// show a picture, through which transfer table, and where. X11, a Wayland compositor or a
// desktop's D-Bus service has one implementation each; a computer without a desktop none.
//
// An implementation decides nothing: no rule about which output may be turned off, no
// memory of what it did. Only what it is told, once, at once.
// Threads: main thread. A call may wait for the desktop, but not for longer than a moment.
// Errors: a desktop that has gone has no outputs and refuses everything.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/DisplayServices.h"

namespace vantrel::linux {

class Desktop {
  public:
    struct Output {
        // As the desktop calls it, which need not be the kernel's name ("HDMI-1", "HDMI-A-1").
        std::string name;
        // Base block first; empty where the desktop doesn't tell.
        std::vector<std::uint8_t> edid;
        // What the desktop calls the monitor; empty where it doesn't tell.
        std::string monitor;
        bool isConnected = false;
        // Whether it is given a picture. A screen saver doesn't change that.
        bool isLit = false;
        // Samples per channel; 0 where there is no way to a table.
        std::uint32_t tableCapacity = 0;
        // Place, size and mode of the picture, in whatever form: compared only.
        std::string place;
        bool operator==(const Output&) const = default;
    };

    // How an output shows its picture: what light() needs to bring it back just so. One
    // line of text that outlives this program; only the kind of desktop that gave it
    // can read it.
    using Arrangement = std::string;

    virtual ~Desktop() = default;

    // For people and logs: "X11", "GNOME".
    virtual std::string name() const = 0;
    // Different for two desktops that exist at the same time, the same for every program
    // on one of them: "x11-:0". Letters, digits, '-', '_', ':' and '.'.
    virtual std::string identity() const = 0;

    // Whether it hasn't gone. Some desktops have no outputs while no monitor is plugged in.
    virtual bool isThere() { return !outputs().empty(); }
    // In the desktop's order, connected or not.
    virtual std::vector<Output> outputs() = 0;
    // Whether there is a way to any output's table.
    bool hasTables() {
        const auto all = outputs();
        return std::any_of(all.begin(), all.end(),
                           [](const Output& output) { return output.tableCapacity > 0; });
    }

    // Nothing when it can't be read.
    virtual std::optional<platform::TransferTable> table(const std::string& output) = 0;
    // A table of as many samples as the output's table has.
    virtual bool setTable(const std::string& output, const platform::TransferTable&) = 0;
    // Whether a table that was set stays when the program ends without another word.
    virtual bool keepsTables() const = 0;

    // Whether it offers the three operations below at all.
    virtual bool canSwitch() const = 0;
    // Of a lit output; nothing when it isn't one.
    virtual std::optional<Arrangement> arrangement(const std::string& output) = 0;
    // Each is true when the desktop took the change. What the desktop does to other
    // outputs is as little as it can do.
    virtual bool darken(const std::string& output) = 0;
    // As it was, or, without an arrangement or where that fits no more, as the desktop
    // would show a monitor that was plugged in just now.
    virtual bool light(const std::string& output, const std::optional<Arrangement>& arrangement) = 0;

    // Called after anything in outputs() may have changed, also by a call of ours. One
    // listener; an empty function takes it back.
    virtual void onChange(std::function<void()> changed) = 0;
};

}  // namespace vantrel::linux
