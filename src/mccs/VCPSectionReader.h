// Reads the contents of the vcp section of a capabilities string: VCP codes of
// two hexadecimal digits, some followed by a list of values in parentheses.
// Reads one section in its life.
#pragma once

#include <bitset>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "mccs/HexToken.h"
#include "text/GraphemeCluster.h"

namespace vantrel::mccs {

class VCPSectionReader {
  public:
    void read(std::string_view contents);

    const std::vector<std::uint8_t>& codes() const { return codes_; }
    const std::map<std::uint8_t, std::vector<std::uint16_t>>& values() const { return values_; }

  private:
    void readCharacter(text::GraphemeCluster character);
    void readDigit(std::uint8_t digit);
    void openList();
    void closeList();
    void endToken();
    void addCode(std::uint8_t code);

    HexToken token_;
    bool isInsideList_ = false;
    std::vector<std::uint16_t> list_;
    std::optional<std::uint8_t> lastCode_;
    std::vector<std::uint8_t> codes_;
    std::bitset<256> isKnown_;
    std::map<std::uint8_t, std::vector<std::uint16_t>> values_;
};

}  // namespace vantrel::mccs
