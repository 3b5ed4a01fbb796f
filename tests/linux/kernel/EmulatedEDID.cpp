#include "linux/kernel/EmulatedEDID.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <numeric>
#include <string_view>

namespace vantrel::test {
namespace {

// Where things are in the block.
constexpr std::size_t identityPlace = 8;
constexpr std::size_t dateAndKindPlace = 16;
constexpr std::size_t standardTimingsPlace = 38;
constexpr std::size_t standardTimingsEnd = 54;
constexpr std::size_t firstDescriptor = 54;
constexpr std::size_t descriptorSize = 18;
constexpr std::size_t descriptors = 4;
// Within a descriptor that is no timing.
constexpr std::size_t tagPlace = 3;
constexpr std::size_t textPlace = 5;
constexpr std::uint8_t nameTag = 0xFC;
constexpr std::uint8_t dummyTag = 0x10;

// A timing has 12 bits for each length.
constexpr unsigned longestSide = 4095;
constexpr unsigned horizontalBlank = 160;
constexpr unsigned verticalBlank = 40;
constexpr unsigned imagesPerSecond = 60;
constexpr unsigned largestClock = 0xFFFF;

std::uint8_t low(unsigned value) { return static_cast<std::uint8_t>(value & 0xFF); }
std::uint8_t high(unsigned value) { return static_cast<std::uint8_t>((value >> 8) & 0xFF); }

// The upper four bits of two lengths of 12.
std::uint8_t uppers(unsigned first, unsigned second) {
    return static_cast<std::uint8_t>(((first >> 8) << 4) | (second >> 8));
}

unsigned millimetres(unsigned pixels) { return pixels * 254 / 960; }

void put(EDIDBlock& block, std::size_t place, std::initializer_list<std::uint8_t> bytes) {
    std::copy(bytes.begin(), bytes.end(), block.begin() + static_cast<std::ptrdiff_t>(place));
}

void putTiming(EDIDBlock& block, const simulated::DisplayPlan& plan) {
    const unsigned width = std::min(plan.width, longestSide);
    const unsigned height = std::min(plan.height, longestSide);
    const unsigned wide = std::min(millimetres(width), longestSide);
    const unsigned tall = std::min(millimetres(height), longestSide);
    const unsigned long pixels = 1UL * (width + horizontalBlank) * (height + verticalBlank);
    // In units of 10 kHz.
    const auto clock =
        static_cast<unsigned>(std::min<unsigned long>(pixels * imagesPerSecond / 10'000, largestClock));
    put(block, firstDescriptor,
        {low(clock), high(clock),                                           //
         low(width), low(horizontalBlank), uppers(width, horizontalBlank),  //
         low(height), low(verticalBlank), uppers(height, verticalBlank),    //
         48, 32, 0x35, 0,                                                   // sync pulses
         low(wide), low(tall), uppers(wide, tall), 0, 0, 0x1E});
}

void putName(EDIDBlock& block, std::size_t place, std::string_view name) {
    constexpr std::size_t room = descriptorSize - textPlace;
    name = name.substr(0, room);
    block.at(place + tagPlace) = nameTag;
    const auto text = block.begin() + static_cast<std::ptrdiff_t>(place + textPlace);
    std::fill_n(text, room, static_cast<std::uint8_t>(' '));
    std::copy(name.begin(), name.end(), text);
    if (name.size() < room) block.at(place + textPlace + name.size()) = '\n';
}

}  // namespace

EDIDBlock emulatedEDID(const simulated::DisplayPlan& plan) {
    EDIDBlock block{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
    const unsigned serial = plan.serial;
    put(block, identityPlace,
        {high(plan.vendor), low(plan.vendor), low(plan.product), high(plan.product),  //
         low(serial), high(serial), low(serial >> 16), high(serial >> 16)});
    put(block, dateAndKindPlace,
        {10, 35,  // week, and year since 1990
         1, 4,    // version
         0xA5,    // digital, 8 bits per colour, DisplayPort
         low(std::min(millimetres(plan.width) / 10, 255U)),
         low(std::min(millimetres(plan.height) / 10, 255U)), 120,
         0x06,  // gamma 2.2; sRGB, the first timing is the panel's own
         0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54});
    std::fill(block.begin() + standardTimingsPlace, block.begin() + standardTimingsEnd, std::uint8_t{1});
    putTiming(block, plan);
    for (std::size_t number = 1; number < descriptors; ++number) {
        block.at(firstDescriptor + number * descriptorSize + tagPlace) = dummyTag;
    }
    if (!plan.name.empty()) putName(block, firstDescriptor + descriptorSize, plan.name);
    // All of the block adds up to 0.
    block.back() = low(0U - std::accumulate(block.begin(), block.end() - 1, 0U));
    return block;
}

}  // namespace vantrel::test
