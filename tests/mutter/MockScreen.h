// A monitor of the mock service, and a logical monitor that it is asked for.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace vantrel::mutter {

struct MockScreen {
    struct Mode {
        std::string id;
        int width = 0;
        int height = 0;
        bool isPreferred = false;
        double preferredScale = 1;
    };
    struct Logical {
        int x = 0;
        int y = 0;
        double scale = 1;
        std::uint32_t transform = 0;
        bool isPrimary = false;
        // The mode by connector.
        std::map<std::string, std::string> modes;
        bool operator==(const Logical&) const = default;
    };

    std::string connector;
    bool isPlugged = true;
    std::vector<Mode> modes{{"1920x1080@60.000", 1920, 1080, true, 1},
                            {"1280x1024@75.025", 1280, 1024, false, 1}};
    std::vector<std::uint8_t> edid;
    bool isUnderscanning = false;
    std::uint32_t colorMode = 0;
    // Red, green and blue, behind one another.
    std::vector<std::uint16_t> table = std::vector<std::uint16_t>(768, 7);
};

}  // namespace vantrel::mutter
