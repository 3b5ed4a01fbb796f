#include "mccs/VCPSectionReader.h"

#include "text/GraphemeClusters.h"

namespace vantrel::mccs {
namespace {

// Monitors that write no separators write every code with two digits.
constexpr std::size_t digitsOfACode = 2;

std::optional<std::uint8_t> hexDigit(text::GraphemeCluster character) {
    const std::optional<char> lower = character.asciiLowercase();
    if (!lower) return std::nullopt;
    if (*lower >= '0' && *lower <= '9') return static_cast<std::uint8_t>(*lower - '0');
    if (*lower >= 'a' && *lower <= 'f') return static_cast<std::uint8_t>(*lower - 'a' + 10);
    return std::nullopt;
}

}  // namespace

void VCPSectionReader::read(std::string_view contents) {
    for (const text::GraphemeCluster character : text::GraphemeClusters(contents)) readCharacter(character);
    // A list that is still open is incomplete and not stored.
    endToken();
}

void VCPSectionReader::readCharacter(text::GraphemeCluster character) {
    if (character.is('(')) {
        openList();
    } else if (character.is(')')) {
        closeList();
    } else if (const std::optional<std::uint8_t> digit = hexDigit(character)) {
        readDigit(*digit);
    } else {
        endToken();
    }
}

void VCPSectionReader::readDigit(std::uint8_t digit) {
    token_.append(digit);
    if (!isInsideList_ && token_.length() == digitsOfACode) endToken();
}

void VCPSectionReader::openList() {
    endToken();
    isInsideList_ = true;
    list_.clear();
}

void VCPSectionReader::closeList() {
    endToken();
    if (isInsideList_ && lastCode_ && !list_.empty()) values_[*lastCode_] = list_;
    isInsideList_ = false;
}

void VCPSectionReader::endToken() {
    if (token_.isEmpty()) return;
    const std::optional<std::uint16_t> number = token_.value();
    token_ = {};
    if (!number) return;
    if (isInsideList_) {
        list_.push_back(*number);
    } else {
        addCode(static_cast<std::uint8_t>(*number));
    }
}

void VCPSectionReader::addCode(std::uint8_t code) {
    lastCode_ = code;
    if (isKnown_[code]) return;
    isKnown_.set(code);
    codes_.push_back(code);
}

}  // namespace vantrel::mccs
