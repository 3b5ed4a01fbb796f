// The fixed knowledge of VESA MCCS (Monitor Control Command Set): which VCP
// codes there are, what they and their values are called, which ones nobody
// should touch.
//
// Threads: any. Tables are made on first use and live as long as the process.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <span>

#include "mccs/VCPCatalog.h"
#include "mccs/VCPInfo.h"
#include "text/Text.h"

namespace vantrel::mccs::MCCS {

// Input Select, the code of the active input.
inline constexpr std::uint8_t inputSource = 0x60;

// The codes that are known by name.
const VCPCatalog& catalog();

// Codes that are never offered to a person, even when a monitor lists them:
// bookkeeping of the protocol and facts of the panel, not settings.
const std::set<std::uint8_t>& hidden();

// Names of the values of Input Select.
const std::map<std::uint16_t, text::Text>& inputNames();

// What is known of `code`. `listedValues` are the values that the monitor
// declares for it; they only matter for a code that the catalog doesn't know.
VCPInfo info(std::uint8_t code, std::span<const std::uint16_t> listedValues = {});

}  // namespace vantrel::mccs::MCCS
