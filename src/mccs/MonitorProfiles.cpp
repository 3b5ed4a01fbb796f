#include "mccs/MonitorProfiles.h"

#include <algorithm>

namespace vantrel::mccs::MonitorProfiles {

const std::map<Model, InputProfile>& inputProfiles() {
    static const std::map<Model, InputProfile> profiles{
        // Is switched with the MCCS values, but answers with numbers of its own.
        {{.vendor = 0x0472, .product = 0x0782},
         {.inputs = {0x0F, 0x11, 0x12}, .readMap = {{1, 0x11}, {3, 0x0F}, {4, 0x12}}}},
    };
    return profiles;
}

const InputProfile* inputProfile(platform::DisplayServices& displays, platform::DisplayID display) {
    const Model model{.vendor = displays.vendorNumber(display), .product = displays.modelNumber(display)};
    const auto found = inputProfiles().find(model);
    return found == inputProfiles().end() ? nullptr : &found->second;
}

std::uint16_t mccsInput(std::uint16_t rawReading, const InputProfile* profile) {
    if (!profile) return rawReading;
    const auto mapped = profile->readMap.find(rawReading);
    return mapped == profile->readMap.end() ? rawReading : mapped->second;
}

std::optional<std::uint16_t> currentInput(std::uint16_t rawReading, const InputProfile* profile,
                                          std::span<const std::uint16_t> options) {
    const std::uint16_t input = mccsInput(rawReading, profile);
    if (std::ranges::find(options, input) == options.end()) return std::nullopt;
    return input;
}

}  // namespace vantrel::mccs::MonitorProfiles
