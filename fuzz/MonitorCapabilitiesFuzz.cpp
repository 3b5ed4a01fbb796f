// Whatever a monitor sends: nothing crashes, and what comes out keeps the
// promises of MonitorCapabilities and survives being stored.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>

#include "mccs/MonitorCapabilities.h"
#include "mccs/MonitorCapabilitiesJSON.h"
#include "runtime/Fatal.h"
#include "text/UTF8.h"

namespace {

using vantrel::mccs::MonitorCapabilities;
using vantrel::runtime::require;
namespace JSON = vantrel::mccs::MonitorCapabilitiesJSON;

void check(const MonitorCapabilities& capabilities, const std::string& text) {
    require(capabilities.raw == text, "the raw text has changed");
    require(!capabilities.model || text.find(*capabilities.model) != std::string::npos,
            "the model isn't cut from the text");
    const std::unordered_set<std::uint8_t> codes(capabilities.codes.begin(), capabilities.codes.end());
    require(!codes.empty(), "there is no code");
    require(codes.size() == capabilities.codes.size(), "a code is listed twice");
    for (const auto& [code, list] : capabilities.values) {
        require(codes.contains(code), "an unlisted code has values");
        require(!list.empty(), "a list of values is empty");
    }
    require(JSON::decode(JSON::encode(capabilities)) == capabilities, "storing changes the capabilities");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const std::string text = vantrel::text::repairedUTF8(bytes);
    if (const auto capabilities = MonitorCapabilities::parse(text)) check(*capabilities, text);
    JSON::decode(bytes);
    // Ill-formed text must not crash it either.
    MonitorCapabilities::parse(bytes);
    return 0;
}
