#include "platform/linux/OutputMatch.h"

#include <algorithm>
#include <set>

#include "platform/linux/EDID.h"

namespace vantrel::linux::OutputMatch {
namespace {

using Display = Inventory::Display;
using Output = Desktop::Output;

// Later blocks may be missing on either side.
bool haveEqualEDIDs(const Display& display, const Output& output) {
    const auto& left = display.connector.edid;
    const auto& right = output.edid;
    if (left.size() < EDID::blockSize || right.size() < EDID::blockSize) return false;
    return std::equal(left.begin(), left.begin() + EDID::blockSize, right.begin());
}

bool haveDifferentEDIDs(const Display& display, const Output& output) {
    return !display.connector.edid.empty() && !output.edid.empty() && !haveEqualEDIDs(display, output);
}

bool haveEqualNames(const Display& display, const Output& output) {
    return output.name == display.connector.name ||
           shortName(output.name) == shortName(display.connector.name);
}

// 0 for no match.
int score(const Display& display, const Output& output) {
    if (!output.isConnected || haveDifferentEDIDs(display, output)) return 0;
    return (haveEqualEDIDs(display, output) ? 2 : 0) + (haveEqualNames(display, output) ? 1 : 0);
}

}  // namespace

std::string shortName(const std::string& connector) {
    const auto type = connector.find("-A-");
    return type == std::string::npos ? connector : connector.substr(0, type) + connector.substr(type + 2);
}

std::map<platform::DisplayID, std::string> match(const Inventory::Displays& displays,
                                                 const std::vector<Output>& outputs) {
    std::map<platform::DisplayID, std::string> matches;
    std::set<std::string> taken;
    // The surest first, so that no weaker likeness takes an output from the one whose it is.
    for (const int wanted : {3, 2, 1}) {
        for (const Display& display : displays) {
            if (matches.contains(display.id)) continue;
            const auto found = std::find_if(outputs.begin(), outputs.end(), [&](const Output& output) {
                return !taken.contains(output.name) && score(display, output) == wanted;
            });
            if (found == outputs.end()) continue;
            matches.emplace(display.id, found->name);
            taken.insert(found->name);
        }
    }
    return matches;
}

}  // namespace vantrel::linux::OutputMatch
