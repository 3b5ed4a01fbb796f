// What a faulty monitor makes of a sound reply, byte by byte.
#pragma once

#include <cstdint>
#include <span>

#include "platform/simulated/Frame.h"
#include "platform/simulated/Personality.h"

namespace vantrel::simulated::ReplySpoiler {

// `frame` is the sound reply and `request` what the host wrote for it. Faults
// that give the values of another question leave a frame as it is.
Reply spoil(const ReplyFault& fault, Bytes frame, std::span<const std::uint8_t> request);

// A fragment of the capabilities string, `size` bytes being its full length.
Reply spoil(const FragmentFault& fault, Bytes frame, std::size_t size);

}  // namespace vantrel::simulated::ReplySpoiler
