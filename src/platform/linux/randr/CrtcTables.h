// The transfer tables of the CRTCs. All outputs of a CRTC show their picture through the
// same one.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/linux/randr/Connection.h"

namespace vantrel::randr {

class CrtcTables {
  public:
    explicit CrtcTables(const Connection& connection) : connection_(connection) {}

    // Samples per channel; 0 where there is no table.
    std::uint32_t capacity(xcb_randr_crtc_t crtc) const;
    // A table that was set is read back as it was set, not as X rounds it, for as long as
    // nobody else sets one.
    std::optional<platform::TransferTable> read(xcb_randr_crtc_t crtc) const;
    // True when the server holds it, as exactly as any hardware shows it.
    bool write(xcb_randr_crtc_t crtc, const platform::TransferTable& table);
    // One that changes nothing.
    void writeLinear(xcb_randr_crtc_t crtc);

  private:
    // Red, green, blue, one after the other.
    using Samples = std::vector<std::uint16_t>;
    struct Written {
        platform::TransferTable table;
        Samples held;
    };

    std::optional<Samples> held(xcb_randr_crtc_t crtc) const;

    const Connection& connection_;
    std::map<xcb_randr_crtc_t, Written> written_;
};

}  // namespace vantrel::randr
