// Finds the video links (AV services) behind the external monitors in the I/O
// registry, and tells which display is at the end of each.
//
// Threads: externalServices from any thread (a channel reconnects on its own
// queue), match on the main thread. Errors: none are reported; what can't be
// read counts as absent.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/AVService.h"
#include "platform/DisplayServices.h"
#include "platform/PrivateFunctions.h"
#include "platform/Registry.h"

namespace vantrel::ddc::AVServiceLocator {

// One external monitor's link, with the identity found beside it.
struct Entry {
    platform::AVService service;
    // Four hexadecimal digits of the vendor number, then four of the product
    // code with its two bytes swapped.
    std::optional<std::string> edidUUID;
    std::optional<std::uint32_t> serial;
    std::optional<std::string> productName;
};

// In registry order. A link's identity is that of the framebuffer entry before it.
std::vector<Entry> externalServices(platform::Registry& registry, platform::PrivateFunctions& functions);

// Each display takes, in the given order, the entry that fits it best of those
// left; the only entry left fits anybody. Displays without one are left out.
std::map<platform::DisplayID, Entry> match(platform::DisplayServices& displays,
                                           const std::vector<platform::DisplayID>& ids,
                                           std::vector<Entry> entries);

}  // namespace vantrel::ddc::AVServiceLocator
