#include "platform/linux/wayland/WlrOutputManagement.h"

#include <algorithm>
#include <utility>
#include <wayland-client.h>
#include <wayland-protocols/wlr-output-management-unstable-v1.h>

namespace vantrel::wayland {
namespace {

void describeShape(zwlr_output_configuration_head_v1* request, const WlrHead& head, const Shape& shape) {
    if (auto* const mode = shape.mode ? head.modes().object(*shape.mode) : nullptr) {
        zwlr_output_configuration_head_v1_set_mode(request, mode);
    }
    if (const auto position = shape.position) {
        zwlr_output_configuration_head_v1_set_position(request, position->x, position->y);
    }
    if (shape.transform) zwlr_output_configuration_head_v1_set_transform(request, *shape.transform);
    if (shape.scale) zwlr_output_configuration_head_v1_set_scale(request, *shape.scale);
}

}  // namespace

struct WlrOutputManagement::Events {
    using Manager = zwlr_output_manager_v1;
    using Configuration = zwlr_output_configuration_v1;

    static WlrOutputManagement& self(void* data) { return *static_cast<WlrOutputManagement*>(data); }

    static void head(void* data, Manager*, zwlr_output_head_v1* head) {
        self(data).heads_.push_back(std::make_unique<WlrHead>(Proxy<zwlr_output_head_v1>(head)));
    }
    static void done(void* data, Manager*, std::uint32_t serial) {
        WlrOutputManagement& management = self(data);
        management.serial_ = serial;
        std::erase_if(management.heads_, [](const auto& head) { return head->isGone(); });
        for (const auto& head : management.heads_) head->commit();
    }
    static void finished(void* data, Manager*) {
        self(data).heads_.clear();
        self(data).manager_.reset();
    }

    static void answer(void* data, Answer answer) { *static_cast<std::optional<Answer>*>(data) = answer; }

    static constexpr zwlr_output_manager_v1_listener listener = {head, done, finished};
    static constexpr zwlr_output_configuration_v1_listener answers = {
        [](void* data, Configuration*) { answer(data, Answer::taken); },
        [](void* data, Configuration*) { answer(data, Answer::refused); },
        [](void* data, Configuration*) { answer(data, Answer::outdated); }};
};

WlrOutputManagement::WlrOutputManagement(Connection& connection, Proxy<zwlr_output_manager_v1> manager)
    : connection_(connection), manager_(std::move(manager)) {
    zwlr_output_manager_v1_add_listener(manager_.get(), &Events::listener, this);
}

std::vector<Head> WlrOutputManagement::heads() const {
    std::vector<Head> heads;
    heads.reserve(heads_.size());
    for (const auto& head : heads_) heads.push_back(head->head());
    return heads;
}

OutputManagement::Answer WlrOutputManagement::ask(const std::string& head, const std::optional<Shape>& shape,
                                                  const Deadline& deadline) {
    const WlrHead* const changed = find(head);
    if (changed == nullptr || !manager_ || !connection_.isAlive()) return Answer::refused;
    auto* const configuration = zwlr_output_manager_v1_create_configuration(manager_.get(), serial_);
    auto& question = questions_.add(configuration, head, !shape);
    zwlr_output_configuration_v1_add_listener(configuration, &Events::answers, &question.answer);
    const HeadRequests requests = describe(configuration, changed, shape);
    zwlr_output_configuration_v1_apply(configuration);
    connection_.wait([&] { return question.answer.has_value(); }, deadline);
    return questions_.settle(question);
}

WlrHead* WlrOutputManagement::find(const std::string& name) const {
    const auto found = std::find_if(heads_.begin(), heads_.end(), [&](const auto& head) {
        return head->head().name == name && !head->isGone();
    });
    return found != heads_.end() ? found->get() : nullptr;
}

// The protocol wants to hear of every head, and leaves open what one keeps of which
// nothing is said.
WlrOutputManagement::HeadRequests WlrOutputManagement::describe(zwlr_output_configuration_v1* configuration,
                                                                const WlrHead* changed,
                                                                const std::optional<Shape>& shape) const {
    HeadRequests requests;
    for (const auto& head : heads_) {
        if (head->isGone()) continue;
        const bool isLit = head.get() == changed ? shape.has_value() : head->head().isEnabled;
        if (!isLit) {
            zwlr_output_configuration_v1_disable_head(configuration, head->object());
            continue;
        }
        requests.emplace_back(zwlr_output_configuration_v1_enable_head(configuration, head->object()));
        describeShape(requests.back().get(), *head, head.get() == changed ? *shape : head->head().shape);
    }
    return requests;
}

}  // namespace vantrel::wayland
