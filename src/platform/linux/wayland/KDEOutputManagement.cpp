#include "platform/linux/wayland/KDEOutputManagement.h"

#include <algorithm>
#include <utility>
#include <wayland-client.h>
#include <wayland-protocols/kde-output-management-v2.h>

namespace vantrel::wayland {
namespace {

using Configuration = kde_output_configuration_v2;

void describeShape(Configuration* configuration, const KDEDevice& device, const Shape& shape) {
    auto* const object = device.object();
    if (auto* const mode = shape.mode ? device.modes().object(*shape.mode) : nullptr) {
        kde_output_configuration_v2_mode(configuration, object, mode);
    }
    if (const auto position = shape.position) {
        kde_output_configuration_v2_position(configuration, object, position->x, position->y);
    }
    if (shape.transform) kde_output_configuration_v2_transform(configuration, object, *shape.transform);
    if (shape.scale) kde_output_configuration_v2_scale(configuration, object, *shape.scale);
    if (const auto policy = shape.variableRefresh) {
        kde_output_configuration_v2_set_vrr_policy(configuration, object,
                                                   static_cast<std::uint32_t>(*policy));
    }
}

}  // namespace

struct KDEOutputManagement::Events {
    static void answer(void* data, Answer answer) { *static_cast<std::optional<Answer>*>(data) = answer; }

    static constexpr kde_output_configuration_v2_listener answers = {
        [](void* data, Configuration*) { answer(data, Answer::taken); },
        [](void* data, Configuration*) { answer(data, Answer::refused); }};
};

void KDEOutputManagement::add(std::uint32_t number, Proxy<kde_output_device_v2> device) {
    devices_.try_emplace(number, std::move(device));
}

std::vector<Head> KDEOutputManagement::heads() const {
    std::vector<Head> heads;
    heads.reserve(devices_.size());
    for (const auto& [number, device] : devices_) heads.push_back(device.head());
    return heads;
}

// What isn't named in a configuration stays as it is.
OutputManagement::Answer KDEOutputManagement::ask(const std::string& head, const std::optional<Shape>& shape,
                                                  const Deadline& deadline) {
    const auto found = std::find_if(devices_.begin(), devices_.end(),
                                    [&](const auto& device) { return device.second.head().name == head; });
    if (found == devices_.end() || !manager_ || !connection_.isAlive()) return Answer::refused;
    Configuration* const configuration = kde_output_management_v2_create_configuration(manager_.get());
    auto& question = questions_.add(configuration, head, !shape);
    kde_output_configuration_v2_add_listener(configuration, &Events::answers, &question.answer);
    kde_output_configuration_v2_enable(configuration, found->second.object(), shape ? 1 : 0);
    if (shape) describeShape(configuration, found->second, *shape);
    kde_output_configuration_v2_apply(configuration);
    connection_.wait([&] { return question.answer.has_value(); }, deadline);
    return questions_.settle(question);
}

}  // namespace vantrel::wayland
