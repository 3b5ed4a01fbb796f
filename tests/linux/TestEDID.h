// EDID bytes of a monitor, as they should be: right header, right checksum.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

namespace vantrel::linux {

using EDIDBytes = std::vector<std::uint8_t>;

// Makes the sum of a block's bytes 0 again.
inline void setChecksum(EDIDBytes& edid) {
    const auto sum = std::accumulate(edid.begin(), edid.begin() + 127, 0U);
    edid[127] = static_cast<std::uint8_t>(256 - sum % 256);
}

// A descriptor of 13 characters with this tag at one of the four places (0 to 3). A shorter
// text ends with a line break and is filled with spaces.
inline void setText(EDIDBytes& edid, std::size_t place, std::uint8_t tag, const std::string& text) {
    const std::size_t at = 54 + 18 * place;
    std::fill_n(edid.begin() + static_cast<std::ptrdiff_t>(at), 18, std::uint8_t{0});
    edid[at + 3] = tag;
    for (std::size_t index = 0; index < 13; ++index) {
        const char filling = index == text.size() ? '\n' : ' ';
        edid[at + 5 + index] = static_cast<std::uint8_t>(index < text.size() ? text[index] : filling);
    }
    setChecksum(edid);
}

// With a detailed timing, a range, a serial number as text and, unless it is empty, a name.
inline EDIDBytes edidOf(std::uint32_t vendor, std::uint32_t product, std::uint32_t serial,
                        const std::string& name = {}) {
    EDIDBytes edid(128);
    std::fill(edid.begin() + 1, edid.begin() + 7, std::uint8_t{0xFF});
    edid[8] = static_cast<std::uint8_t>(vendor >> 8);
    edid[9] = static_cast<std::uint8_t>(vendor);
    edid[10] = static_cast<std::uint8_t>(product);
    edid[11] = static_cast<std::uint8_t>(product >> 8);
    for (unsigned byte = 0; byte < 4; ++byte)
        edid[12 + byte] = static_cast<std::uint8_t>(serial >> (8 * byte));
    edid[16] = 1;   // week
    edid[17] = 30;  // year
    edid[18] = 1;
    edid[19] = 4;
    edid[54] = 0x02;  // a pixel clock: no text
    edid[55] = 0x3A;
    setText(edid, 1, 0xFF, "S/N 1");
    setText(edid, 2, 0x10, "");
    setText(edid, 3, name.empty() ? 0x10 : 0xFC, name);
    setChecksum(edid);
    return edid;
}

}  // namespace vantrel::linux
