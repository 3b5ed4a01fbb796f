#include "platform/simulated/FileError.h"

#include <algorithm>

namespace vantrel::simulated {

std::string FileError::line() const {
    std::string result = file + ": " + (place.empty() ? "" : place + ": ") + reason;
    // A file's name may hold line breaks.
    std::replace_if(
        result.begin(), result.end(),
        [](char character) { return static_cast<unsigned char>(character) < 0x20 || character == 0x7F; },
        '?');
    return result;
}

}  // namespace vantrel::simulated
