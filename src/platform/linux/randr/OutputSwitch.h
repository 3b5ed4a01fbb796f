// Turns outputs dark and gives them their picture back. All other outputs keep theirs where
// it is; the screen grows where a picture needs it, and never shrinks, since nothing has to
// move then.
#pragma once

#include <optional>
#include <string>

#include "platform/linux/randr/Connection.h"
#include "platform/linux/randr/CrtcTables.h"
#include "platform/linux/randr/Layout.h"
#include "platform/linux/randr/LightingPlan.h"

namespace vantrel::randr {

class OutputSwitch {
  public:
    OutputSwitch(const Connection& connection, CrtcTables& tables)
        : connection_(connection), tables_(tables) {}

    // Each is true when the server says so, and shows it.
    bool darken(const std::string& output);
    // An output that is lit stays as it is.
    bool light(const std::string& output, const std::optional<Placement>& before);

  private:
    // `outdated`: the server's outputs have changed since they were looked at.
    enum class Outcome { done, refused, outdated };

    template <class Change>
    bool change(const std::string& output, bool isToBeLit, Change change);
    Outcome darken(const Layout& layout, const Layout::Output& output);
    Outcome light(const Layout& layout, const Layout::Output& output, const std::optional<Placement>& before);
    Outcome follow(const LightingPlan& plan, const Layout& layout);
    Outcome configure(const Layout& layout, const LightingPlan& plan);
    bool resize(std::int32_t width, std::int32_t height);
    void setTransform(xcb_randr_crtc_t crtc, const Transform& transform);
    void setPanning(xcb_randr_crtc_t crtc, const Picture::Panning& panning);

    const Connection& connection_;
    CrtcTables& tables_;
};

}  // namespace vantrel::randr
