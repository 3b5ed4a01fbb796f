// The two I2C calls of a video link. Both block for the transfer on the bus, so
// they are called from a monitor's own queue only. Failures are logged at debug
// level; an absent function fails silently.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/AVService.h"
#include "platform/Log.h"
#include "platform/PrivateFunctions.h"

namespace vantrel::platform::PrivateAPI {

// `offset` is the data address that the bytes are written to.
bool writeI2C(PrivateFunctions& functions, const Log& log, const AVService& service, std::uint32_t chip,
              std::uint32_t offset, std::span<const std::uint8_t> bytes);

// Exactly `count` bytes, or nothing. A count that is no unsigned 32-bit number
// stops the program.
std::optional<std::vector<std::uint8_t>> readI2C(PrivateFunctions& functions, const Log& log,
                                                 const AVService& service, std::uint32_t chip,
                                                 std::uint32_t offset, std::ptrdiff_t count);

}  // namespace vantrel::platform::PrivateAPI
