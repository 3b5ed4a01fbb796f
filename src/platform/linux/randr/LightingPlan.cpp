#include "platform/linux/randr/LightingPlan.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace vantrel::randr {
namespace {

using Crtc = Layout::Crtc;
using Output = Layout::Output;

// No monitor tells two modes apart that are this close.
constexpr std::uint32_t sameRefresh = 10;

template <class Items, class Item>
bool contains(const Items& items, const Item& item) {
    return std::find(items.begin(), items.end(), item) != items.end();
}

bool isFree(const Crtc& crtc) { return crtc.mode == XCB_NONE && crtc.outputs.empty(); }

std::vector<const Crtc*> freeCrtcs(const Layout& layout, const Output& output) {
    std::vector<const Crtc*> found;
    for (const Crtc& crtc : layout.crtcs) {
        if (isFree(crtc) && contains(output.possibleCrtcs, crtc.id)) found.push_back(&crtc);
    }
    return found;
}

// The number that the mode has now; none when it is gone.
xcb_randr_mode_t modeLike(const Layout& layout, const Output& output, const Mode& wanted) {
    xcb_randr_mode_t alike = XCB_NONE;
    for (const xcb_randr_mode_t id : output.modes) {
        const auto mode = layout.modes.find(id);
        if (mode == layout.modes.end()) continue;
        const auto& [name, width, height, refresh] = mode->second;
        const std::uint32_t difference =
            std::max(refresh, wanted.refresh) - std::min(refresh, wanted.refresh);
        if (width != wanted.width || height != wanted.height || difference > sameRefresh) continue;
        if (name == wanted.name) return id;
        if (alike == XCB_NONE) alike = id;
    }
    return alike;
}

// Whether all that it overlaps is what it overlapped before.
bool isPlaceFree(const Layout& layout, const Area& area, const std::vector<std::string>& shared) {
    return std::all_of(layout.outputs.begin(), layout.outputs.end(), [&](const Output& other) {
        const Crtc* const shown = layout.crtcOf(other);
        return shown == nullptr || !shown->picture.area.overlaps(area) || contains(shared, other.name);
    });
}

// A plan for a free CRTC, where the screen can be as large as that takes.
std::optional<LightingPlan> planFor(const Layout& layout, const Output& output, const Crtc& crtc,
                                    xcb_randr_mode_t mode, const Picture& picture) {
    LightingPlan plan{crtc.id, mode, picture, {output.id}, layout.width, layout.height, false};
    plan.width = std::max(plan.width, picture.area.right());
    plan.height = std::max(plan.height, picture.area.bottom());
    const Area& area = picture.area;
    if (area.x < 0 || area.y < 0 || area.width < 1 || area.height < 1 ||
        area.x > std::numeric_limits<std::int16_t>::max() ||
        area.y > std::numeric_limits<std::int16_t>::max() || plan.width > layout.mostWidth ||
        plan.height > layout.mostHeight) {
        return std::nullopt;
    }
    return plan;
}

// On the CRTC of those that it had the same picture as, if it was there.
std::optional<LightingPlan> joining(const Layout& layout, const Output& output, const Placement& before) {
    const Crtc* const crtc = layout.crtc(before.crtc);
    if (crtc == nullptr || crtc->mode == XCB_NONE || crtc->picture != before.picture ||
        !contains(crtc->possibleOutputs, output.id)) {
        return std::nullopt;
    }
    LightingPlan plan{crtc->id, crtc->mode, crtc->picture, crtc->outputs, layout.width, layout.height, true};
    for (const xcb_randr_output_t id : plan.outputs) {
        const Output* const other = layout.output(id);
        if (other == nullptr || !contains(before.shared, other->name)) return std::nullopt;
    }
    plan.outputs.push_back(output.id);
    return plan;
}

void addAsItWas(const Layout& layout, const Output& output, const Placement& before,
                std::vector<LightingPlan>& plans) {
    if (auto plan = joining(layout, output, before)) plans.push_back(std::move(*plan));
    const xcb_randr_mode_t mode = modeLike(layout, output, before.picture.mode);
    if (mode == XCB_NONE || !isPlaceFree(layout, before.picture.area, before.shared)) return;
    auto crtcs = freeCrtcs(layout, output);
    const auto isOld = [&](const Crtc* crtc) { return crtc->id == before.crtc; };
    std::stable_partition(crtcs.begin(), crtcs.end(), isOld);
    for (const Crtc* const crtc : crtcs) {
        if ((before.picture.rotation & ~crtc->rotations) != 0) continue;
        auto plan = planFor(layout, output, *crtc, mode, before.picture);
        if (!plan) continue;
        plan->isTableOurs = isOld(crtc);
        plans.push_back(std::move(*plan));
    }
}

}  // namespace

std::vector<LightingPlan> LightingPlan::all(const Layout& layout, const Output& output,
                                            const std::optional<Placement>& before) {
    std::vector<LightingPlan> plans;
    if (layout.crtcOf(output) != nullptr) return plans;
    if (before) addAsItWas(layout, output, *before, plans);
    std::int32_t left = 0;
    for (const Crtc& crtc : layout.crtcs) {
        if (crtc.mode != XCB_NONE) left = std::max(left, crtc.picture.area.right());
    }
    for (const xcb_randr_mode_t id : output.modes) {
        const auto mode = layout.modes.find(id);
        if (mode == layout.modes.end()) continue;
        Picture picture;
        picture.mode = mode->second;
        picture.area = {left, 0, picture.mode.width, picture.mode.height};
        for (const Crtc* const crtc : freeCrtcs(layout, output)) {
            if (auto plan = planFor(layout, output, *crtc, id, picture)) plans.push_back(std::move(*plan));
        }
    }
    return plans;
}

}  // namespace vantrel::randr
