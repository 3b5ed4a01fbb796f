#include "platform/linux/randr/OutputSwitch.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "platform/linux/randr/Owned.h"
#include "platform/linux/randr/ServerGrab.h"

namespace vantrel::randr {
namespace {

// Each time, something has been plugged in or out just then.
constexpr int attempts = 5;

std::uint32_t millimeters(std::int32_t pixels, double density) {
    return static_cast<std::uint32_t>(std::max(1L, std::lround(pixels * density)));
}

}  // namespace

template <class Change>
bool OutputSwitch::change(const std::string& name, bool isToBeLit, Change change) {
    const ServerGrab grab(connection_);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto layout = Layout::read(connection_);
        const Layout::Output* const output = layout ? layout->output(name) : nullptr;
        if (output == nullptr) return false;
        const Outcome outcome = change(*layout, *output);
        if (outcome == Outcome::outdated) continue;
        if (outcome == Outcome::refused) return false;
        const auto after = Layout::read(connection_);
        const Layout::Output* const changed = after ? after->output(name) : nullptr;
        return changed != nullptr && (after->crtcOf(*changed) != nullptr) == isToBeLit;
    }
    return false;
}

bool OutputSwitch::darken(const std::string& name) {
    return change(name, false, [this](const Layout& layout, const Layout::Output& output) {
        return darken(layout, output);
    });
}

bool OutputSwitch::light(const std::string& name, const std::optional<Placement>& before) {
    return change(name, true, [&](const Layout& layout, const Layout::Output& output) {
        return light(layout, output, before);
    });
}

OutputSwitch::Outcome OutputSwitch::darken(const Layout& layout, const Layout::Output& output) {
    const Layout::Crtc* const crtc = layout.crtcOf(output);
    if (crtc == nullptr) return Outcome::refused;
    LightingPlan plan;
    plan.crtc = crtc->id;
    std::copy_if(crtc->outputs.begin(), crtc->outputs.end(), std::back_inserter(plan.outputs),
                 [&](xcb_randr_output_t other) { return other != output.id; });
    if (!plan.outputs.empty()) {
        plan.mode = crtc->mode;
        plan.picture = crtc->picture;
    }
    return configure(layout, plan);
}

OutputSwitch::Outcome OutputSwitch::light(const Layout& layout, const Layout::Output& output,
                                          const std::optional<Placement>& before) {
    if (layout.crtcOf(output) != nullptr) return Outcome::done;
    for (const LightingPlan& plan : LightingPlan::all(layout, output, before)) {
        const Outcome outcome = follow(plan, layout);
        if (outcome == Outcome::refused) continue;
        if (outcome == Outcome::done && before && before->isPrimary) {
            xcb_randr_set_output_primary(connection_.get(), connection_.root(), output.id);
        }
        return outcome;
    }
    return Outcome::refused;
}

OutputSwitch::Outcome OutputSwitch::follow(const LightingPlan& plan, const Layout& layout) {
    const Layout::Crtc* const crtc = layout.crtc(plan.crtc);
    const bool isFree = crtc->mode == XCB_NONE;
    const bool mustGrow = plan.width != layout.width || plan.height != layout.height;
    if (mustGrow && !resize(plan.width, plan.height)) return Outcome::refused;
    if (isFree) setTransform(plan.crtc, plan.picture.transform);
    // It holds what another output was shown through.
    if (!plan.isTableOurs) tables_.writeLinear(plan.crtc);
    const Outcome outcome = configure(layout, plan);
    if (outcome != Outcome::done) {
        if (mustGrow) resize(layout.width, layout.height);
    } else if (isFree &&
               (plan.picture.panning != Picture::Panning() || crtc->picture.panning != Picture::Panning())) {
        setPanning(plan.crtc, plan.picture.panning);
    }
    return outcome;
}

OutputSwitch::Outcome OutputSwitch::configure(const Layout& layout, const LightingPlan& plan) {
    const auto asked = xcb_randr_set_crtc_config(
        connection_.get(), plan.crtc, XCB_CURRENT_TIME, layout.configured,
        static_cast<std::int16_t>(plan.picture.area.x), static_cast<std::int16_t>(plan.picture.area.y),
        plan.mode, plan.picture.rotation, static_cast<std::uint32_t>(plan.outputs.size()),
        plan.outputs.data());
    const Owned<xcb_randr_set_crtc_config_reply_t> reply(
        xcb_randr_set_crtc_config_reply(connection_.get(), asked, nullptr));
    if (!reply || reply->status == XCB_RANDR_SET_CONFIG_FAILED) return Outcome::refused;
    return reply->status == XCB_RANDR_SET_CONFIG_SUCCESS ? Outcome::done : Outcome::outdated;
}

bool OutputSwitch::resize(std::int32_t width, std::int32_t height) {
    const auto [horizontal, vertical] = connection_.density();
    return connection_.succeeds(xcb_randr_set_screen_size_checked(
        connection_.get(), connection_.root(), static_cast<std::uint16_t>(width),
        static_cast<std::uint16_t>(height), millimeters(width, horizontal), millimeters(height, vertical)));
}

// A server that can't answers with an error, which takeEvents() drops: then the picture
// needs none, or can't be had.
void OutputSwitch::setTransform(xcb_randr_crtc_t crtc, const Transform& transform) {
    const auto& rows = transform.matrix;
    const xcb_render_transform_t matrix{rows[0], rows[1], rows[2], rows[3], rows[4],
                                        rows[5], rows[6], rows[7], rows[8]};
    xcb_randr_set_crtc_transform(connection_.get(), crtc, matrix,
                                 static_cast<std::uint16_t>(transform.filter.size()), transform.filter.data(),
                                 static_cast<std::uint32_t>(transform.parameters.size()),
                                 transform.parameters.data());
}

void OutputSwitch::setPanning(xcb_randr_crtc_t crtc, const Picture::Panning& panning) {
    const auto size = [&](std::size_t index) { return static_cast<std::uint16_t>(panning.at(index)); };
    const auto border = [&](std::size_t index) { return static_cast<std::int16_t>(panning.at(index)); };
    const auto asked = xcb_randr_set_panning(connection_.get(), crtc, XCB_CURRENT_TIME, size(0), size(1),
                                             size(2), size(3), size(4), size(5), size(6), size(7), border(8),
                                             border(9), border(10), border(11));
    const Owned<xcb_randr_set_panning_reply_t> reply(
        xcb_randr_set_panning_reply(connection_.get(), asked, nullptr));
}

}  // namespace vantrel::randr
