#include "platform/linux/wayland/WaylandDesktop.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <utility>

namespace vantrel::wayland {
namespace {

constexpr std::chrono::seconds patience(2);
// How often an answer of "outdated" is taken for bad luck.
constexpr int attempts = 4;

bool isTold(const std::string& text) { return !text.empty() && text != "Unknown" && text != "unknown"; }

std::string monitorName(const std::string& make, const std::string& model, const std::string& description) {
    if (!isTold(model)) return description;
    return isTold(make) ? make + " " + model : model;
}

linux::Desktop::Output outputOf(const Head& head) {
    linux::Desktop::Output output;
    output.name = head.name;
    output.edid = head.edid;
    output.monitor = monitorName(head.make, head.model, head.description);
    output.isConnected = true;
    output.isLit = head.isEnabled;
    if (head.isEnabled) output.place = head.shape.line();
    return output;
}

linux::Desktop::Output outputOf(const CoreOutput::Description& told) {
    linux::Desktop::Output output;
    output.name = told.name;
    output.monitor = monitorName(told.make, told.model, told.description);
    output.isConnected = true;
    output.isLit = true;
    output.place = told.shape.line();
    return output;
}

}  // namespace

std::unique_ptr<WaylandDesktop> WaylandDesktop::open(const Session& session, linux::Descriptors& descriptors,
                                                     const runtime::Clock& clock) {
    auto connection = Connection::open(session.display);
    if (!connection) return nullptr;
    return std::unique_ptr<WaylandDesktop>(
        new WaylandDesktop(session, std::move(connection), descriptors, clock));
}

WaylandDesktop::WaylandDesktop(const Session& session, std::unique_ptr<Connection> connection,
                               linux::Descriptors& descriptors, const runtime::Clock& clock)
    : session_(session),
      clock_(clock),
      connection_(std::move(connection)),
      globals_(std::make_unique<Globals>(*connection_, session.wantsTables)) {
    const Deadline deadline = soon();
    connection_->roundtrip(deadline);
    learn(deadline);
    notice_ = std::make_unique<linux::ChangeNotice>(descriptors, current());
    watch_ = descriptors.watch(connection_->descriptor(), [this] {
        read();
        if (!connection_->isAlive()) watch_.reset();
    });
}

std::string WaylandDesktop::name() const {
    return session_.desktop.empty() ? "Wayland" : "Wayland (" + session_.desktop + ")";
}

std::string WaylandDesktop::identity() const {
    static constexpr std::string_view allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_:.";
    std::string display = session_.display;
    std::replace_if(
        display.begin(), display.end(),
        [](char character) { return allowed.find(character) == std::string_view::npos; }, '_');
    return "wayland-" + display;
}

bool WaylandDesktop::isThere() {
    read();
    return connection_->isAlive();
}

std::vector<linux::Desktop::Output> WaylandDesktop::outputs() {
    read();
    return current();
}

std::optional<platform::TransferTable> WaylandDesktop::table(const std::string& output) {
    read();
    CoreOutput* const found = connection_->isAlive() ? globals_->output(output) : nullptr;
    return found != nullptr && found->table() != nullptr ? found->table()->table() : std::nullopt;
}

bool WaylandDesktop::setTable(const std::string& output, const platform::TransferTable& table) {
    read();
    CoreOutput* const found = globals_->output(output);
    if (found == nullptr || found->table() == nullptr) return false;
    const bool isSet = found->table()->set(table, soon());
    notice_->compare(current());
    return isSet;
}

bool WaylandDesktop::canSwitch() const { return connection_->isAlive() && globals_->management() != nullptr; }

std::optional<linux::Desktop::Arrangement> WaylandDesktop::arrangement(const std::string& output) {
    read();
    const auto found = head(output);
    if (!found || !found->isEnabled) return std::nullopt;
    return found->shape.line();
}

bool WaylandDesktop::darken(const std::string& output) {
    read();
    return ask(output, std::nullopt, soon());
}

bool WaylandDesktop::light(const std::string& output, const std::optional<Arrangement>& arrangement) {
    read();
    const auto found = head(output);
    if (!found) return false;
    const Deadline deadline = soon();
    const auto shape = arrangement ? Shape::read(*arrangement) : std::nullopt;
    // Another monitor may be there now.
    const auto& modes = found->modes;
    const bool fits =
        shape && (!shape->mode || std::find(modes.begin(), modes.end(), *shape->mode) != modes.end());
    if (fits && ask(output, shape, deadline)) return true;
    // Whoever hasn't answered yet isn't asked for something else.
    if (deadline.milliseconds() == 0) return false;
    return ask(output, shapeForNewcomer(*found), deadline);
}

Deadline WaylandDesktop::soon() const { return {clock_, patience}; }

void WaylandDesktop::read() {
    const Deadline deadline = soon();
    connection_->read(deadline);
    learn(deadline);
    notice_->compare(current());
}

void WaylandDesktop::learn(const Deadline& deadline) {
    while (described_ != globals_->bindings()) {
        described_ = globals_->bindings();
        connection_->roundtrip(deadline);
    }
}

std::vector<linux::Desktop::Output> WaylandDesktop::current() const {
    std::vector<Output> outputs;
    if (!connection_->isAlive()) return outputs;
    if (const auto* const management = globals_->management()) {
        for (const Head& head : management->heads()) {
            if (head.name.empty()) continue;
            Output& output = outputs.emplace_back(outputOf(head));
            // Whoever relies on it may find himself in the dark.
            if (management->mayDarken(head.name)) output.isLit = false;
        }
    }
    for (auto& [number, core] : globals_->outputs()) {
        const auto& told = core.description();
        if (told.name.empty()) continue;
        auto output = std::find_if(outputs.begin(), outputs.end(),
                                   [&](const Output& known) { return known.name == told.name; });
        if (output == outputs.end()) output = outputs.insert(output, outputOf(told));
        if (const OutputTable* const table = core.table()) output->tableCapacity = table->capacity();
    }
    return outputs;
}

std::optional<Head> WaylandDesktop::head(const std::string& name) const {
    if (!canSwitch()) return std::nullopt;
    for (Head& head : globals_->management()->heads()) {
        if (head.name == name) return std::move(head);
    }
    return std::nullopt;
}

// To the right of everything, as compositors do it.
Shape WaylandDesktop::shapeForNewcomer(const Head& newcomer) const {
    int right = 0;
    for (const Head& head : globals_->management()->heads()) {
        if (head.isEnabled && head.name != newcomer.name) {
            right = std::max(right, head.shape.rightEdge().value_or(0));
        }
    }
    Shape shape;
    shape.mode = newcomer.preferred;
    if (!shape.mode && !newcomer.modes.empty()) shape.mode = newcomer.modes.front();
    shape.position = Shape::Position{right, 0};
    return shape;
}

bool WaylandDesktop::ask(const std::string& output, const std::optional<Shape>& shape,
                         const Deadline& deadline) {
    auto answer = OutputManagement::Answer::outdated;
    for (int attempt = 0; attempt < attempts && answer == OutputManagement::Answer::outdated; ++attempt) {
        // What has changed is told before this comes back.
        if (attempt > 0 && !connection_->roundtrip(deadline)) break;
        if (!canSwitch()) break;
        answer = globals_->management()->ask(output, shape, deadline);
    }
    // So are the consequences.
    connection_->roundtrip(deadline);
    learn(deadline);
    notice_->compare(current());
    return answer == OutputManagement::Answer::taken;
}

}  // namespace vantrel::wayland
