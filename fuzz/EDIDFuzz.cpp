// Whatever a monitor or a cable makes of an EDID: nothing crashes, nothing is read behind
// its end, and who it says to be keeps the promises of EDID.

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

#include "platform/linux/EDID.h"
#include "runtime/Fatal.h"

namespace {

using vantrel::linux::EDID;
using vantrel::runtime::require;

void check(const EDID& edid) {
    require(edid.vendor <= 0xFFFF, "the vendor has more than two bytes");
    require(edid.product <= 0xFFFF, "the product has more than two bytes");
    if (!edid.name) return;
    require(!edid.name->empty(), "the name is empty");
    require(edid.name->size() <= 13, "the name is longer than its descriptor");
    require(edid.name->front() != ' ' && edid.name->back() != ' ', "the name is padded");
    for (const char character : *edid.name) {
        require(character >= ' ' && character <= '~', "the name isn't printable");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // At their exact size, so that a byte behind the end is noticed.
    const std::vector<std::uint8_t> bytes(data, data + size);
    const auto edid = EDID::read(bytes);
    if (edid) check(*edid);
    // Only the base block counts.
    if (size > EDID::blockSize) {
        require(EDID::read({bytes.data(), EDID::blockSize}) == edid, "an extension changes the identity");
    }
    // A header that the fuzzer need not find.
    constexpr std::uint8_t header[]{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
    std::vector<std::uint8_t> block(std::begin(header), std::end(header));
    block.insert(block.end(), bytes.begin(), bytes.end());
    const auto headed = EDID::read(block);
    require(headed.has_value() == (block.size() >= 16), "a header isn't enough, or too much");
    if (headed) check(*headed);
    return 0;
}
