// A mistake in a file from outside: which file, where in it, and what is wrong.
#pragma once

#include <string>

namespace vantrel::simulated {

struct FileError {
    // As the caller named it.
    std::string file;
    // "displays[2].monitor.features.0x10.maximum", or "line 7, column 12" where
    // the text isn't JSON; empty when the whole file is meant.
    std::string place;
    std::string reason;

    // One line for a person: "file: place: reason".
    std::string line() const;
    bool operator==(const FileError&) const = default;
};

}  // namespace vantrel::simulated
