// A monitor as Mutter knows it, lit or not.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::mutter {

struct Monitor {
    struct Mode {
        // Only Mutter knows what is in it.
        std::string id;
        int width = 0;
        int height = 0;
        double preferredScale = 1;
        bool isPreferred = false;
        bool isCurrent = false;
    };

    // Nothing when it has no such mode.
    const Mode* mode(const std::string& id) const {
        for (const Mode& mode : modes) {
            if (mode.id == id) return &mode;
        }
        return nullptr;
    }

    std::string connector;
    std::string name;
    std::vector<Mode> modes;
    std::optional<bool> isUnderscanning;
    // What else a configuration has to say again for it to stay: the colour mode and the like.
    std::map<std::string, std::uint32_t> numbers;
};

}  // namespace vantrel::mutter
