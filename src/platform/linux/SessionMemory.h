// What the program has to undo on a desktop, even after a crash: tables it replaced, outputs
// it turned off. Every program of this user on that desktop shares it; it ends with the session.
//
// Threads: main thread. Time: each change is kept before the call returns.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/Defaults.h"

namespace vantrel::linux {

class SessionMemory {
  public:
    // By an output's name.
    using Notes = std::map<std::string, std::string>;
    // What is kept at the moment, also by other programs.
    using Open = std::function<std::unique_ptr<platform::Defaults>()>;

    // `desktop` as Desktop::identity() tells it.
    SessionMemory(Open open, std::string desktop) : open_(std::move(open)), desktop_(std::move(desktop)) {}

    // How each output that was turned off had been arranged; empty text for nobody knows how.
    Notes darkened() const { return notes("darkened."); }
    void noteDarkened(const std::string& output, const std::string& arrangement) {
        note("darkened.", output, arrangement);
    }
    void forgetDarkened(const std::string& output) { forget("darkened.", output); }

    // The table that each output had before the program set one.
    Notes tables() const { return notes("tables."); }
    void noteTable(const std::string& output, const std::string& table) { note("tables.", output, table); }
    void forgetTable(const std::string& output) { forget("tables.", output); }

  private:
    Notes notes(const std::string& kind) const;
    void note(const std::string& kind, const std::string& output, const std::string& text);
    void forget(const std::string& kind, const std::string& output);
    void keep(const std::string& kind, const Notes& notes, platform::Defaults& defaults);

    Open open_;
    std::string desktop_;
};

}  // namespace vantrel::linux
