#include "platform/linux/OutputSwitch.h"

#include <algorithm>
#include <optional>

#include "platform/linux/Connector.h"

namespace vantrel::linux {

using platform::LogLevel;
using Output = Desktop::Output;

namespace {

const Output* find(const std::vector<Output>& outputs, const std::string& name) {
    const auto found = std::find_if(outputs.begin(), outputs.end(),
                                    [&name](const Output& output) { return output.name == name; });
    return found != outputs.end() ? &*found : nullptr;
}

bool isLit(const std::vector<Output>& outputs, const std::string& name) {
    const Output* output = find(outputs, name);
    return output != nullptr && output->isLit;
}

std::optional<Desktop::Arrangement> noted(const SessionMemory::Notes& notes, const std::string& output) {
    const auto found = notes.find(output);
    if (found == notes.end() || found->second.empty()) return std::nullopt;
    return found->second;
}

}  // namespace

OutputSwitch::OutputSwitch(Desktop& desktop, Session& session, SessionMemory& memory, OutputGuard* guard,
                           platform::Log log)
    : desktop_(desktop), session_(session), memory_(memory), guard_(guard), log_(log) {}

bool OutputSwitch::darken(const std::string& output) {
    const std::vector<Output> outputs = desktop_.outputs();
    if (find(outputs, output) == nullptr) return false;
    if (!isLit(outputs, output)) return true;
    if (!canAnyBeSeen(outputs, output)) {
        log(LogLevel::error, output + ": not turned off, it is the last output that can be seen");
        return false;
    }
    memory_.noteDarkened(output, desktop_.arrangement(output).value_or(""));
    if (guard_ == nullptr || !guard_->post()) {
        log(LogLevel::error, output + ": not turned off, nobody could be had to guard the others");
        memory_.forgetDarkened(output);
        return false;
    }
    if (desktop_.darken(output)) {
        // Others may have gone dark meanwhile.
        keepLight();
        return !isLit(desktop_.outputs(), output);
    }
    log(LogLevel::error, output + ": " + desktop_.name() + " refused to turn it off");
    if (isLit(desktop_.outputs(), output)) memory_.forgetDarkened(output);
    return false;
}

bool OutputSwitch::light(const std::string& output) {
    const auto arrangement = noted(memory_.darkened(), output);
    const bool isDone = isLit(desktop_.outputs(), output) || desktop_.light(output, arrangement);
    if (isDone) {
        memory_.forgetDarkened(output);
    } else {
        log(LogLevel::error, output + ": " + desktop_.name() + " refused to turn it on");
    }
    return isDone;
}

void OutputSwitch::keepLight() {
    const SessionMemory::Notes darkened = memory_.darkened();
    if (darkened.empty()) return;
    const std::vector<Output> outputs = desktop_.outputs();
    for (const auto& [name, arrangement] : darkened) {
        if (isLit(outputs, name)) memory_.forgetDarkened(name);
    }
    if (canAnyBeSeen(outputs)) return;
    for (const auto& [name, arrangement] : darkened) {
        const Output* output = find(outputs, name);
        if (output == nullptr || !output->isConnected) continue;
        log(LogLevel::standard, name + ": turned on again, nothing else can be seen");
        light(name);
    }
}

bool OutputSwitch::canBeSeen(const Output& output) {
    if (!output.isLit || !output.isConnected) return false;
    return !Connector::isBuiltIn(output.name) || !session_.isLidClosed();
}

bool OutputSwitch::canAnyBeSeen(const std::vector<Output>& outputs, const std::string& except) {
    return std::any_of(outputs.begin(), outputs.end(), [this, &except](const Output& output) {
        return output.name != except && canBeSeen(output);
    });
}

void OutputSwitch::log(LogLevel level, const std::string& message) const {
    log_.write(platform::Log::display, level, message);
}

}  // namespace vantrel::linux
