#include "mccs/MCCS.h"

namespace vantrel::mccs::MCCS {

const std::map<std::uint16_t, text::Text>& inputNames() {
    using text::Text;
    static const std::map<std::uint16_t, Text> names{
        {0x01, Text::verbatim("VGA 1")},
        {0x02, Text::verbatim("VGA 2")},
        {0x03, Text::verbatim("DVI 1")},
        {0x04, Text::verbatim("DVI 2")},
        {0x05, Text::translated("Composite 1")},
        {0x06, Text::translated("Composite 2")},
        {0x07, Text::verbatim("S-Video 1")},
        {0x08, Text::verbatim("S-Video 2")},
        {0x09, Text::verbatim("Tuner 1")},
        {0x0A, Text::verbatim("Tuner 2")},
        {0x0B, Text::verbatim("Tuner 3")},
        {0x0C, Text::translated("Component 1")},
        {0x0D, Text::translated("Component 2")},
        {0x0E, Text::translated("Component 3")},
        {0x0F, Text::verbatim("DisplayPort 1")},
        {0x10, Text::verbatim("DisplayPort 2")},
        {0x11, Text::verbatim("HDMI 1")},
        {0x12, Text::verbatim("HDMI 2")},
        {0x13, Text::verbatim("HDMI 3")},
        {0x14, Text::verbatim("HDMI 4")},
        // Beyond the standard, as monitors use them: the second USB-C input comes
        // before the first, and 0x1A is neither.
        {0x19, Text::verbatim("USB-C 2")},
        {0x1B, Text::verbatim("USB-C")},
    };
    return names;
}

}  // namespace vantrel::mccs::MCCS
