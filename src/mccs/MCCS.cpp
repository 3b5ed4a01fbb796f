#include "mccs/MCCS.h"

#include "text/Hex.h"

namespace vantrel::mccs::MCCS {
namespace {

// MCCS leaves 0xE0 to 0xFF to the manufacturers.
constexpr std::uint8_t firstManufacturerCode = 0xE0;

text::Text nameOfUnknown(std::uint8_t code) {
    if (code < firstManufacturerCode) return text::Text::verbatim("VCP 0x" + text::upperHex(code));
    return text::Text::translated("Vendor 0x%@", {text::upperHex(code)});
}

}  // namespace

const VCPCatalog& catalog() {
    static const VCPCatalog catalog = vcpCatalog(knownVCPCodes());
    return catalog;
}

const std::set<std::uint8_t>& hidden() {
    static const std::set<std::uint8_t> hidden{
        0x02,  // New Control Value
        0x03,  // Soft Controls
        0x0B,  // Color Temperature Increment
        0x52,  // Active Control
        0xAC,  // Horizontal Frequency
        0xB2,  // Flat Panel Sub-Pixel Layout
        0xB6,  // Display Technology Type
        0xC6,  // Application Enable Key
        0xC8,  // Display Controller ID
        0xDF,  // VCP Version
        0xF3,  // DDC/CI's Capabilities Request, which some monitors list as a code
    };
    return hidden;
}

VCPInfo info(std::uint8_t code, std::span<const std::uint16_t> listedValues) {
    if (const auto known = catalog().find(code); known != catalog().end()) return known->second;
    return VCPInfo{
        .name = nameOfUnknown(code),
        .kind = listedValues.empty() ? VCPInfo::Kind::continuous : VCPInfo::Kind::choice,
        .group = VCPInfo::Group::vendor,
    };
}

}  // namespace vantrel::mccs::MCCS
